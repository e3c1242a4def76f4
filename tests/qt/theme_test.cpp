#include "qt/theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace qt {
namespace {

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& text, const QColor& ground) {
    const auto [dark, light] = std::minmax({luminance(text), luminance(ground)});
    return (light + 0.05) / (dark + 0.05);
}

/// The application in one of its palettes, and back.
class Palettes : public ::testing::TestWithParam<const char*> {
protected:
    Palettes() {
        qputenv("VERANOX_PALETTE", GetParam());
        theme::apply(*qApp);
    }
    ~Palettes() override {
        qunsetenv("VERANOX_PALETTE");
        QApplication::setPalette(before_);
    }
    const QPalette before_ = QApplication::palette();
};

TEST_P(Palettes, LetCaptionsAndHintsBeReadByWeakEyes) {
    const QPalette palette = QApplication::palette();
    const QColor caption = palette.color(QPalette::PlaceholderText);
    EXPECT_EQ(caption.alpha(), 255);
    for (const auto ground : {QPalette::Base, QPalette::Window}) {
        EXPECT_GE(contrast(caption, palette.color(ground)), 4.5);
        EXPECT_GT(contrast(palette.color(QPalette::Text), palette.color(ground)),
                  contrast(caption, palette.color(ground)) + 2);
    }
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Palettes, ::testing::Values("claire", "sombre"));

}  // namespace
}  // namespace qt
