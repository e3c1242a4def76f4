#include "reports/operations.h"

namespace reports {
namespace {

/// Carries one operation out on the editor.
struct Typing {
    forms::RichText& editor;

    void operator()(const SelAlignment& operation) const { editor.SelAlignment(operation.value); }
    void operator()(const SelFontSize& operation) const { editor.SelFontSize(operation.points); }
    void operator()(const SelBold& operation) const { editor.SelBold(operation.value); }
    void operator()(const SelText& operation) const { editor.SelText(operation.text); }
    void operator()(const SelStart& operation) const { editor.SelStart(operation.position); }
};

void typeAll(const Operations& operations, forms::RichText& editor) {
    for (const Operation& operation : operations) {
        std::visit(Typing{editor}, operation);
    }
}

}  // namespace

void type(const Report& report, forms::RichText& editor) {
    const bool fresh = editor.document().isEmpty();
    editor.together([&] {
        typeAll(report.operations, editor);
        if (report.failure) {
            typeAll(report.operations, editor);
            throw base::RuntimeError(*report.failure);
        }
    });
    if (fresh) {
        // Nobody wants to undo a report into an empty page.
        editor.document().clearUndoRedoStacks();
    }
}

}  // namespace reports
