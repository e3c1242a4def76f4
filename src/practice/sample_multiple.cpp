#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr QStringView kTwoFluids = u"Quantité normale dans les deux poches.";
constexpr QStringView kTwoPlacentas = u"Deux masses placentaires distinctes, normalement insérées.";
constexpr QStringView kThreeFluids = u"Quantité normale dans les trois poches.";
constexpr QStringView kThreePlacentas = u"Trois masses placentaires distinctes.";
constexpr QStringView kOnePlacenta = u"Masse placentaire unique, postérieure.";
constexpr QStringView kAgain = u"Morphologie revue, sans modification depuis l'examen précédent.";
constexpr QStringView kTwinGrowth = u"Surveillance d'une grossesse gémellaire monochoriale.";

// As for one fetus.
// clang-format off
constexpr LaterExam kExams[] = {
    {{Story::TwinsApart, 2, 2, {8, 4, 2002}, 73}, {.LA = kTwoFluids, .PL = kTwoPlacentas},
     {{{54, 196, 24, 23, 53, 173, 38, 39, 33, 35, 7, 136}, u"Céphalique, à droite.", u"0,70", u"0,81"},
      {{51, 190, 22, 22, 50, 166, 37, 38, 32, 34, 7, 140}, u"Siège complet, à gauche.", u"0,71", u"0,81"}},
     u"Deux foetus de croissance comparable, sans anomalie décelable ce jour."},
    {{Story::TwinsApart, 3, 0, {6, 5, 2002}, 77},
     {.INDI = u"Contrôle de la croissance foetale.", .LA = kTwoFluids, .PL = kTwoPlacentas},
     {{{65, 239, 29, 28, 64, 216, 49, 49, 43, 43, 8, 142}, u"Céphalique.", u"0,68", u"0,80", {}, kAgain},
      {{63, 230, 28, 27, 62, 208, 47, 47, 41, 41, 8, 144}, u"Siège complet.", u"0,69", u"0,80", {}, kAgain}},
     u"Croissance harmonieuse des deux jumeaux. Col mesuré à 34 mm."},
    {{Story::TwinsApart, 4, 3, {10, 6, 2002}, 81}, {.LA = kTwoFluids, .PL = kTwoPlacentas},
     {{{79, 280, 35, 38, 79, 264, 59, 62, 51, 53, 10, 146}, u"Céphalique, dos à droite.", u"0,62", u"0,79"},
      {{76, 270, 33, 36, 76, 256, 57, 59, 50, 51, 10, 148}, u"Céphalique, dos à gauche.", u"0,63", u"0,79"}},
     u"Croissance harmonieuse des deux jumeaux, tous deux en présentation céphalique."},

    {{Story::TwinsUnequal, 2, 0, {28, 1, 2002}, 62}, {.INDI = kTwinGrowth, .LA = kTwoFluids, .PL = kOnePlacenta},
     {{{41, 148, 18, 17, 38, 129, 26, 27, 23, 26, 6, 148}, u"Variable à ce terme."},
      {{40, 145, 18, 16, 36, 122, 25, 25, 22, 25, 6, 150}, u"Variable à ce terme."}},
     u"Deux foetus de taille voisine, liquide équilibré. Contrôle dans deux semaines."},
    {{Story::TwinsUnequal, 3, 2, {26, 2, 2002}, 66}, {.INDI = kTwinGrowth, .LA = kTwoFluids, .PL = kOnePlacenta},
     {{{54, 195, 24, 23, 53, 174, 38, 39, 33, 35, 7, 142}, u"Céphalique.", u"0,70", u"0,81"},
      {{50, 188, 22, 22, 48, 161, 36, 37, 31, 33, 7, 144}, u"Siège complet.", u"0,72", u"0,81"}},
     u"Pas d'anomalie morphologique. Le second jumeau est plus petit, dans les limites de la normale."},
    {{Story::TwinsUnequal, 4, 0, {27, 3, 2002}, 69},
     {.INDI = kTwinGrowth, .LA = u"Normal en J1, un peu diminué en J2.", .PL = kOnePlacenta},
     {{{68, 245, 30, 29, 67, 224, 51, 52, 44, 45, 8, 138}, u"Céphalique.", u"0,67", u"0,80", {}, kAgain},
      {{62, 225, 27, 26, 57, 193, 45, 46, 39, 40, 8, 140}, u"Siège complet.", u"0,74", u"0,77", {}, kAgain}},
     u"Discordance de croissance : périmètre abdominal de J2 entre le 3ème et le 10ème percentile."},
    {{Story::TwinsUnequal, 5, 0, {9, 4, 2002}, 71},
     {.INDI = kTwinGrowth, .LA = u"Un peu augmenté en J1, diminué en J2.", .PL = kOnePlacenta},
     {{{74, 263, 33, 33, 74, 246, 55, 58, 48, 49, 9, 142}, u"Céphalique.", u"0,65", u"0,79", {}, kAgain},
      {{67, 241, 29, 30, 59, 203, 47, 49, 41, 42, 9, 146}, u"Siège complet.", u"0,79", u"0,71", {}, kAgain}},
     u"Discordance aggravée : périmètre abdominal de J2 inférieur au 3ème percentile.\r\n"
     u"Avis du centre de diagnostic prénatal demandé ce jour."},
    {{Story::TwinsUnequal, 6, 3, {29, 4, 2002}, 74},
     {.INDI = kTwinGrowth, .LA = u"Excès modéré en J1, diminué en J2.", .PL = kOnePlacenta},
     {{{81, 287, 36, 39, 83, 275, 61, 65, 53, 55, 10, 138}, u"Céphalique, dos à gauche.", u"0,61", u"0,78"},
      {{74, 260, 33, 35, 66, 223, 53, 56, 46, 48, 10, 142}, u"Siège complet.", u"0,82", u"0,65"}},
     u"Retard de croissance sévère de J2. Transfert en maternité de niveau III organisé ce jour."},

    {{Story::Triplets, 2, 2, {18, 3, 2002}, 79},
     {.CONDITIONS = u"Moyennes. Examen long.", .LA = kThreeFluids, .PL = kThreePlacentas},
     {{{53, 197, 23, 23, 51, 172, 38, 38, 33, 35, 7, 136}, u"Céphalique.", u"0,70", u"0,81"},
      {{51, 188, 22, 22, 50, 165, 36, 37, 31, 34, 7, 144}, u"Siège complet.", u"0,71", u"0,81"},
      {{52, 191, 23, 22, 49, 166, 37, 36, 32, 33, 7, 140}, u"Transverse, dos en haut.", u"0,70", u"0,82"}},
     u"Trois foetus de croissance comparable, sans anomalie décelable ce jour."},
    {{Story::Triplets, 3, 0, {22, 4, 2002}, 84},
     {.CONDITIONS = u"Moyennes.", .INDI = u"Contrôle de la croissance foetale.", .LA = kThreeFluids, .PL = kThreePlacentas},
     {{{68, 247, 30, 30, 67, 223, 51, 53, 44, 45, 9, 138}, u"Céphalique.", u"0,67", u"0,80", {}, kAgain},
      {{66, 240, 29, 29, 64, 217, 49, 51, 43, 43, 9, 146}, u"Céphalique.", u"0,68", u"0,80", {}, kAgain},
      {{66, 242, 29, 28, 64, 216, 49, 50, 43, 44, 9, 142}, u"Siège complet.", u"0,68", u"0,79", {}, kAgain}},
     u"Croissance harmonieuse des trois foetus. Col mesuré à 28 mm : repos."},
    {{Story::Triplets, 4, 3, {21, 5, 2002}, 89},
     {.CONDITIONS = u"Difficiles. Examen long.", .LA = kThreeFluids, .PL = kThreePlacentas},
     {{{77, 272, 34, 37, 76, 258, 58, 59, 50, 51, 10, 136}, u"Céphalique.", u"0,63", u"0,79"},
      {{76, 266, 33, 36, 75, 250, 57, 58, 50, 50, 10, 150}, u"Céphalique.", u"0,63", u"0,79"},
      {{75, 264, 33, 36, 71, 238, 56, 57, 49, 50, 10, 144}, u"Siège décomplété.", u"0,68", u"0,76"}},
     u"Ralentissement de croissance du troisième foetus, périmètre abdominal entre le 3ème et le 10ème percentile."},
};
// clang-format on

}  // namespace

std::span<const LaterExam> multipleExams() {
    return kExams;
}

}  // namespace practice
