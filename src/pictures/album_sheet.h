#pragma once

#include <array>
#include <span>

namespace pictures {

/// The most pictures that a sheet of the album takes.
inline constexpr int kMostOnSheet = 6;

/// The most places that any sheet has.
inline constexpr int kMostPlaces = 8;

/// Where the upper left corner of a picture stands.
struct Corner {
    int x = 0;
    int y = 0;
};

/// How up to `places` pictures of one size stand on a page.
struct Arrangement {
    int places = 0;
    int width = 0;
    int height = 0;
    std::array<Corner, kMostPlaces> corners{};
};

/// On paper, in millimetres from the first point that the printer reaches.
inline constexpr auto kOnPaper = std::to_array<Arrangement>({
    {1, 155, 115, {{{25, 60}}}},
    {2, 155, 115, {{{25, 30}, {25, 152}}}},
    {4, 95, 70, {{{5, 70}, {105, 70}, {5, 155}, {105, 155}}}},
    {6, 95, 70, {{{5, 30}, {105, 30}, {5, 112}, {105, 112}, {5, 192}, {105, 192}}}},
    {8, 80, 60, {{{15, 25}, {110, 25}, {15, 87}, {110, 87}, {15, 149}, {110, 149}, {15, 211}, {110, 211}}}},
});

/// On the small page on screen, in twips from its upper left corner.
inline constexpr auto kOnScreen = std::to_array<Arrangement>({
    {1, 2295, 1935, {{{580, 960}}}},
    {2, 1575, 1335, {{{960, 720}, {960, 2520}}}},
    {4, 1455, 1215, {{{240, 840}, {1800, 840}, {240, 2400}, {1800, 2400}}}},
    {6, 1455, 1095, {{{120, 480}, {1800, 480}, {120, 1800}, {1800, 1800}, {120, 3120}, {1800, 3120}}}},
});

/// The small page itself, in twips.
inline constexpr int kPreviewWidth = 3495;
inline constexpr int kPreviewHeight = 4695;

/// The arrangement for so many pictures: the one with the fewest places that are enough.
constexpr const Arrangement& arrangementFor(std::span<const Arrangement> all, int pictures) {
    std::size_t at = 0;
    while (all[at].places < pictures) {
        ++at;
    }
    return all[at];
}

}  // namespace pictures
