#pragma once

#include <QString>
#include <optional>
#include <variant>
#include <vector>

#include "base/errors.h"
#include "forms/rich_text.h"

namespace reports {

// What a report is made of: the operations that type it into the editor, in their order. Each sets the state of the
// text inserted after it.
struct SelAlignment {
    forms::Alignment value;
    bool operator==(const SelAlignment&) const = default;
};
struct SelFontSize {
    double points;
    bool operator==(const SelFontSize&) const = default;
};
struct SelBold {
    bool value;
    bool operator==(const SelBold&) const = default;
};
struct SelText {
    QString text;
    bool operator==(const SelText&) const = default;
};
struct SelStart {
    int position;
    bool operator==(const SelStart&) const = default;
};

using Operation = std::variant<SelAlignment, SelFontSize, SelBold, SelText, SelStart>;
using Operations = std::vector<Operation>;

/// A report as operations. One that could not be composed to its end holds those up to the failure.
struct Report {
    Operations operations;
    std::optional<base::ErrorNumber> failure;
    bool operator==(const Report&) const = default;
};

/// Types a report into the editor at its caret. A report that failed is composed a second time, behind what the first
/// has left there; its failure is then thrown.
void type(const Report& report, forms::RichText& editor);

}  // namespace reports
