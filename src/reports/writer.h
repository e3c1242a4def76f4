#pragma once

#include "reports/operations.h"

namespace reports {

inline const QString kLineEnd = QStringLiteral("\r\n");

/// A line end `count` times.
QString lineEnds(int count);
/// Ten, fifteen or twenty blanks: what reports indent by.
QString blanks(int count);

/// Where a report is written down as operations. Setting what is set already adds nothing.
class Writer {
public:
    Writer& align(forms::Alignment alignment);
    Writer& size(double points);
    Writer& bold(bool on);
    Writer& text(const QString& text);

    /// A bold piece of text, such as the heading of a section; what follows is normal again.
    Writer& heading(const QString& text);
    /// Ten blanks, the text, a line end.
    Writer& item(const QString& text);

    /// The report, its caret sent to the very start.
    Report finish();
    /// The report as far as it came.
    Report fail(base::ErrorNumber why);

private:
    template <class Op>
    void set(std::optional<Op>& state, const Op& wanted);

    Operations operations_;
    std::optional<SelAlignment> alignment_;
    std::optional<SelFontSize> size_;
    std::optional<SelBold> bold_;
};

}  // namespace reports
