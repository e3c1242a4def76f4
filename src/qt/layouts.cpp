#include "qt/layouts.h"

#include <map>

#include "qt/layouts/album_layout.h"
#include "qt/layouts/biometry_layouts.h"
#include "qt/layouts/dossier_layouts.h"
#include "qt/layouts/exam_layouts.h"
#include "qt/layouts/gynaecology_layouts.h"
#include "qt/layouts/pictures_layouts.h"
#include "qt/layouts/reports_layouts.h"
#include "qt/layouts/responses_layouts.h"
#include "qt/layouts/sheet_layouts.h"
#include "qt/layouts/shell_layouts.h"

namespace qt {
namespace {

template <class F>
std::pair<const QString, Layout> entry(void (*layOut)(F&, FormWindow&)) {
    return {F::kName.toString(),
            [layOut](forms::Form& form, FormWindow& window) { layOut(static_cast<F&>(form), window); }};
}

}  // namespace

Layout layoutOf(const QString& form) {
    // One window a line: two that are added at once don't meet.
    // clang-format off
    static const std::map<QString, Layout> layouts{
        entry(layOutForm1),
        entry(layOutForm2),
        entry(layOutForm3),
        entry(layOutForm4),
        entry(layOutForm5),
        entry(layOutForm6),
        entry(layOutForm7),
        entry(layOutForm8),
        entry(layOutForm9),
        entry(layOutForm10),
        entry(layOutForm11),
        entry(layOutForm12),
        entry(layOutForm13),
        entry(layOutForm14),
        entry(layOutForm15),
        entry(layOutForm16),
        entry(layOutForm17),
        entry(layOutForm18),
        entry(layOutForm20),
        entry(layOutForm19),
        entry(layOutForm21),
        entry(layOutForm22),
        entry(layOutFrmCpr),
        entry(layOutRicheT),
    };
    // clang-format on
    const auto it = layouts.find(form);
    return it == layouts.end() ? Layout() : it->second;
}

}  // namespace qt
