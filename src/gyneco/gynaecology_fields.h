#pragma once

#include <array>

#include "responses/exam_field.h"

namespace gyneco {

/// The fields of a gynaecological exam, `TxtGyneco` by its index, in the order in which they are saved and read: the
/// pelvic page up to 26, the monitoring of ovulation from 27 on. Lengths are millimetres.
inline constexpr auto kGynaecologyFields = [] {
    using responses::calendar;
    using responses::kOutside;
    using responses::nothing;
    using responses::numbers;
    using responses::phrases;
    return std::to_array<responses::ExamField>({
        {kOutside, u"N° Int", u"Numero", nothing(), u"LblNumInt"},
        {kOutside, u"Echographie N°", u"NUMECHO", nothing(), u"TxtNumEcho"},
        {kOutside, u"Appareil", u"MACHINE", nothing(), u"LblMachine"},
        {kOutside, u"en service", u"DATECIRC", nothing(), u"LblDateCirc"},
        {kOutside, u"Date de l'Examen", u"DATEXAM", nothing(), u"TxtDate"},
        {0, u"", u"", nothing()},
        {1, u"Opérateur", u"OPERATEUR", phrases(1)},
        {2, u"DDR", u"DDR", calendar()},
        {3, u"Modalité d'examen", u"MODEXAM", phrases(2)},
        {4, u"Conditions d'examen", u"CONDITIONS", phrases(3)},
        {5, u"Indication", u"INDI", phrases(42)},
        {6, u"Situation", u"SITUATION", phrases(32)},
        {7, u"Longueur", u"LONGUEUR", numbers(20, 130, 80)},
        {8, u"Largeur", u"LARG", numbers(20, 130, 80)},
        {9, u"Epaisseur", u"EPAIS", numbers(20, 130, 80)},
        {10, u"Echostructure", u"STRUCTURE", phrases(33)},
        {11, u"Cavité utérine", u"CAVITE", phrases(34)},
        {12, u"Endomètre", u"ENDO", phrases(35)},
        {13, u"Epaisseur de l'Endomètre", u"EENDO", numbers(0, 20, 8)},
        {14, u"D.I.U.", u"DIU", phrases(36)},
        {15, u"Masse", u"MASSE", phrases(37)},
        {16, u"Ovaire Droit", u"OVD", phrases(30)},
        {17, u"Ovaire Gauche", u"OVG", phrases(30)},
        {18, u"Trompe Droite", u"TD", phrases(31)},
        {19, u"Trompe Gauche", u"TG", phrases(31)},
        {20, u"Douglas", u"DOUGLAS", phrases(10)},
        {21, u"Situation", u"SITUA", phrases(38)},
        {22, u"Dimensions", u"DIMENSIONS", numbers(1, 15, 4)},
        {23, u"Structure", u"STRUCT", phrases(33)},
        {24, u"Nature", u"NAT", phrases(39)},
        {25, u"Origine", u"ORIGINE", phrases(40)},
        {26, u"Conclusion", u"CONCLU", phrases(41)},
        {27, u"Jour de la Stimulaion", u"JSTIM", numbers(0, 20, 10)},
        {28, u"Dimensions", u"DIMOVD", numbers(10, 45, 30)},
        {29, u"Nbr. de Follicules", u"NBRFOLD", numbers(0, 15, 8)},
        {30, u"Taille des Follicules", u"DIMFOLD", numbers(5, 33, 17)},
        {31, u"Dimensions", u"DIMOVG", numbers(10, 45, 30)},
        {32, u"Nbr. de Follicules", u"NBRFOLG", numbers(0, 15, 8)},
        {33, u"Taille des Follicules", u"DIMFOLG", numbers(5, 33, 17)},
        {34, u"Epaisseur", u"ENDOMETRE", numbers(0, 20, 8)},
        {35, u"Remarques", u"DOP1", phrases(50)},
        {36, u"Remarques (suite)", u"DOP2", phrases(51)},
    });
}();
inline constexpr int kLastGynaecologyField = 36;
static_assert(responses::coversEachIndexOnce(kGynaecologyFields, 0, kLastGynaecologyField));

// The fields that steps name.
inline constexpr int kOperator = 1;
inline constexpr int kModality = 3;
inline constexpr int kStimulationDay = 27;

/// The same record in the viewing window, whose `TxtGyneco` counts on its own, in the order in which it is shown.
inline constexpr auto kShownFields = [] {
    using responses::kOutside;
    using responses::nothing;
    return std::to_array<responses::ExamField>({
        {kOutside, u"Echographie N°", u"NUMECHO", nothing(), u"TxtNumEcho"},
        {kOutside, u"Appareil", u"MACHINE", nothing(), u"LblMachine"},
        {kOutside, u"en service", u"DATECIRC", nothing(), u"LblDateCirc"},
        {kOutside, u"Opérateur", u"OPERATEUR", nothing(), u"CmbMedecin"},
        {kOutside, u"DDR", u"DDR", nothing(), u"TxtDdr"},
        {kOutside, u"Modalité d'examen", u"MODEXAM", nothing(), u"CmbModExam"},
        {kOutside, u"Date de l'Examen", u"DATEXAM", nothing(), u"TxtDate"},
        {kOutside, u"Examen du", u"DATEXAM", nothing(), u"LblDatExamb"},
        {kOutside, u"Conditions d'examen", u"CONDITIONS", nothing(), u"CmbCondExam"},
        {0, u"Indication", u"INDI"},
        {1, u"Situation", u"SITUATION"},
        {2, u"Longueur", u"LONGUEUR"},
        {3, u"Largeur", u"LARG"},
        {4, u"Epaisseur", u"EPAIS"},
        {5, u"Echostructure", u"STRUCTURE"},
        {6, u"Cavité utérine", u"CAVITE"},
        {7, u"Endomètre", u"ENDO"},
        {8, u"Epaisseur de l'Endomètre", u"EENDO"},
        {9, u"D.I.U.", u"DIU"},
        {10, u"Masse", u"MASSE"},
        {11, u"Ovaire Droit", u"OVD"},
        {12, u"Ovaire Gauche", u"OVG"},
        {13, u"Trompe Droite", u"TD"},
        {14, u"Trompe Gauche", u"TG"},
        {15, u"Douglas", u"DOUGLAS"},
        {16, u"Situation", u"SITUA"},
        {17, u"Dimensions", u"DIMENSIONS"},
        {18, u"Structure", u"STRUCT"},
        {19, u"Nature", u"NAT"},
        {20, u"Origine", u"ORIGINE"},
        {21, u"Conclusion", u"CONCLU"},
        {kOutside, u"Jour de la Stimulaion", u"JSTIM", nothing(), u"TxtJStim"},
        {kOutside, u"Dimensions (mm)", u"DIMOVD", nothing(), u"TxtDimD"},
        {kOutside, u"Nbr. de Follicules", u"NBRFOLD", nothing(), u"TxtNbrFolD"},
        {kOutside, u"Taille des Follicules", u"DIMFOLD", nothing(), u"TxtTFolD"},
        {kOutside, u"Dimensions (mm)", u"DIMOVG", nothing(), u"TxtDimG"},
        {kOutside, u"Nbr. de Follicules", u"NBRFOLG", nothing(), u"TxtNbrFolG"},
        {kOutside, u"Taille des Follicules", u"DIMFOLG", nothing(), u"TxtTFolG"},
        {kOutside, u"Epaisseur", u"ENDOMETRE", nothing(), u"TxtEndom"},
        {kOutside, u"Remarques", u"DOP1", nothing(), u"Text1"},
        {kOutside, u"Remarques (suite)", u"DOP2", nothing(), u"Text2"},
    });
}();
inline constexpr int kLastShownField = 21;
static_assert(responses::coversEachIndexOnce(kShownFields, 0, kLastShownField));

}  // namespace gyneco
