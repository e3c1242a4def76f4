#include "reports/page_renderer.h"

#include <QAbstractTextDocumentLayout>
#include <QColor>
#include <QGlyphRun>
#include <QTextBlock>
#include <QTextDocument>

#include "reports/twips.h"

namespace reports {
namespace {

// Heights of lines are sums of fractions: a line that fills the rest of a page to a hair still fits.
constexpr double kHair = 0.01;

QColor colorOf(const QTextFragment& fragment) {
    const QBrush brush = fragment.charFormat().foreground();
    return brush.style() == Qt::NoBrush ? QColor(Qt::black) : brush.color();
}

// The line's upper left corner in the layout lies at the layout's own origin.
void draw(const QTextBlock& block, const QTextLine& line, QPointF origin, ports::TextJob& job) {
    const int start = block.position() + line.textStart();
    const int end = start + line.textLength();
    for (auto i = block.begin(); !i.atEnd(); ++i) {
        const QTextFragment fragment = i.fragment();
        const int from = std::max(start, fragment.position());
        const int length = std::min(end, fragment.position() + fragment.length()) - from;
        if (length > 0) {
            for (const QGlyphRun& glyphs : line.glyphRuns(from - block.position(), length)) {
                job.draw(glyphs, origin, colorOf(fragment));
            }
        }
    }
}

}  // namespace

TextRenderer::TextRenderer(const QTextDocument& text, const Rectangle& drawing)
    : text_(text.clone()), drawing_(drawing) {
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

int TextRenderer::render(ports::TextJob& job, int first) {
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
            draw(block, line, QPointF(drawing_.left, y - line.y()), job);
            y += line.height();
            any = true;
        }
    }
    return next;
}

}  // namespace reports
