#include "qt/page_view.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QContextMenuEvent>
#include <QGraphicsProxyWidget>
#include <QMenu>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>
#include <cmath>

#include "reports/twips.h"

namespace qt {
namespace {

constexpr double kTwipsPerPixel = 15;
constexpr int kSheetEdge = 120;   // white around the text, in twips
constexpr int kCaretWidth = 20;   // in twips
constexpr int kLeastWidth = 720;  // of a line, in twips
constexpr double kLeastZoom = 0.5;
constexpr double kMostZoom = 4;
constexpr double kZoomStep = 1.1;

// Paper is white and ink is black, by day and by night.
QPalette paperPalette() {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

QTextEdit* newEdit(QTextDocument& document, const QString& accessibleName) {
    auto* edit = new QTextEdit;
    edit->setDocument(&document);
    reports::measureInTwips(document);
    edit->setAccessibleName(accessibleName);
    edit->setPalette(paperPalette());
    edit->setFrameShape(QFrame::NoFrame);
    edit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    edit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    edit->setContextMenuPolicy(Qt::NoContextMenu);
    edit->setAcceptRichText(false);
    edit->setCursorWidth(kCaretWidth);
    edit->setLineWrapMode(QTextEdit::FixedPixelWidth);
    return edit;
}

}  // namespace

PageView::PageView(QTextDocument& document, const QString& accessibleName)
    : edit_(newEdit(document, accessibleName)), proxy_(scene_.addWidget(edit_)) {
    setScene(&scene_);
    setAccessibleName(accessibleName);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(NoAnchor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    scene_.setFocusItem(proxy_);
    connect(document.documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this, [this] { arrange(); });
    connect(edit_, &QTextEdit::cursorPositionChanged, this, [this] { showCaret(); });
    arrange();
}

// The scene goes with the view; as it goes it must not ask the view any more.
PageView::~PageView() {
    setScene(nullptr);
}

void PageView::setLineWidth(std::optional<int> twips) {
    lineWidth_ = twips;
    arrange();
}

void PageView::setZoom(double zoom) {
    zoom_ = std::clamp(zoom, kLeastZoom, kMostZoom);
    arrange();
    showCaret();
}

void PageView::release() {
    // Not disconnect(): by the editor's last signal the toolkit forgets what it keeps of it.
    edit_->blockSignals(true);
    edit_->document()->documentLayout()->disconnect(this);
    edit_->setDocument(new QTextDocument(edit_));
}

double PageView::pixelsPerTwip() const {
    const double inView = viewport()->width();
    const double sheet = edit_->lineWrapColumnOrWidth() + 2 * kSheetEdge;
    return std::min(1 / kTwipsPerPixel, inView / sheet) * zoom_;
}

void PageView::arrange() {
    const int inView = static_cast<int>(viewport()->width() * kTwipsPerPixel) - 2 * kSheetEdge;
    const int width = std::max(lineWidth_.value_or(inView), kLeastWidth);
    if (edit_->lineWrapColumnOrWidth() != width) {
        edit_->setLineWrapColumnOrWidth(width);
    }
    const double scale = pixelsPerTwip();
    const double top = mapToScene(QPoint()).y();
    setTransform(QTransform::fromScale(scale, scale));
    const double room = std::floor(viewport()->height() / scale) - 2 * kSheetEdge;
    const double height = std::max(std::ceil(edit_->document()->size().height()), room);
    const QSize size(width, static_cast<int>(height));
    if (edit_->size() != size) {
        edit_->resize(size);
    }
    setSceneRect(QRectF(QPointF(0, 0), size).adjusted(-kSheetEdge, -kSheetEdge, kSheetEdge, kSheetEdge));
    // What stood at the top of the view stays there, the edge of the sheet before all.
    QScrollBar* bar = verticalScrollBar();
    bar->setValue(top <= 0 ? bar->minimum() : qRound(top * scale));
}

void PageView::showCaret() {
    const QRectF caret = proxy_->mapRectToScene(edit_->cursorRect());
    ensureVisible(caret, kSheetEdge / static_cast<int>(kTwipsPerPixel), kSheetEdge / static_cast<int>(kTwipsPerPixel));
}

void PageView::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    arrange();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() & Qt::ControlModifier) {
        setZoom(zoom_ * (event->angleDelta().y() > 0 ? kZoomStep : 1 / kZoomStep));
        return;
    }
    QAbstractScrollArea::wheelEvent(event);
}

void PageView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::ZoomIn)) {
        setZoom(zoom_ * kZoomStep);
    } else if (event->matches(QKeySequence::ZoomOut)) {
        setZoom(zoom_ / kZoomStep);
    } else if (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_0) {
        setZoom(1);
    } else {
        QGraphicsView::keyPressEvent(event);
    }
}

void PageView::focusInEvent(QFocusEvent* event) {
    QGraphicsView::focusInEvent(event);
    scene_.setFocusItem(proxy_);
    edit_->setFocus();
}

// The scene asks the item, the item its own focus widget; going to the editor itself is the road that never fails.
void PageView::inputMethodEvent(QInputMethodEvent* event) {
    QApplication::sendEvent(edit_, event);
}

QVariant PageView::inputMethodQuery(Qt::InputMethodQuery query) const {
    const QVariant value = edit_->inputMethodQuery(query);
    if (value.userType() == QMetaType::QRect || value.userType() == QMetaType::QRectF) {
        return mapFromScene(proxy_->mapRectToScene(value.toRectF())).boundingRect();
    }
    return value;
}

void PageView::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool selected = edit_->textCursor().hasSelection();
    const auto add = [&](const QString& text, QKeySequence::StandardKey key, bool enabled, void (QTextEdit::*slot)()) {
        QAction* action = menu->addAction(text, edit_, slot);
        action->setShortcut(key);
        action->setEnabled(enabled);
    };
    add(QStringLiteral("&Annuler"), QKeySequence::Undo, edit_->document()->isUndoAvailable(), &QTextEdit::undo);
    add(QStringLiteral("&Rétablir"), QKeySequence::Redo, edit_->document()->isRedoAvailable(), &QTextEdit::redo);
    menu->addSeparator();
    add(QStringLiteral("Co&uper"), QKeySequence::Cut, selected, &QTextEdit::cut);
    add(QStringLiteral("&Copier"), QKeySequence::Copy, selected, &QTextEdit::copy);
    add(QStringLiteral("C&oller"), QKeySequence::Paste, edit_->canPaste(), &QTextEdit::paste);
    menu->addSeparator();
    add(QStringLiteral("&Tout sélectionner"), QKeySequence::SelectAll, !edit_->document()->isEmpty(),
        &QTextEdit::selectAll);
    menu->popup(event->globalPos());
}

// Tab is a character of the text; only the way back leads out of it.
bool PageView::focusNextPrevChild(bool next) {
    return !next && QAbstractScrollArea::focusNextPrevChild(next);
}

void PageView::drawBackground(QPainter* painter, const QRectF& rect) {
    painter->fillRect(rect, palette().color(QPalette::Mid));
    painter->fillRect(sceneRect() & rect, Qt::white);
}

}  // namespace qt
