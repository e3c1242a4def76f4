#include "qt/ink_icon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace qt {
namespace {

// The drawings are written in this ink.
const QByteArray kInk = "#000000";

class InkEngine final : public QIconEngine {
public:
    explicit InkEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

    QIconEngine* clone() const override { return new InkEngine(drawing_); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = state == QIcon::On ? QPalette::Link : QPalette::ButtonText;
        const QColor color = QApplication::palette().color(group, role);
        QByteArray inked = drawing_;
        QSvgRenderer(inked.replace(kInk, color.name().toLatin1())).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

private:
    QByteArray drawing_;
};

}  // namespace

QIcon inkIcon(const QString& name) {
    QFile file(QStringLiteral(":/artwork/tools/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? QIcon(new InkEngine(file.readAll())) : QIcon();
}

}  // namespace qt
