#pragma once

#include <cstdint>
#include <memory>

#include "ports/printer.h"

class QTextBlock;
class QTextDocument;
class QTextLine;

namespace reports {

/// Twips from the first point that the printer reaches.
struct Rectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    bool operator==(const Rectangle&) const = default;
};

/// Draws a text page by page.
class PageRenderer {
public:
    virtual ~PageRenderer() = default;
    /// Draws the page that starts with the character `first`. Returns the first character that didn't fit, or the
    /// length of the text if all did.
    virtual int render(ports::TextJob& job, int first) = 0;
};

/// Draws a copy of a document, laid out for the width of a rectangle of the page.
class TextRenderer final : public PageRenderer {
public:
    TextRenderer(const QTextDocument& text, const Rectangle& drawing);
    ~TextRenderer() override;

    /// In characters; a line end is one.
    int textLength() const;
    /// Each page has one line at least, so that every text comes to its end.
    int render(ports::TextJob& job, int first) override;

private:
    std::unique_ptr<QTextDocument> text_;
    Rectangle drawing_;
};

}  // namespace reports
