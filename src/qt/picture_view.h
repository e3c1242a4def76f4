#pragma once

#include <QBasicTimer>
#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <functional>

namespace qt {

/// Shows a picture in its place, in its own shape. Space stands for a click, Enter for a double click.
///
/// Where both a click and a double click mean something, a click is told only once it is sure that no second one
/// follows: a double click isn't a click. Whoever goes on to another field clicks no second time.
class PictureView final : public QWidget {
public:
    struct Slots {
        /// Whether anybody listens at present.
        std::function<bool()> clicks;
        std::function<bool()> doubleClicks;
        std::function<void()> click;
        std::function<void()> doubleClick;
    };

    explicit PictureView(Slots slots);

    void setPicture(const QImage& picture);
    /// Whether the picture fills its place whatever its shape.
    void setStretched(bool stretched);
    /// Scales by the nearest pixels, for pictures that come in quick succession.
    void setQuick(bool quick) { quick_ = quick; }
    /// What stands in an empty place.
    void setPlaceholder(const QString& text) { placeholder_ = text; }
    /// Whether a click waits for a second one that would make it a double click.
    bool waiting() const { return pending_.isActive(); }
    /// Lets go of the listeners.
    void release();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void settleClick();
    QRect pictureRect() const;
    const QPixmap& scaled(QSize size);

    Slots slots_;
    QImage picture_;
    QPixmap scaled_;
    QString placeholder_;
    bool stretched_ = false;
    bool quick_ = false;
    bool pressed_ = false;
    QBasicTimer pending_;
};

}  // namespace qt
