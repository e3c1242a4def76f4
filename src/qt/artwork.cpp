#include "qt/artwork.h"

#include <QPainter>

namespace qt {

Artwork::Artwork(const QString& name, QSize size)
    : drawing_(QStringLiteral(":/artwork/%1.svg").arg(name)), size_(size) {
    drawing_.setAspectRatioMode(Qt::KeepAspectRatio);
    setMinimumSize(size);
}

void Artwork::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawing_.render(&painter, rect());
}

}  // namespace qt
