#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace qt {

/// Shows a line drawing of this program in the colour of the palette's text, as large as it fits.
class DrawingView final : public QWidget {
public:
    DrawingView() { setAttribute(Qt::WA_TransparentForMouseEvents); }

    /// The drawing `:/artwork/fetus/NAME.svg`; none for an empty name.
    void setDrawing(const QString& name);
    /// The drawing's own size; empty without one.
    QSize pictureSize() const { return renderer_.isValid() ? renderer_.defaultSize() : QSize(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void load();

    QString name_;
    QSvgRenderer renderer_;
};

}  // namespace qt
