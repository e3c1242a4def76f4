#include "pictures/dib_section.h"

#include "pictures/picture_file.h"

namespace pictures {

bool cDIBSection::Create(int width, int height) {
    ClearUp();
    const auto side = [](int length) { return length > 0 && length <= kLongestSide; };
    if (!side(width) || !side(height) || qint64(width) * height > kMostPixels) {
        return false;
    }
    bitmap_ = QImage(width, height, QImage::Format_BGR888);
    bitmap_.fill(QColor(Qt::white));
    return !bitmap_.isNull();
}

bool cDIBSection::CreateFromPicture(const QImage& picture) {
    if (!Create(picture.width(), picture.height())) {
        return false;
    }
    if (picture.hasAlphaChannel()) {
        LoadPictureBlt(picture);
    } else {
        bitmap_ = picture.convertToFormat(QImage::Format_BGR888);
    }
    return true;
}

QSize cDIBSection::sizeOf(QSize wanted) const {
    return {wanted.width() < 0 ? Width() : wanted.width(), wanted.height() < 0 ? Height() : wanted.height()};
}

void cDIBSection::LoadPictureBlt(const QImage& source, QPoint from, QSize size, QPainter::CompositionMode operation) {
    QPainter painter(&bitmap_);
    painter.setCompositionMode(operation);
    painter.drawImage(QPoint(), source, QRect(from, sizeOf(size)));
}

void cDIBSection::PaintPicture(QPainter& surface, QPoint to, QSize size, QPoint from,
                               QPainter::CompositionMode operation) const {
    surface.save();
    surface.setCompositionMode(operation);
    surface.drawImage(to, bitmap_, QRect(from, sizeOf(size)));
    surface.restore();
}

}  // namespace pictures
