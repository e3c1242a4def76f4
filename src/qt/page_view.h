#pragma once

#include <QGraphicsScene>
#include <QGraphicsView>
#include <optional>

class QGraphicsProxyWidget;
class QTextDocument;
class QTextEdit;

namespace qt {

/// Shows a document as it stands on paper and lets a person edit it. The document is laid out in twips and seen
/// scaled, so that no zoom and no screen moves a line break.
class PageView final : public QGraphicsView {
public:
    PageView(QTextDocument& document, const QString& accessibleName);
    ~PageView() override;

    QTextEdit& edit() const { return *edit_; }

    /// The width at which lines break, in twips; without one that of the view.
    void setLineWidth(std::optional<int> twips);
    /// How much larger than life the page is seen, where the view is wide enough.
    double zoom() const { return zoom_; }
    void setZoom(double zoom);

    /// The document is about to go.
    void release();

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;

private:
    void arrange();
    void showCaret();
    double pixelsPerTwip() const;

    QGraphicsScene scene_;
    QTextEdit* edit_;
    QGraphicsProxyWidget* proxy_;
    std::optional<int> lineWidth_;
    double zoom_ = 1;
};

}  // namespace qt
