#include "reports/page_renderer.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>

#include "reports/twips.h"

namespace reports {
namespace {

// Heights of lines are sums of fractions: a line that fills the rest of a page to a hair still fits.
constexpr double kHair = 0.01;

}  // namespace

TextRenderer::TextRenderer(const QTextDocument& text, const Rectangle& drawing, const ports::PageGeometry& page)
    : text_(text.clone()),
      drawing_(drawing),
      scaleX_(static_cast<double>(page.dpiX) / kTwipsPerInch),
      scaleY_(static_cast<double>(page.dpiY) / kTwipsPerInch) {
    // Each paragraph keeps its glyphs, which are drawn as soon as it is laid out; and the width comes first, so that it
    // is laid out once.
    for (QTextBlock block = text_->begin(); block.isValid(); block = block.next()) {
        block.layout()->setCacheEnabled(true);
    }
    text_->setTextWidth(drawing.right - drawing.left);
    measureInTwips(*text_);
    // A long text is laid out bit by bit unless its size is asked for.
    text_->documentLayout()->documentSize();
}

TextRenderer::~TextRenderer() = default;

int TextRenderer::textLength() const {
    return text_->characterCount() - 1;
}

int TextRenderer::render(QPainter& painter, int first) {
    painter.save();
    painter.scale(scaleX_, scaleY_);
    double y = drawing_.top;
    bool any = false;
    int next = textLength();
    for (QTextBlock block = text_->findBlock(first); block.isValid() && next == textLength(); block = block.next()) {
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            const int start = block.position() + line.textStart();
            if (start < first) {
                continue;
            }
            if (any && y + line.height() > drawing_.bottom + kHair) {
                next = start;
                break;
            }
            line.draw(&painter, QPointF(drawing_.left, y - line.y()));
            y += line.height();
            any = true;
        }
    }
    painter.restore();
    return next;
}

}  // namespace reports
