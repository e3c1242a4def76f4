#include "qt/picture_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "qt/key_filter.h"

namespace qt {
namespace {

constexpr QSize kUsualSize(160, 120);
constexpr int kFocusWidth = 2;

// A copy is called: the handler may be the end of the window, which lets go of its listeners.
void tell(std::function<void()> listener) {
    listener();
}

}  // namespace

PictureView::PictureView(Slots slots) : slots_(std::move(slots)) {
    setFocusPolicy(slots_.clicks() || slots_.doubleClicks() ? Qt::StrongFocus : Qt::NoFocus);
}

void PictureView::setPicture(const QImage& picture) {
    picture_ = picture;
    scaled_ = {};
    update();
}

void PictureView::setStretched(bool stretched) {
    stretched_ = stretched;
    update();
}

void PictureView::release() {
    pending_.stop();
    const auto never = [] { return false; };
    slots_ = {never, never, [] {}, [] {}};
}

QSize PictureView::sizeHint() const {
    return kUsualSize;
}

QRect PictureView::pictureRect() const {
    const QRect inside = rect().adjusted(kFocusWidth, kFocusWidth, -kFocusWidth, -kFocusWidth);
    QSize size = stretched_ ? inside.size() : picture_.size().scaled(inside.size(), Qt::KeepAspectRatio);
    if (!stretched_ && picture_.width() <= inside.width() && picture_.height() <= inside.height()) {
        size = picture_.size();
    }
    QRect place(QPoint(), size);
    place.moveCenter(inside.center());
    return place;
}

const QPixmap& PictureView::scaled(QSize size) {
    const QSize pixels = size * devicePixelRatioF();
    if (scaled_.size() != pixels) {
        scaled_ = QPixmap::fromImage(picture_.size() == pixels
                                         ? picture_
                                         : picture_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        scaled_.setDevicePixelRatio(devicePixelRatioF());
    }
    return scaled_;
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().brush(QPalette::Base));
    if (picture_.isNull()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, placeholder_);
    } else if (quick_) {
        painter.drawImage(pictureRect(), picture_);
    } else {
        const QRect place = pictureRect();
        painter.drawPixmap(place.topLeft(), scaled(place.size()));
    }
    painter.setPen(
        QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), hasFocus() ? kFocusWidth : 1));
    const int inset = hasFocus() ? 1 : 0;
    painter.drawRect(rect().adjusted(inset, inset, -1 - inset, -1 - inset));
}

void PictureView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicked = pressed_ && event->button() == Qt::LeftButton && rect().contains(event->pos());
    pressed_ = false;
    if (!clicked || !slots_.clicks()) {
        return;
    }
    if (slots_.doubleClicks()) {
        pending_.start(QApplication::doubleClickInterval(), this);
    } else {
        tell(slots_.click);
    }
}

void PictureView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        pending_.stop();
        pressed_ = false;
        tell(slots_.doubleClick);
    }
}

void PictureView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        tell(slots_.click);
    } else if (isEnter(*event)) {
        tell(slots_.doubleClick);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PictureView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (waiting()) {
        settleClick();
    }
}

void PictureView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == pending_.timerId()) {
        settleClick();
    }
}

void PictureView::settleClick() {
    pending_.stop();
    tell(slots_.click);
}

}  // namespace qt
