#pragma once

#include <array>

#include "responses/exam_field.h"

namespace exams {

namespace later {
using responses::calendar;
using responses::kOutside;
using responses::nothing;
using responses::numbers;
using responses::phrases;

inline constexpr auto kUterineArtery = phrases(55);
inline constexpr auto kPresentation = phrases(25);
inline constexpr auto kMovements = phrases(6);
inline constexpr auto kHeartRate = numbers(100, 200, 150);
inline constexpr auto kBiparietal = numbers(50, 100, 60);
inline constexpr auto kHead = numbers(120, 350, 175);
inline constexpr auto kOrbits = numbers(20, 35, 23);
inline constexpr auto kCerebellum = numbers(20, 50, 23);
inline constexpr auto kAbdominalDiameter = numbers(40, 110, 50);
inline constexpr auto kAbdomen = numbers(150, 380, 175);
inline constexpr auto kFemur = numbers(35, 75, 40);
inline constexpr auto kFoot = numbers(35, 70, 40);
inline constexpr auto kTibia = numbers(30, 60, 35);
inline constexpr auto kHumerus = numbers(33, 65, 38);
inline constexpr auto kNasalBone = numbers(2, 12, 8);
/// Which list it is depends on the window and its menu.
inline constexpr auto kMorphology = nothing();
/// The indexes of the arteries are fractions: the list offers whole numbers, the value is typed.
inline constexpr auto kArtery = numbers(0, 3, 1);
}  // namespace later

/// The fields of an exam of the second or third trimester, `Txt2T` by its index, in the order in which they are saved
/// and read. Heart rates are beats a minute, lengths millimetres.
inline constexpr auto kLaterFields = [] {
    using namespace later;
    return std::to_array<responses::ExamField>({
        {kOutside, u"N° Int", u"Numero", nothing(), u"LblNumInt"},
        {kOutside, u"Echographie N°", u"NUMECHO", nothing(), u"TxtNumEcho"},
        {kOutside, u"Age Gestationnel", u"AGESTA", nothing(), u"LblAgeGesta"},
        {kOutside, u"Type", u"TYPECHO", nothing(), u"TxtTypecho"},
        {kOutside, u"Nbr. de Foetus", u"NBRE", nothing(), u"TxtNbrE"},
        {kOutside, u"Appareil", u"MACHINE", nothing(), u"LblMachine"},
        {kOutside, u"en service", u"DATECIRC", nothing(), u"LblDateCirc"},
        {kOutside, u"Date de l'Examen", u"DATEXAM", nothing(), u"txtDatexam"},
        {0, u"BMI", u"BMI", nothing()},
        {1, u"Opérateur", u"OPERATEUR", phrases(1)},
        {2, u"DDR", u"DDR", calendar()},
        {3, u"DDG Théorique", u"DG", calendar()},
        {4, u"DGUS", u"DGUS", calendar()},
        {5, u"Modalité d'examen", u"MODEXAM", phrases(2)},
        {6, u"Conditions d'examen", u"CONDITIONS", phrases(3)},
        {7, u"Indication", u"INDI", phrases(7)},
        {8, u"Utérus", u"UTERUS", phrases(8)},
        {9, u"Annexes", u"ANNEXES", phrases(9)},
        {10, u"Douglas", u"DOUGLAS", phrases(10)},
        {11, u"Uterine D.", u"UTD", kUterineArtery},
        {12, u"Utérine G.", u"UTG", kUterineArtery},
        {13, u"Présentation", u"NUQUE", kPresentation},
        {14, u"M.A.", u"MA", kMovements},
        {15, u"Freq card", u"AC", kHeartRate},
        {16, u"Bip", u"Bip", kBiparietal},
        {17, u"C. Ceph", u"Cc", kHead},
        {18, u"D.I.O.", u"DIO", kOrbits},
        {19, u"Cervelet", u"CERV", kCerebellum},
        {20, u"Dat", u"Dat", kAbdominalDiameter},
        {21, u"C. Abdo", u"Ca", kAbdomen},
        {22, u"Fémur (mm)", u"Fem", kFemur},
        {23, u"Pied", u"Pied", kFoot},
        {24, u"Tibia", u"TIBIA", kTibia},
        {25, u"Humerus", u"Hum", kHumerus},
        {26, u"Os Nez", u"OSNEZ", kNasalBone},
        {27, u"Morphologie", u"MORPHO", kMorphology},
        {28, u"Art. Omb. (I. Pourcelot)", u"ARTO", kArtery},
        {29, u"Cérebr. Ant.", u"ARTC", kArtery},
        {30, u"Liq. Amnio", u"LA", phrases(12)},
        {31, u"Placenta", u"PL", phrases(13)},
        {32, u"Conclusion", u"CONCLU1", phrases(18)},
        {33, u"Présentation", u"NUQUE2", kPresentation},
        {34, u"M.A.", u"MA2", kMovements},
        {35, u"Freq card", u"AC2", kHeartRate},
        {36, u"Bip", u"Bip2", kBiparietal},
        {37, u"C. Ceph", u"Cc2", kHead},
        {38, u"D.I.O.", u"DIO2", kOrbits},
        {39, u"Cervelet", u"CERV2", kCerebellum},
        {40, u"Dat", u"Dat2", kAbdominalDiameter},
        {41, u"C. Abdo", u"CA2", kAbdomen},
        {42, u"Fémur (mm)", u"FEM2", kFemur},
        {43, u"Pied", u"Pied2", kFoot},
        {44, u"Tibia", u"TIBIA2", kTibia},
        {45, u"Humerus", u"Hum2", kHumerus},
        {46, u"Os Nez", u"OSNEZ2", kNasalBone},
        {47, u"Morphologie", u"MORPHO2", kMorphology},
        {48, u"Art. Omb. (I. Pourcelot)", u"ARTO2", kArtery},
        {49, u"Cérebr. Ant.", u"ARTC2", kArtery},
        {50, u"Présentation", u"NUQUE3", kPresentation},
        {51, u"M.A.", u"MA3", kMovements},
        {52, u"Freq card", u"AC3", kHeartRate},
        {53, u"Bip", u"Bip3", kBiparietal},
        {54, u"C. Ceph", u"Cc3", kHead},
        {55, u"D.I.O.", u"DIO3", kOrbits},
        {56, u"Cervelet", u"CERV3", kCerebellum},
        {57, u"Dat", u"Dat3", kAbdominalDiameter},
        {58, u"C. Abdo", u"CA3", kAbdomen},
        {59, u"Fémur (mm)", u"FEM3", kFemur},
        {60, u"Pied", u"Pied3", kFoot},
        {61, u"Tibia", u"TIBIA3", kTibia},
        {62, u"Humerus", u"Hum3", kHumerus},
        {63, u"Os Nez", u"OSNEZ3", kNasalBone},
        {64, u"Morphologie", u"MORPHO3", kMorphology},
        {65, u"Art. Omb. (I. Pourcelot)", u"ARTO3", kArtery},
        {66, u"Cérebr. Ant.", u"ARTC3", kArtery},
    });
}();
inline constexpr int kLastLaterField = 66;
static_assert(responses::coversEachIndexOnce(kLaterFields, 0, kLastLaterField));

// The fields that steps name.
namespace later {
/// The first field of each fetus, and how many they are in a row.
inline constexpr std::array kFirstOfFetus{13, 33, 50};
inline constexpr int kFieldsOfFetus = 17;
/// The places of a fetus's fields in that row.
inline constexpr int kPresentationPlace = 0;
inline constexpr int kMovementsPlace = 1;
inline constexpr int kHeartRatePlace = 2;
inline constexpr int kNasalBonePlace = 13;
inline constexpr int kMorphologyPlace = 14;
/// Where the walk through the fields starts again.
inline constexpr int kWalkEnd = 32;
}  // namespace later

}  // namespace exams
