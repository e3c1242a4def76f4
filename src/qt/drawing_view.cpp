#include "qt/drawing_view.h"

#include <QEvent>
#include <QFile>
#include <QPainter>

namespace qt {
namespace {

// The drawings are written in this ink, and what is measured in this one.
const QByteArray kInk = "#000000";
const QByteArray kMeasured = "#c00000";

}  // namespace

void DrawingView::setDrawing(const QString& name) {
    name_ = name;
    load();
    update();
}

void DrawingView::load() {
    QFile file(QStringLiteral(":/artwork/fetus/%1.svg").arg(name_));
    QByteArray drawing = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    drawing.replace(kInk, palette().color(QPalette::Text).name().toLatin1());
    drawing.replace(kMeasured, palette().color(QPalette::Link).name().toLatin1());
    renderer_.load(drawing);
    renderer_.setAspectRatioMode(Qt::KeepAspectRatio);
}

void DrawingView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (renderer_.isValid()) {
        painter.fillRect(rect(), palette().color(QPalette::Base));
        renderer_.render(&painter, rect());
    }
}

void DrawingView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        load();
    }
    QWidget::changeEvent(event);
}

}  // namespace qt
