#pragma once

#include <QImage>
#include <QString>
#include <array>
#include <cstddef>
#include <memory>
#include <span>

#include "ports/printer.h"

namespace pictures {

/// Where a picture stands on a sheet, in millimetres from the first point that the printer reaches.
struct SheetPlace {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool operator==(const SheetPlace&) const = default;
};

/// The places of a number of pictures, left then right, top to bottom. Pictures are stretched to them.
template <std::size_t N>
constexpr std::array<SheetPlace, N> sheetPlaces(double width, double height,
                                                const std::array<std::pair<double, double>, N>& corners) {
    std::array<SheetPlace, N> all{};
    for (std::size_t i = 0; i < N; ++i) {
        all[i] = {corners[i].first, corners[i].second, width, height};
    }
    return all;
}

inline constexpr auto kTwoPlaces = sheetPlaces<2>(155, 115, {{{25, 30}, {25, 152}}});
inline constexpr auto kFourPlaces = sheetPlaces<4>(95, 70, {{{5, 70}, {105, 70}, {5, 155}, {105, 155}}});
inline constexpr auto kSixPlaces =
    sheetPlaces<6>(95, 70, {{{5, 30}, {105, 30}, {5, 112}, {105, 112}, {5, 192}, {105, 192}}});
inline constexpr auto kEightPlaces =
    sheetPlaces<8>(80, 60, {{{15, 25}, {110, 25}, {15, 87}, {110, 87}, {15, 149}, {110, 149}, {15, 211}, {110, 211}}});

/// A printed page of pictures with a heading. Letting go of it ends the document.
class Sheet {
public:
    /// Opens a document. Throws DeviceError if that fails.
    Sheet(ports::Printer& printer, const QString& title);
    ~Sheet();
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    /// How the lines from here on are written; the first ones are of 10 points and not bold.
    void setSize(double points) { points_ = points; }
    void setBold(bool bold) { bold_ = bold; }
    /// Where the next line begins, in millimetres.
    void setTop(double millimetres);
    /// Writes a line at the left edge; the next one begins below it. What doesn't fit on the paper is lost.
    void line(const QString& text = {});
    /// Draws a picture, stretched to its place.
    void draw(const QImage& picture, const SheetPlace& place);
    /// Draws pictures into as many places, in their order; it ends with the shorter of the two.
    void draw(std::span<const QImage> pictures, std::span<const SheetPlace> places);

private:
    std::unique_ptr<ports::PrintJob> job_;
    double points_;
    bool bold_ = false;
    double top_ = 0;
};

/// The last line of each sheet, which has its own place; the blanks carry its second word off the paper.
QString footer();
inline constexpr double kFooterTop = 275;
/// The size of what is written on a sheet, in points.
inline constexpr double kSheetText = 20;

}  // namespace pictures
