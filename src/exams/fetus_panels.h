#pragma once

#include <array>

#include "forms/controls.h"

namespace exams {

/// The frames of up to three fetuses, each over the one before it, and the panel whose buttons bring one in view.
class FetusPanels {
public:
    static constexpr int kMost = 3;

    /// `fetus` is what the frames call it; `third` is the number of the third one's frame.
    FetusPanels(forms::Form& form, const QString& fetus, int third);

    forms::Frame Frame5;
    forms::Button CmdJ1, CmdJ2, CmdJ3;
    forms::Frame FrameJ1, FrameJ2, FrameJ3;

    std::array<forms::Frame*, kMost> frames() { return {&FrameJ1, &FrameJ2, &FrameJ3}; }
    std::array<forms::Button*, kMost> buttons() { return {&CmdJ1, &CmdJ2, &CmdJ3}; }

    /// Brings fetus 0, 1 or 2 alone in view.
    void showFetus(int which);
    /// Shows the frames of the first `count` fetuses, the last one on top.
    void showFirstFetuses(int count);
    /// Brings a fetus alone in view and gives the panel the colour of that fetus.
    void paintFetus(int which);
    /// Shows the panel with the buttons of two fetuses or of three.
    void offerFetuses(bool three);
};

}  // namespace exams
