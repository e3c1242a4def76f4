#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr Words kSecond{};
constexpr Words kThird{.ANNEXES = u"Annexes non visualisées en raison du terme.",
                       .DOUGLAS = u"Non accessible à ce terme."};
constexpr QStringView kGood = u"Examen sans anomalie décelable ce jour. Croissance harmonieuse.";
constexpr QStringView kNotch = u"Index de résistance à 0,71 avec incisure persistante.";
constexpr QStringView kFlow = u"Index de résistance à 0,52, pas d'incisure protodiastolique.";
constexpr QStringView kAgain = u"Morphologie revue, sans modification depuis l'examen précédent.";

// Visit; words; fetus (BIP, head circumference, inter-orbital, cerebellum, abdominal transverse, abdominal
// circumference, femur, foot, tibia, humerus, nose, heart; presentation, Doppler, remark or morphology); finding.
// clang-format off
constexpr LaterExam kExams[] = {
    {{Story::Normal, 2, 2, {28, 3, 2002}, 65}, {.UTD = kFlow, .UTG = kFlow},
     {{{53, 197, 23, 23, 53, 174, 38, 38, 33, 35, 7, 152}, u"Variable à ce terme.", u"0,70", u"0,81"}}, kGood},
    {{Story::Normal, 3, 3, {5, 6, 2002}, 70}, kThird,
     {{{82, 285, 36, 40, 82, 273, 61, 64, 53, 56, 10, 136}, u"Céphalique, dos à gauche.", u"0,61", u"0,80"}},
     u"Croissance harmonieuse. Biométrie au 50ème percentile."},

    {{Story::SmallForDates, 2, 2, {12, 2, 2002}, 52}, {.UTD = kNotch, .UTG = kFlow},
     {{{53, 196, 23, 23, 52, 167, 38, 39, 33, 35, 7, 148}, u"Variable à ce terme.", u"0,71", u"0,82"}},
     u"Examen sans anomalie décelable ce jour. Incisure utérine droite : contrôle de la croissance à 26 semaines."},
    {{Story::SmallForDates, 3, 0, {14, 3, 2002}, 54},
     {.INDI = u"Contrôle de la croissance foetale.", .UTD = kNotch, .UTG = kFlow},
     {{{64, 236, 28, 28, 61, 202, 47, 47, 41, 42, 8, 144}, u"Céphalique.", u"0,72", u"0,80", {}, kAgain}},
     u"Périmètre abdominal dans la partie basse de la normale. Contrôle dans trois semaines."},
    {{Story::SmallForDates, 4, 0, {2, 4, 2002}, 54},
     {.INDI = u"Contrôle de la croissance foetale.", .UTD = kNotch, .UTG = kNotch},
     {{{71, 255, 31, 33, 65, 220, 52, 53, 45, 47, 9, 142}, u"Céphalique.", u"0,75", u"0,74", {}, kAgain}},
     u"Infléchissement de la croissance abdominale, entre le 3ème et le 10ème percentile. Repos, contrôle à 32 semaines."},
    {{Story::SmallForDates, 5, 3, {23, 4, 2002}, 55},
     {.INDI = u"Contrôle de la croissance foetale.", .LA = u"Diminué.", .UTD = kNotch, .UTG = kNotch},
     {{{78, 272, 34, 38, 71, 237, 56, 60, 48, 52, 10, 150}, u"Céphalique, dos à droite.", u"0,79", u"0,68"}},
     u"Retard de croissance : périmètre abdominal inférieur au 3ème percentile.\r\n"
     u"Avis du centre de diagnostic prénatal demandé ce jour."},
    {{Story::SmallForDates, 6, 0, {10, 5, 2002}, 55},
     {.INDI = u"Contrôle du Doppler foetal.", .LA = u"Diminué.", .UTD = kNotch, .UTG = kNotch},
     {{{82, 286, 36, 42, 74, 252, 60, 64, 52, 56, 11, 142}, u"Céphalique, dos à droite.", u"0,81", u"0,63", {}, kAgain}},
     u"Aggravation du retard de croissance, redistribution cérébrale au Doppler. Hospitalisation demandée."},

    {{Story::Breech, 2, 2, {4, 2, 2002}, 61}, {.doctor = 2, .PL = u"Fundique."},
     {{{57, 215, 25, 25, 58, 192, 42, 44, 37, 38, 7, 144}, u"Siège complet.", u"0,69", u"0,80"}}, kGood},
    {{Story::Breech, 3, 3, {15, 4, 2002}, 66}, {.PL = u"Fundique."},
     {{{85, 298, 37, 43, 88, 287, 65, 69, 57, 59, 11, 150}, u"Siège décomplété.", u"0,60", u"0,78"}},
     u"Croissance harmonieuse. Présentation du siège.\r\nContrôle à 36 semaines d'aménorrhée."},
    {{Story::Breech, 4, 0, {10, 5, 2002}, 68}, {.INDI = u"Contrôle de la présentation.", .PL = u"Fundique."},
     {{{88, 311, 38, 46, 93, 309, 69, 73, 60, 61, 12, 146}, u"Siège décomplété.", u"0,57", u"0,76", {}, kAgain}},
     u"Siège persistant, tête modérément fléchie. Confrontation pelvi-foetale à prévoir."},

    {{Story::Large, 2, 2, {25, 2, 2002}, 82}, {.CONDITIONS = u"Moyennes. Paroi épaisse."},
     {{{59, 214, 26, 25, 57, 196, 43, 44, 37, 39, 7, 144}, u"Variable à ce terme.", u"0,69", u"0,80"}}, kGood},
    {{Story::Large, 3, 3, {6, 5, 2002}, 88}, {.INDI = u"Diabète gestationnel.", .LA = u"Excès modéré de liquide."},
     {{{86, 306, 38, 43, 96, 317, 65, 72, 57, 60, 11, 142}, u"Céphalique, dos à gauche.", u"0,60", u"0,77"}},
     u"Foetus de grande taille pour le terme, périmètre abdominal supérieur au 97ème percentile."},
    {{Story::Large, 4, 0, {31, 5, 2002}, 90},
     {.INDI = u"Diabète gestationnel. Hauteur utérine excessive pour le terme.", .LA = u"Excès modéré de liquide."},
     {{{92, 324, 40, 47, 109, 347, 71, 79, 62, 63, 12, 138}, u"Céphalique, dos à gauche.", u"0,56", u"0,74", {}, kAgain}},
     u"Macrosomie confirmée. Mode d'accouchement à discuter avec la maternité."},

    {{Story::Redated, 2, 2, {17, 5, 2002}, 59}, kSecond,
     {{{57, 210, 25, 24, 54, 184, 41, 43, 36, 37, 7, 148}, u"Variable à ce terme.", u"0,69", u"0,80"}},
     u"Examen sans anomalie décelable ce jour. Croissance concordante avec la datation échographique."},
    {{Story::DateUnknown, 2, 2, {12, 6, 2002}, 67}, kSecond,
     {{{51, 185, 22, 21, 48, 163, 35, 36, 30, 33, 7, 146}, u"Variable à ce terme.", u"0,71", u"0,82"}}, kGood},
    {{Story::NoUltrasoundStart, 1, 2, {23, 5, 2002}, 70}, {.INDI = u"Premier examen dans le cabinet."},
     {{{51, 190, 22, 22, 50, 168, 37, 38, 32, 34, 7, 140}, u"Siège complet.", u"0,70", u"0,81"}},
     u"Biométrie concordante avec le terme théorique. Prochain examen à 32 semaines d'aménorrhée."},

    {{Story::FirstChild, 2, 2, {22, 11, 2000}, 60}, kSecond,
     {{{53, 195, 23, 23, 52, 172, 38, 39, 33, 35, 7, 148}, u"Céphalique.", u"0,70", u"0,81"}}, kGood},
    {{Story::FirstChild, 3, 3, {29, 1, 2001}, 66}, kThird,
     {{{78, 280, 34, 39, 78, 265, 60, 63, 52, 53, 10, 150}, u"Céphalique, dos à gauche.", u"0,62", u"0,79"}}, kGood},

    {{Story::LowPlacenta, 2, 2, {4, 2, 2002}, 66},
     {.UTERUS = u"Utérus cicatriciel, segment inférieur régulier.",
      .PL = u"Postérieur, recouvrant l'orifice interne du col."},
     {{{52, 191, 23, 22, 50, 168, 37, 38, 32, 34, 7, 142}, u"Transverse, dos en haut.", u"0,71", u"0,82"}},
     u"Placenta bas inséré.\r\nRepos conseillé, contrôle à 32 semaines d'aménorrhée."},
    {{Story::LowPlacenta, 3, 3, {18, 4, 2002}, 71},
     {.INDI = u"Contrôle de l'insertion placentaire.", .UTERUS = u"Utérus cicatriciel, segment inférieur régulier.",
      .PL = u"Postérieur, bord inférieur à 12 mm de l'orifice interne du col."},
     {{{83, 293, 37, 41, 85, 282, 63, 68, 55, 57, 11, 150}, u"Céphalique.", u"0,60", u"0,78"}},
     u"Croissance harmonieuse. Placenta encore bas inséré, contrôle à 35 semaines."},
    {{Story::LowPlacenta, 4, 0, {6, 5, 2002}, 72},
     {.INDI = u"Contrôle de l'insertion placentaire.", .UTERUS = u"Utérus cicatriciel, segment inférieur régulier.",
      .PL = u"Postérieur, bord inférieur à 34 mm de l'orifice interne du col."},
     {{{87, 304, 38, 44, 90, 301, 67, 71, 58, 60, 11, 144}, u"Céphalique, dos à droite.", u"0,58", u"0,77", {}, kAgain}},
     u"Placenta normalement inséré à ce terme."},

    {{Story::LittleFluid, 1, 2, {15, 2, 2002}, 63}, kSecond,
     {{{54, 200, 24, 23, 54, 178, 39, 40, 34, 35, 7, 138}, u"Variable à ce terme.", u"0,70", u"0,81"}}, kGood},
    {{Story::LittleFluid, 2, 3, {25, 4, 2002}, 69}, kThird,
     {{{78, 281, 34, 38, 77, 264, 59, 62, 51, 53, 10, 146}, u"Céphalique, dos à gauche.", u"0,61", u"0,78"}}, kGood},
    {{Story::LittleFluid, 3, 0, {10, 6, 2002}, 73},
     {.INDI = u"Diminution des mouvements actifs.", .LA = u"Diminué. Plus grande citerne mesurée à 18 mm.",
      .PL = u"Antérieur, de grade III."},
     {{{88, 310, 39, 0, 95, 321, 70, 75, 61, 62, 0, 138}, u"Céphalique, dos à gauche.", u"0,56", u"0,70", {}, kAgain}},
     u"Oligoamnios. Enregistrement du rythme cardiaque et contrôle en fin de journée."},
    {{Story::LittleFluid, 4, 0, {10, 6, 2002}, 73},
     {.doctor = 2, .INDI = u"Contrôle du liquide amniotique après repos.",
      .LA = u"Diminué. Plus grande citerne mesurée à 16 mm.", .PL = u"Antérieur, de grade III."},
     {{{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 134}, u"Céphalique, dos à gauche.", u"0,57", u"0,69", {},
       u"Examen limité au liquide amniotique et au Doppler."}},
     u"Oligoamnios confirmé. Patiente adressée à la maternité ce soir."},

    {{Story::PoorView, 2, 2, {2, 5, 2002}, 94}, {.CONDITIONS = u"Difficiles. Paroi épaisse. Position foetale défavorable."},
     {{{54, 197, 24, 23, 53, 172, 38, 39, 33, 35, 0, 146}, u"Siège complet.", u"0,70", u"0,81", {},
       u"Tête, rachis, abdomen et membres sans anomalie visible.\r\nFace et coeur insuffisamment vus."}},
     u"Étude morphologique à compléter dans deux semaines."},
    {{Story::PoorView, 3, 0, {16, 5, 2002}, 95}, {.CONDITIONS = u"Moyennes. Paroi épaisse.", .INDI = u"Complément d'étude morphologique."},
     {{{59, 218, 26, 25, 59, 195, 44, 44, 38, 39, 7, 142}, u"Céphalique.", u"0,69", u"0,80"}},
     u"Face et coeur vus ce jour, sans anomalie décelable. Croissance harmonieuse."},

    {{Story::ExamDeleted, 3, 2, {20, 3, 2002}, 68}, {.doctor = 2},
     {{{59, 220, 26, 25, 58, 187, 42, 44, 37, 39, 7, 148}, u"Céphalique.", u"0,69", u"0,80"}}, kGood},
    {{Story::ExamDeleted, 4, 3, {28, 5, 2002}, 74}, kThird,
     {{{82, 292, 36, 42, 86, 281, 63, 68, 55, 57, 11, 144}, u"Céphalique, dos à droite.", u"0,60", u"0,78"}}, kGood},

    {{Story::RenalPelvis, 2, 2, {5, 3, 2002}, 64}, kSecond,
     {{{54, 197, 24, 23, 53, 172, 38, 38, 33, 35, 7, 148}, u"Céphalique.", u"0,70", u"0,81",
       u"Pyélectasie bilatérale modérée : bassinets mesurés à 5 mm."}},
     u"Pyélectasie bilatérale modérée, sans autre anomalie. Contrôle à 32 semaines d'aménorrhée."},
    {{Story::RenalPelvis, 4, 3, {16, 5, 2002}, 69}, kThird,
     {{{83, 293, 36, 41, 85, 281, 63, 68, 55, 57, 11, 144}, u"Céphalique, dos à gauche.", u"0,60", u"0,78",
       u"Bassinets mesurés à 7 mm à droite et 8 mm à gauche, parenchyme conservé."}},
     u"Pyélectasie stable. Échographie rénale du nouveau-né conseillée."},

    {{Story::LateComer, 1, 3, {12, 6, 2002}, 62},
     {.CONDITIONS = u"Moyennes.", .INDI = u"Premier examen de la grossesse dans le cabinet."},
     {{{78, 279, 34, 38, 78, 264, 59, 62, 51, 53, 10, 144}, u"Céphalique.", u"0,61", u"0,79"}},
     u"Biométrie concordante avec les examens antérieurs apportés par la patiente."},

    {{Story::ShortCervix, 2, 2, {22, 4, 2002}, 60}, {.UTERUS = u"Col long et fermé mesurant 36 mm."},
     {{{59, 214, 26, 25, 58, 187, 42, 44, 37, 38, 7, 142}, u"Céphalique.", u"0,69", u"0,80"}}, kGood},
    {{Story::ShortCervix, 3, 0, {23, 5, 2002}, 63},
     {.MODEXAM = u"Voie abdominale complétée par la voie endovaginale.",
      .INDI = u"Menace d'accouchement prématuré : mesure du col.",
      .UTERUS = u"Col raccourci à 21 mm, orifice interne ouvert en entonnoir."},
     {{{68, 247, 30, 30, 67, 224, 51, 54, 44, 45, 9, 138}, u"Céphalique.", u"0,67", u"0,79", {}, kAgain}},
     u"Col court. Repos strict, hospitalisation à discuter avec la maternité."},
};
// clang-format on

}  // namespace

std::span<const LaterExam> laterExams() {
    return kExams;
}

}  // namespace practice
