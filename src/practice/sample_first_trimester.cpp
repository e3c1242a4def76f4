#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr QStringView kNoSign = u"Examen sans particularité ce jour. Prochain examen à 22 semaines d'aménorrhée.";
constexpr QStringView kTooEarly = u"Étude morphologique impossible à ce terme.";
constexpr QStringView kBothRoutes = u"Voie abdominale complétée par la voie endovaginale.";
constexpr QStringView kVaginal = u"Voie endovaginale.";

// Visit; words; sac; embryos (heart, crown-rump, biparietal, femur, nuchal translucency); finding.
// clang-format off
constexpr FirstTrimesterExam kExams[] = {
    {{Story::Normal, 1, 1, {17, 1, 2002}, 61}, {}, {.Dim = 58},
     {{162, 59, 21, 8, u"1,2"}}, kNoSign},
    {{Story::SmallForDates, 1, 1, {7, 12, 2001}, 49}, {.ANNEXES = u"Corps jaune gravidique droit."}, {.Dim = 60},
     {{165, 62, 21, 8, u"1,4"}}, u"Biométrie concordante avec le terme théorique. Tabagisme signalé."},
    {{Story::Breech, 1, 1, {21, 11, 2001}, 57}, {.doctor = 2, .PL = u"Fundique."}, {.Dim = 55},
     {{168, 54, 20, 7, u"1,1"}}, kNoSign},
    {{Story::TwinsApart, 1, 1, {30, 1, 2002}, 66},
     {.MODEXAM = kBothRoutes, .INDI = u"Surveillance d'une grossesse obtenue par fécondation in vitro.",
      .LA = u"Quantité normale dans les deux poches.", .PL = u"Deux masses placentaires distinctes, signe du lambda."},
     {2, 52, {}, u"Deux sacs séparés par une cloison épaisse."},
     {{164, 60, 21, 8, u"1,3"}, {167, 58, 20, 8, u"1,5"}},
     u"Grossesse bichoriale biamniotique. Clartés nucales dans les limites de la normale."},
    {{Story::TwinsUnequal, 1, 1, {17, 12, 2001}, 58},
     {.MODEXAM = kBothRoutes, .PL = u"Masse placentaire unique, membrane fine."},
     {1, 56, {}, u"Sac unique, deux cavités amniotiques."},
     {{166, 55, 19, 7, u"1,2"}, {170, 51, 18, 6, u"1,9"}},
     u"Grossesse monochoriale biamniotique. Surveillance tous les quinze jours à partir de 16 semaines."},
    {{Story::Triplets, 1, 1, {7, 1, 2002}, 70},
     {.MODEXAM = kBothRoutes, .CONDITIONS = u"Moyennes. Examen long.", .INDI = u"Grossesse triple, bilan initial.",
      .ANNEXES = u"Ovaires multifolliculaires, en rapport avec la stimulation.",
      .PL = u"Trois masses placentaires distinctes."},
     {3, 48, {}, u"Trois sacs séparés par des cloisons épaisses."},
     {{163, 59, 21, 8, u"1,3"}, {169, 57, 20, 8, u"1,1"}, {165, 58, 20, 8, u"1,4"}},
     u"Grossesse trichoriale triamniotique. Consultation en maternité de niveau III."},
    {{Story::Large, 1, 1, {18, 12, 2001}, 79}, {.CONDITIONS = u"Moyennes. Paroi épaisse."}, {.Dim = 62},
     {{158, 63, 22, 9, u"1,6"}}, u"Début de grossesse corrigé de trois jours d'après la longueur cranio-caudale."},
    {{Story::Redated, 1, 1, {28, 2, 2002}, 55}, {.INDI = u"Datation de la grossesse. Cycles irréguliers."}, {.Dim = 50},
     {{171, 49, 17, 6, u"1,0"}}, u"Début de grossesse à corriger de six jours d'après la longueur cranio-caudale."},
    {{Story::SeenEarly, 1, 1, {10, 4, 2002}, 60},
     {.MODEXAM = kVaginal, .INDI = u"Métrorragies du premier trimestre.", .ANNEXES = u"Corps jaune gravidique gauche.",
      .PL = u"Trophoblaste circonférentiel."},
     {1, 22, {}, u"Tonique, vésicule vitelline visible. Décollement marginal de 8 mm."},
     {{138, 10, 0, 0, {}, {}, u"Absents à ce terme.", kTooEarly}},
     u"Petit décollement trophoblastique. Contrôle conseillé entre 11 et 13 semaines d'aménorrhée."},
    {{Story::SeenEarly, 2, 1, {16, 5, 2002}, 61}, {.ANNEXES = u"Corps jaune gravidique gauche."}, {.Dim = 57},
     {{160, 57, 20, 8, u"1,3"}}, u"Décollement résorbé. Prochain examen à 22 semaines d'aménorrhée."},
    {{Story::Stopped, 1, 1, {23, 5, 2002}, 58},
     {.MODEXAM = kVaginal, .INDI = u"Métrorragies du premier trimestre.", .PL = u"Trophoblaste hétérogène."},
     {1, 31, {}, u"Contours irréguliers, sac peu tonique."},
     {{0, 16, 0, 0, {}, {}, u"Absents.", kTooEarly}},
     u"Grossesse arrêtée : pas d'activité cardiaque.\r\nContrôle dans huit jours avant toute décision."},
    {{Story::DateUnknown, 1, 1, {15, 4, 2002}, 64}, {.INDI = u"Datation de la grossesse. Date des dernières règles inconnue."},
     {.Dim = 64}, {{157, 67, 24, 10, u"1,7"}}, u"Datation établie sur la longueur cranio-caudale."},
    {{Story::FirstChild, 1, 1, {12, 9, 2000}, 56}, {}, {.Dim = 57},
     {{166, 57, 20, 8, u"1,2"}}, kNoSign},
    {{Story::SecondChild, 4, 1, {15, 4, 2002}, 59}, {.PL = u"Postérieur, normalement inséré."}, {.Dim = 61},
     {{161, 64, 22, 9, u"1,5"}}, kNoSign},
    {{Story::LowPlacenta, 1, 1, {26, 11, 2001}, 62},
     {.UTERUS = u"Utérus cicatriciel, segment inférieur régulier.", .PL = u"Postérieur, bord inférieur proche du col."},
     {.Dim = 58, .SITUATION = u"Intra-utérin, bas situé."},
     {{163, 56, 20, 8, u"1,3"}}, u"Trophoblaste bas inséré, à revoir à 22 semaines d'aménorrhée."},
    {{Story::PoorView, 1, 1, {20, 2, 2002}, 91},
     {.MODEXAM = kBothRoutes, .CONDITIONS = u"Difficiles. Paroi épaisse."}, {.Dim = 57},
     {{159, 58, 21, 8, u"1,8", u"Non étudiés, position défavorable."}}, kNoSign},
    {{Story::ExamDeleted, 1, 1, {2, 1, 2002}, 63}, {.doctor = 2}, {.Dim = 56},
     {{167, 56, 20, 8, u"1,1"}}, kNoSign},
    {{Story::RenalPelvis, 1, 1, {26, 12, 2001}, 60}, {}, {.Dim = 60},
     {{164, 61, 21, 8, u"1,4"}}, kNoSign},
    {{Story::ThickNeck, 1, 1, {3, 6, 2002}, 65}, {.doctor = 3}, {.Dim = 66},
     {{156, 66, 23, 10, u"3,8", u"Non visibles.", {},
       u"Clarté nucale augmentée à 3,8 mm. Hernie ombilicale réintégrée. Quatre membres à trois segments."}},
     u"Clarté nucale augmentée chez une patiente de 38 ans.\r\nConsultation de diagnostic anténatal proposée."},
    {{Story::ShortCervix, 1, 1, {4, 2, 2002}, 54}, {}, {.Dim = 53},
     {{168, 53, 19, 7, u"1,0"}}, kNoSign},
    {{Story::NewTwins, 1, 1, {10, 6, 2002}, 63},
     {.MODEXAM = kBothRoutes, .PL = u"Deux masses placentaires distinctes."},
     {2, 56, {}, u"Deux sacs séparés par une cloison épaisse."},
     {{158, 65, 22, 9, u"1,5"}, {162, 63, 22, 9, u"1,6"}},
     u"Grossesse bichoriale biamniotique. Prochain examen à 22 semaines d'aménorrhée."},
    {{Story::TwiceInOneDay, 1, 1, {24, 5, 2002}, 57},
     {.MODEXAM = kVaginal, .INDI = u"Grossesse après stimulation de l'ovulation.",
      .ANNEXES = u"Corps jaune gravidique droit.", .PL = u"Trophoblaste circonférentiel."},
     {1, 30, {}, u"Tonique, vésicule vitelline visible."},
     {{158, 17, 0, 0, {}, {}, u"Présents.", kTooEarly}}, u"Terme concordant avec la date de l'ovulation."},
    {{Story::TwiceInOneDay, 2, 1, {11, 6, 2002}, 57},
     {.CONDITIONS = u"Difficiles. Vessie insuffisamment remplie.", .INDI = u"Douleurs pelviennes."}, {.Dim = 44},
     {{170, 40, 14, 0, {}, {}, {}, u"Étude limitée par voie abdominale."}},
     u"Examen à compléter ce jour par voie endovaginale."},
    {{Story::TwiceInOneDay, 3, 1, {11, 6, 2002}, 57},
     {.MODEXAM = kVaginal, .INDI = u"Complément de l'examen précédent."}, {.Dim = 44},
     {{170, 40, 15, 0, {}, {}, {}, u"Pôle céphalique de contour régulier. Quatre bourgeons de membres mobiles."}},
     u"Pas de cause visible aux douleurs. Contrôle entre 11 et 13 semaines d'aménorrhée."},
};
// clang-format on

}  // namespace

std::span<const FirstTrimesterExam> firstTrimesterExams() {
    return kExams;
}

}  // namespace practice
