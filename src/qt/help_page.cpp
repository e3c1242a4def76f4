#include "qt/help_page.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QPainter>
#include <QTextBlock>

#include "qt/help_search.h"

namespace qt {
namespace {

constexpr int kMargin = 16;
// On paper: the width on which a page is laid out, in its pixels, and the margins in twips.
constexpr int kPaperWidth = 760;
constexpr int kPaperMargin = 1134;

const QString kSheet = QStringLiteral(
    "h1 { font-size: 17pt; color: %1; margin-bottom: 8px }"
    "h2 { font-size: 12pt; color: %1; margin-top: 20px; margin-bottom: 6px }"
    "p, li { line-height: 125% } li { margin-bottom: 4px }"
    "p.picture { line-height: 100% } p.note { background-color: %2 }"
    "table { border-collapse: collapse; border-color: %3; border-style: solid; margin-top: 6px; margin-bottom: 6px }"
    "th { background-color: %2; text-align: left } a { color: %1 } code { font-family: monospace }");

/// The style of the pages. A line of a table stands out from the paper, not from the window.
QString sheetFor(const QPalette& palette) {
    QColor line = palette.color(QPalette::Text);
    line.setHslF(qMax<float>(0, line.hslHueF()), 0, palette.color(QPalette::Base).lightnessF() < 0.5F ? 0.4F : 0.75F);
    return kSheet.arg(palette.color(QPalette::Link).name(), palette.color(QPalette::AlternateBase).name(), line.name());
}

QPalette paperPalette() {
    QPalette palette(Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::Link}) {
        palette.setColor(role, Qt::black);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xee, 0xee, 0xee));
    return palette;
}

/// The part of a sheet that a page of help may fill, in device pixels from the first point that can be printed.
QRectF roomOn(const ports::PageGeometry& sheet) {
    const double across = sheet.dpiX / 1440.0, down = sheet.dpiY / 1440.0;
    return {kPaperMargin * across - sheet.physicalOffsetX, kPaperMargin * down - sheet.physicalOffsetY,
            (sheet.width - 2 * kPaperMargin) * across, (sheet.height - 2 * kPaperMargin) * down};
}

void drawSheet(QPainter& painter, const QRectF& room, double scale, const QTextDocument& page, double top) {
    painter.save();
    painter.translate(room.topLeft());
    painter.scale(scale, scale);
    painter.translate(0, -top);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = paperPalette();
    context.clip = QRectF(0, top, page.pageSize().width(), page.pageSize().height());
    painter.setClipRect(context.clip);
    page.documentLayout()->draw(&painter, context);
    painter.restore();
}

}  // namespace

HelpPage::HelpPage(const HelpFile& file) : file_(file) {
    setOpenLinks(true);
    setOpenExternalLinks(false);
    setAccessibleName(QStringLiteral("Page d'aide"));
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(kMargin);
    dress();
}

void HelpPage::dress() {
    document()->setDefaultStyleSheet(sheetFor(palette()));
}

void HelpPage::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty()) {
        dress();
        reload();
    }
}

QVariant HelpPage::loadResource(int, const QUrl& address) {
    return file_.page(source().resolved(address));
}

void HelpPage::mark(const QStringList& words) {
    QList<QTextEdit::ExtraSelection> marks;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const QString text = withoutAccents(block.text());
        for (const QString& word : words) {
            for (qsizetype at = wordStart(text, word); at >= 0; at = wordStart(text, word, at + 1)) {
                QTextEdit::ExtraSelection found{QTextCursor(block), {}};
                found.cursor.setPosition(block.position() + static_cast<int>(at));
                found.cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, static_cast<int>(word.size()));
                found.format.setBackground(palette().highlight());
                found.format.setForeground(palette().highlightedText());
                marks << found;
            }
        }
    }
    setExtraSelections(marks);
}

void HelpPage::printOn(ports::Printer& printer) const {
    const QRectF room = roomOn(printer.geometry());
    const double scale = room.width() / kPaperWidth;
    QTextDocument page;
    page.setResourceProvider([this](const QUrl& address) { return QVariant(file_.page(source().resolved(address))); });
    page.setDefaultStyleSheet(sheetFor(paperPalette()));
    page.setDefaultFont(font());
    page.setHtml(QString::fromUtf8(file_.page(source())));
    page.setPageSize(QSizeF(kPaperWidth, room.height() / scale));
    const auto job = printer.open(documentTitle());
    for (int i = 0; i < page.pageCount(); ++i) {
        if (i > 0) {
            job->newPage();
        }
        drawSheet(job->painter(), room, scale, page, i * page.pageSize().height());
    }
    job->end();
}

}  // namespace qt
