#include "exams/fetus_panels.h"

namespace exams {
namespace {

// The colours by which the windows tell the fetuses apart.
constexpr std::array kColors{forms::fromBlueGreenRed(0xFFFFC0), forms::fromBlueGreenRed(0xFFFFFF),
                             forms::fromBlueGreenRed(0xC0C0FF)};

}  // namespace

FetusPanels::FetusPanels(forms::Form& form, const QString& fetus, int third)
    : Frame5(form, "Frame5", "G Multiple", 3),
      CmdJ1(form, "CmdJ1", "J1"),
      CmdJ2(form, "CmdJ2", "J2"),
      CmdJ3(form, "CmdJ3", "J3"),
      FrameJ1(form, "FrameJ1", fetus, 0),
      FrameJ2(form, "FrameJ2", fetus + QStringLiteral(" N°2"), 1),
      FrameJ3(form, "FrameJ3", fetus + QStringLiteral(" N°3"), third) {
    Frame5.holds(CmdJ1, CmdJ2, CmdJ3);
    FrameJ2.layOver(FrameJ1);
    FrameJ3.layOver(FrameJ1);
    FrameJ3.layOver(FrameJ2);
    Frame5.hide();
    showFetus(0);
}

void FetusPanels::showFetus(int which) {
    FrameJ1.setVisible(which == 0);
    FrameJ2.setVisible(which == 1);
    FrameJ3.setVisible(which == 2);
}

void FetusPanels::showFirstFetuses(int count) {
    FrameJ1.setVisible(count >= 1);
    FrameJ2.setVisible(count >= 2);
    FrameJ3.setVisible(count >= 3);
}

void FetusPanels::paintFetus(int which) {
    showFetus(which);
    Frame5.setBack(kColors[static_cast<std::size_t>(which)]);
}

void FetusPanels::offerFetuses(bool three) {
    Frame5.show();
    CmdJ1.show();
    CmdJ2.show();
    CmdJ3.setVisible(three);
}

}  // namespace exams
