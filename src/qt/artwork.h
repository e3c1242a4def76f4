#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace qt {

/// A drawing of this program, at any size, in the variant that suits the palette in use.
class Artwork final : public QWidget {
public:
    /// `name` is the drawing's file name without its ending.
    Artwork(const QString& name, QSize size);

    QSize sizeHint() const override { return size_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer drawing_;
    QSize size_;
};

}  // namespace qt
