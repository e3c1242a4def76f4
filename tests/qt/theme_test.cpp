#include "qt/theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QPalette>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>
#include <cmath>

#include "heap.h"

namespace qt {
namespace {

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
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

TEST(Theme, GivesWidgetsOnePalette) {
    const QPushButton one;
    const QPushButton other;
    EXPECT_EQ(one.palette().cacheKey(), QApplication::palette().cacheKey());
    EXPECT_EQ(other.palette().cacheKey(), one.palette().cacheKey());
}

/// Draws a button on a ground of its own so many times, each time a new one.
template <class Button>
void drawAnew(int times) {
    for (int i = 0; i < times; ++i) {
        Button button;
        QMenu menu;
        QPalette palette = button.palette();
        palette.setColor(QPalette::Window, Qt::yellow);
        button.setPalette(palette);
        button.setMenu(&menu);
        button.grab();
    }
}

TEST(Theme, KeepsNothingOfButtonsOnAGroundOfTheirOwn) {
    if (bytesInUse() == 0) {
        GTEST_SKIP() << "no figures of this heap";
    }
    drawAnew<QPushButton>(50);
    drawAnew<QToolButton>(50);
    const std::size_t before = bytesInUse();
    constexpr int kTimes = 500;
    drawAnew<QPushButton>(kTimes);
    drawAnew<QToolButton>(kTimes);
    // The name of a picture is some 200 bytes.
    EXPECT_LT(bytesInUse(), before + kTimes * std::size_t{100});
}

}  // namespace
}  // namespace qt
