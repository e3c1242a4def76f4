#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr Pregnancy kPregnancies[] = {
    {Story::Normal, 2, {22, 10, 2001}, {6, 11, 2001}, 168},
    {Story::SmallForDates, 3, {10, 9, 2001}, {24, 9, 2001}, 158},
    {Story::Breech, 4, {27, 8, 2001}, {12, 9, 2001}, 163},
    {Story::TwinsApart, 5, {5, 11, 2001}, {18, 11, 2001}, 170},
    {Story::TwinsUnequal, 6, {24, 9, 2001}, {8, 10, 2001}, 166},
    {Story::Triplets, 7, {15, 10, 2001}, {27, 10, 2001}, 172},
    {Story::Large, 8, {17, 9, 2001}, {4, 10, 2001}, 160},
    {Story::Redated, 9, {3, 12, 2001}, {23, 12, 2001}, 164},
    {Story::SeenEarly, 10, {18, 2, 2002}, {6, 3, 2002}, 167},
    {Story::Stopped, 11, {18, 3, 2002}, {}, 171},
    {Story::DateUnknown, 12, {}, {28, 1, 2002}, 162},
    {Story::NoUltrasoundStart, 13, {17, 12, 2001}, {}, 174},
    {Story::FirstChild, 14, {19, 6, 2000}, {3, 7, 2000}, 165},
    {Story::SecondChild, 14, {14, 1, 2002}, {30, 1, 2002}, 165},
    {Story::LowPlacenta, 15, {3, 9, 2001}, {16, 9, 2001}, 161},
    {Story::LittleFluid, 16, {10, 9, 2001}, {24, 9, 2001}, 169},
    {Story::PoorView, 17, {26, 11, 2001}, {10, 12, 2001}, 159},
    {Story::ExamDeleted, 18, {8, 10, 2001}, {23, 10, 2001}, 173},
    {Story::RenalPelvis, 19, {1, 10, 2001}, {13, 10, 2001}, 166},
    {Story::LateComer, 20, {29, 10, 2001}, {12, 11, 2001}, 155},
    {Story::ThickNeck, 21, {4, 3, 2002}, {18, 3, 2002}, 167},
    {Story::ShortCervix, 22, {12, 11, 2001}, {27, 11, 2001}, 164},
    {Story::NewTwins, 23, {11, 3, 2002}, {26, 3, 2002}, 169},
    {Story::TwiceInOneDay, 24, {25, 3, 2002}, {10, 4, 2002}, 170},
};

}  // namespace

std::span<const Pregnancy> samplePregnancies() {
    return kPregnancies;
}

}  // namespace practice
