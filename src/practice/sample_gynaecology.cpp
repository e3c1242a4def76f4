#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr QStringView kFundic = u"Myome interstitiel fundique mesurant 31 mm.";
constexpr QStringView kAtrophic = u"Atrophique, en rapport avec la ménopause.";
constexpr QStringView kMicro = u"Augmenté de volume, avec plus de douze microfollicules périphériques.";
constexpr QStringView kStimulation = u"Surveillance d'une stimulation de l'ovulation.";
constexpr QStringView kIn48Hours = u"Contrôle dans 48 heures.";
constexpr QStringView kThinYet = u"Endomètre encore fin.";
constexpr QStringView kThreeLayers = u"Endomètre favorable, en trois feuillets.";

// Patient, number, day, last period, practitioner; pelvic page; monitoring page (day, right ovary: size, count,
// follicles; left ovary; endometrium; remarks).
// clang-format off
constexpr GynaecologyExam kExams[] = {
    // Before and after the pregnancies
    {9, 1, {12, 6, 2001}, {31, 5, 2001}, 1,
     {.INDI = u"Douleurs pelviennes.", .LONGUEUR = 71, .LARG = 46, .EPAIS = 35, .EENDO = 7,
      .OVG = u"De taille normale, avec un follicule dominant.", .CONCLU = u"Examen pelvien sans anomalie."}},
    {11, 1, {6, 6, 2002}, {}, 1,
     {.INDI = u"Contrôle après une grossesse arrêtée.", .LONGUEUR = 84, .LARG = 55, .EPAIS = 44, .EENDO = 5,
      .ENDO = u"Fin et régulier.", .CONCLU = u"Cavité vide, pas de rétention."}},
    {14, 1, {18, 5, 2001}, {7, 5, 2001}, 1,
     {.INDI = u"Contrôle d'un dispositif intra-utérin.", .LONGUEUR = 76, .LARG = 50, .EPAIS = 38, .EENDO = 6,
      .DIU = u"En place, à 12 mm du fond utérin.", .CONCLU = u"Dispositif intra-utérin en place."}},

    // A monitored cycle that leads to a pregnancy
    {24, 1, {2, 4, 2002}, {25, 3, 2002}, 1, {},
     {u"9", u"28", u"3", u"12 10 9", u"26", u"2", u"8 7", u"5", kIn48Hours, kThinYet}},
    {24, 2, {5, 4, 2002}, {25, 3, 2002}, 1, {},
     {u"12", u"30", u"2", u"16 12", u"27", u"1", u"9", u"7", u"Follicule dominant à droite.", kThreeLayers}},
    {24, 3, {8, 4, 2002}, {25, 3, 2002}, 1, {},
     {u"15", u"34", u"1", u"20", u"27", u"0", {}, u"10", u"Déclenchement à prévoir ce soir.", kThreeLayers}},

    // Fibroid, followed; the second exam was deleted
    {25, 1, {5, 2, 2001}, {24, 1, 2001}, 1,
     {.INDI = u"Ménométrorragies.", .LONGUEUR = 96, .LARG = 62, .EPAIS = 58, .EENDO = 8, .STRUCTURE = u"Hétérogène.",
      .MASSE = kFundic, .CONCLU = u"Utérus myomateux. Contrôle dans six mois."}},
    {25, 3, {11, 3, 2002}, {26, 2, 2002}, 2,
     {.INDI = u"Contrôle d'un myome connu.", .LONGUEUR = 104, .LARG = 68, .EPAIS = 63, .EENDO = 9,
      .STRUCTURE = u"Hétérogène.", .CAVITE = u"Déformée par un myome sous-muqueux.",
      .MASSE = u"Myome interstitiel fundique mesurant 38 mm. Myome sous-muqueux mesurant 14 mm.",
      .CONCLU = u"Utérus polymyomateux, augmenté depuis l'examen précédent.\r\nHystéroscopie à discuter."}},

    // After the menopause
    {26, 1, {21, 1, 2002}, {}, 1,
     {.INDI = u"Métrorragies après la ménopause.", .LONGUEUR = 62, .LARG = 38, .EPAIS = 30, .EENDO = 11,
      .ENDO = u"Épaissi et irrégulier.", .OVD = kAtrophic, .OVG = kAtrophic,
      .CONCLU = u"Endomètre épaissi après la ménopause.\r\nHystéroscopie à discuter."}},
    {36, 1, {14, 9, 2001}, {}, 1,
     {.INDI = u"Surveillance sous traitement anti-oestrogène.", .LONGUEUR = 55, .LARG = 33, .EPAIS = 27, .EENDO = 7,
      .ENDO = u"Hypertrophique, avec de fines logettes liquidiennes.", .OVD = kAtrophic, .OVG = u"Non visualisé.",
      .CONCLU = u"Aspect de retentissement du traitement sur l'endomètre. Contrôle dans six mois."}},
    {36, 2, {18, 3, 2002}, {}, 3,
     {.INDI = u"Surveillance sous traitement anti-oestrogène.", .LONGUEUR = 54, .LARG = 33, .EPAIS = 26, .EENDO = 5,
      .ENDO = u"Fin, atrophique.", .OVD = kAtrophic, .OVG = u"Non visualisé.",
      .CONCLU = u"Endomètre redevenu fin."}},

    // Intra-uterine devices
    {27, 1, {9, 10, 2001}, {1, 10, 2001}, 2,
     {.INDI = u"Contrôle d'un dispositif intra-utérin.", .LONGUEUR = 78, .LARG = 51, .EPAIS = 40, .EENDO = 5,
      .DIU = u"En place, à 15 mm du fond utérin.", .CONCLU = u"Dispositif intra-utérin en place."}},
    {37, 1, {27, 2, 2002}, {14, 2, 2002}, 1,
     {.INDI = u"Contrôle d'un dispositif intra-utérin. Douleurs pelviennes.", .LONGUEUR = 80, .LARG = 50, .EPAIS = 42,
      .EENDO = 7, .SITUATION = u"Rétroversé, rétrofléchi.", .DIU = u"Abaissé dans la partie basse de la cavité.",
      .CONCLU = u"Dispositif intra-utérin abaissé, à retirer."}},

    // Ovarian cysts
    {28, 1, {14, 1, 2002}, {3, 1, 2002}, 1,
     {.INDI = u"Masse palpée à l'examen clinique.", .LONGUEUR = 82, .LARG = 54, .EPAIS = 43, .EENDO = 9,
      .OVD = u"Porteur d'un kyste liquidien à paroi fine mesurant 47 mm.", .DOUGLAS = u"Lame liquidienne physiologique.",
      .SITUA = u"Latéro-utérine droite.", .DIMENSIONS = u"47 44 41", .STRUCT = u"Liquidienne pure, sans cloison.",
      .NAT = u"Kystique, d'allure fonctionnelle.", .ORIGINE = u"Ovarienne droite.",
      .CONCLU = u"Kyste d'allure fonctionnelle.\r\nContrôle après les prochaines règles."}},
    {28, 2, {7, 3, 2002}, {27, 2, 2002}, 1,
     {.INDI = u"Contrôle d'un kyste connu.", .LONGUEUR = 81, .LARG = 54, .EPAIS = 43, .EENDO = 6,
      .CONCLU = u"Disparition du kyste de l'ovaire droit."}},
    {31, 1, {3, 12, 2001}, {19, 11, 2001}, 2,
     {.INDI = u"Douleurs pelviennes pendant les règles.", .LONGUEUR = 74, .LARG = 49, .EPAIS = 39, .EENDO = 10,
      .STRUCTURE = u"Renforcements postérieurs évoquant une adénomyose.",
      .OVG = u"Porteur d'un kyste à contenu finement échogène, évoquant un endométriome.",
      .SITUA = u"Latéro-utérine gauche.", .DIMENSIONS = u"38 35 33", .STRUCT = u"Homogène.",
      .NAT = u"Kystique, d'allure organique.", .ORIGINE = u"Ovarienne gauche.",
      .CONCLU = u"Formation ovarienne d'allure organique.\r\nAvis chirurgical souhaitable."}},
    {35, 1, {22, 10, 2001}, {3, 9, 2001}, 1,
     {.INDI = u"Infertilité, bilan initial. Cycles longs.", .LONGUEUR = 68, .LARG = 43, .EPAIS = 34, .EENDO = 6,
      .OVD = kMicro, .OVG = kMicro, .CONCLU = u"Aspect d'ovaires micropolykystiques."}},

    // A stimulated cycle from its first day to the release
    {29, 1, {2, 4, 2002}, {25, 3, 2002}, 1, {},
     {u"8", u"31", u"5", u"11 10 9 9 8", u"29", u"4", u"10 9 8 8", u"4", kIn48Hours, kThinYet}},
    {29, 2, {4, 4, 2002}, {25, 3, 2002}, 1, {},
     {u"10", u"34", u"5", u"14 13 11 10 9", u"31", u"4", u"12 11 10 9", u"6", u"Contrôle demain matin.", {}}},
    {29, 3, {5, 4, 2002}, {25, 3, 2002}, 2, {},
     {u"11", u"37", u"4", u"16 14 13 12", u"33", u"3", u"14 13 12", u"8", u"Contrôle lundi matin.", kThreeLayers}},
    {29, 4, {8, 4, 2002}, {25, 3, 2002}, 1, {},
     {u"14", u"40", u"3", u"20 18 16", u"35", u"2", u"17 15", u"10", u"Déclenchement à prévoir ce soir.", kThreeLayers}},
    {29, 5, {11, 4, 2002}, {25, 3, 2002}, 1, {},
     {u"17", u"33", u"0", {}, u"32", u"1", u"14", u"11",
      u"Signes d'ovulation récente : collapsus folliculaire, lame liquidienne.",
      u"Résultats transmis par téléphone au médecin prescripteur."}},

    // A first pelvic exam, then a response that is too strong
    {30, 1, {6, 5, 2002}, {4, 5, 2002}, 1,
     {.INDI = u"Bilan avant stimulation de l'ovulation.", .LONGUEUR = 70, .LARG = 45, .EPAIS = 36, .EENDO = 4,
      .ENDO = u"Fin, en début de cycle.", .CONCLU = u"Examen pelvien sans anomalie, ovaires au repos."}},
    {30, 2, {13, 5, 2002}, {4, 5, 2002}, 1, {},
     {u"8", u"38", u"9", u"13 12 12 11 11 10 10 9 9", u"36", u"8", u"12 12 11 11 10 10 9 8", u"6", kIn48Hours, kThinYet}},
    {30, 3, {15, 5, 2002}, {4, 5, 2002}, 1, {},
     {u"10", u"45", u"11", u"17 16 16 15 14 14 13 12 12 11 10", u"43", u"10", u"16 16 15 14 14 13 12 12 11 10", u"9",
      u"Réponse multifolliculaire : risque d'hyperstimulation.",
      u"Résultats transmis par téléphone au médecin prescripteur."}},

    // Two exams on one day
    {39, 1, {25, 3, 2002}, {}, 1,
     {.INDI = u"Douleurs pelviennes.", .LONGUEUR = 66, .LARG = 41, .EPAIS = 33, .EENDO = 4,
      .ENDO = u"Fin, atrophique.", .OVD = u"Non visualisé.", .OVG = kAtrophic, .DOUGLAS = u"Épanchement de faible abondance.",
      .CONCLU = u"Examen à compléter par voie endovaginale."}},
    {39, 2, {25, 3, 2002}, {}, 1,
     {.INDI = u"Complément de l'examen précédent.", .LONGUEUR = 66, .LARG = 41, .EPAIS = 33, .EENDO = 4,
      .ENDO = u"Fin, atrophique.", .OVD = u"Porteur d'une formation échogène évoquant un kyste dermoïde.", .OVG = kAtrophic,
      .DOUGLAS = u"Épanchement de faible abondance.", .SITUA = u"Latéro-utérine droite.", .DIMENSIONS = u"29 26",
      .STRUCT = u"Mixte, à prédominance solide.", .NAT = u"Kystique, d'allure organique.", .ORIGINE = u"Ovarienne droite.",
      .CONCLU = u"Formation de l'ovaire droit évoquant un kyste dermoïde."}},

    // Both pages in one exam
    {40, 1, {17, 12, 2001}, {6, 12, 2001}, 2,
     {.INDI = kStimulation, .LONGUEUR = 73, .LARG = 48, .EPAIS = 37, .EENDO = 8, .ENDO = u"Prolifératif, en cible.",
      .TG = u"Antécédent de salpingectomie.", .CONCLU = u"Follicule dominant à droite, du côté de la trompe restante."},
     {u"12", u"33", u"1", u"18", u"27", u"2", u"9 8", u"8", u"Follicule dominant à droite.", kThreeLayers}},

    {32, 1, {30, 11, 2001}, {}, 1,
     {.INDI = u"Examen systématique.", .LONGUEUR = 70, .LARG = 44, .EPAIS = 36, .EENDO = 6,
      .SITUATION = u"Intermédiaire.", .CONCLU = u"Examen pelvien sans anomalie."}},
};
// clang-format on

}  // namespace

std::span<const GynaecologyExam> gynaecologyExams() {
    return kExams;
}

}  // namespace practice
