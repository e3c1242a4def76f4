#pragma once

#include "forms/controls.h"

namespace gyneco {

/// The two pages of a gynaecology window, of which one is in view: the title, the frame that both have, those of the
/// pelvic exam, and that of the monitoring of ovulation.
class Pages {
public:
    /// The pelvic page is in view.
    explicit Pages(forms::Form& form);

    forms::Label Label1;
    forms::Frame Frame2, Frame3, Frame4, Frame5, Frame6, Frame7, Frame8;

    // The title and its colour.
    void namePelvic();
    void nameMonitoring();
    /// Paints the frame that both pages have, as the title is painted.
    void paintCommonFrame();
    /// The frames of the pelvic exam.
    void setPelvicVisible(bool visible);
};

}  // namespace gyneco
