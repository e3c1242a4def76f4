#pragma once

#include <array>

#include "responses/exam_field.h"

namespace exams {

namespace first_trimester {
using responses::calendar;
using responses::kOutside;
using responses::nothing;
using responses::numbers;
using responses::phrases;
using responses::tenths;

inline constexpr auto kMovements = phrases(6);
inline constexpr auto kHeartRate = numbers(130, 200, 170);
inline constexpr auto kCrownRump = numbers(4, 100, 60);
inline constexpr auto kBiparietal = numbers(13, 30, 24);
inline constexpr auto kFemur = numbers(5, 15, 10);
inline constexpr auto kNuchal = tenths(6, 50, 20);
inline constexpr auto kNasalBone = phrases(45);
inline constexpr auto kMorphology = phrases(11);
}  // namespace first_trimester

/// The fields of a first-trimester exam, `Txt1Ter` by its index, in the order in which they are saved and read. Heart
/// rates are beats a minute, lengths millimetres. The abdominal circumferences stand on the writing window alone.
inline constexpr auto kFirstTrimesterFields = [] {
    using namespace first_trimester;
    return std::to_array<responses::ExamField>({
        {kOutside, u"Appareil", u"MACHINE", nothing(), u"LblMachine"},
        {kOutside, u"en service", u"DATECIRC", nothing(), u"LblDateCirc"},
        {kOutside, u"N° Int", u"Numero", nothing(), u"LblNumInt"},
        {kOutside, u"Type", u"TYPECHO", nothing(), u"TxtTypecho"},
        {kOutside, u"Echographie N°", u"NUMECHO", nothing(), u"TxtNumEcho"},
        {kOutside, u"Age Gestationnel", u"AGESTA", nothing(), u"LblAgeGesta"},
        {kOutside, u"Date de l'Examen", u"DATEXAM", nothing(), u"TxtDate"},
        {0, u"IMC", u"BMI", nothing()},
        {1, u"Opérateur", u"OPERATEUR", phrases(1)},
        {2, u"DDR", u"DDR", calendar()},
        {3, u"DDG Théorique", u"DG", calendar()},
        {4, u"DDG US", u"DGUS", calendar()},
        {5, u"Modalité d'examen", u"MODEXAM", phrases(2)},
        {6, u"Conditions d'examen", u"CONDITIONS", phrases(3)},
        {7, u"Indication", u"INDI", phrases(7)},
        {8, u"Utérus", u"UTERUS", phrases(8)},
        {9, u"Annexes", u"ANNEXES", phrases(9)},
        {10, u"Douglas", u"DOUGLAS", phrases(10)},
        {11, u"Nombre", u"NBRS", numbers(0, 3, 1)},
        {12, u"Situation", u"SITUATION", phrases(4)},
        {13, u"Dimensions", u"Dim", numbers(6, 50, 30)},
        {14, u"Aspect", u"ASPECT", phrases(5)},
        {15, u"Nbr. d'Embryons", u"NBRE", numbers(0, 3, 1)},
        {16, u"M.A.", u"MA", kMovements},
        {17, u"Activ. Cardiaque", u"AC", kHeartRate},
        {18, u"LCC (mm)", u"LCC", kCrownRump},
        {19, u"BIP (mm)", u"Bip", kBiparietal},
        {20, u"Fémur (mm)", u"Fem", kFemur},
        {21, u"Clarté Nucale", u"NUQUE", kNuchal},
        {22, u"OPN", u"OSNEZ", kNasalBone},
        {23, u"Morphologie", u"MORPHO", kMorphology},
        {kOutside, u"C.A. (mm)", u"Ca", nothing(), u"TxtCa1"},
        {24, u"Liquide Amnio", u"LA", phrases(12)},
        {25, u"Trophoblaste  Placenta", u"PL", phrases(13)},
        {26, u"Conclusion", u"CONCLU1", phrases(16)},
        {27, u"M.A.", u"MA2", kMovements},
        {28, u"Activ. Cardiaque", u"AC2", kHeartRate},
        {29, u"LCC (mm)", u"LCC2", kCrownRump},
        {30, u"BIP (mm)", u"Bip2", kBiparietal},
        {31, u"Fémur (mm)", u"FEM2", kFemur},
        {32, u"Clarté Nucale", u"NUQUE2", kNuchal},
        {33, u"OPN", u"OSNEZ2", kNasalBone},
        {34, u"Morphologie", u"MORPHO2", kMorphology},
        {kOutside, u"C.A. (mm)", u"CA2", nothing(), u"TxtCa2"},
        {35, u"M.A.", u"MA3", kMovements},
        {36, u"Activ. Cardiaque", u"AC3", kHeartRate},
        {37, u"LCC (mm)", u"LCC3", kCrownRump},
        {38, u"BIP (mm)", u"Bip3", kBiparietal},
        {39, u"Fémur (mm)", u"FEM3", kFemur},
        {40, u"Clarté Nucale", u"NUQUE3", kNuchal},
        {41, u"OPN", u"OSNEZ3", kNasalBone},
        {42, u"Morphologie", u"MORPHO3", kMorphology},
        {kOutside, u"C.A. (mm)", u"CA3", nothing(), u"TxtCa3"},
    });
}();
inline constexpr int kLastFirstTrimesterField = 42;
static_assert(responses::coversEachIndexOnce(kFirstTrimesterFields, 0, kLastFirstTrimesterField));

// The fields that steps name.
namespace first_trimester {
inline constexpr int kSacs = 11;
inline constexpr int kEmbryos = 15;
inline constexpr int kCrownRumpLength = 18;
/// The first field of each embryo, and how many they are in a row.
inline constexpr std::array kFirstOfEmbryo{16, 27, 35};
inline constexpr int kFieldsOfEmbryo = 8;
/// Where the walk through the fields starts again.
inline constexpr int kWalkEnd = 26;
}  // namespace first_trimester

}  // namespace exams
