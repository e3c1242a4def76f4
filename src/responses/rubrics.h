#pragma once

#include <QStringView>
#include <algorithm>
#include <array>

namespace responses {

/// The frame of the editor in which a rubric has its button.
enum class RubricGroup { Practice, General, FirstTrimester, Gynaecology, LaterTrimesters, CheckList };

/// A numbered list of stored responses and how the editor offers it.
struct Rubric {
    int number;
    RubricGroup group;
    QStringView button;
    QStringView caption;
    QStringView title;
    /// What the editor's query ends in: nothing (the order of the store) or an order of its own.
    QStringView order = {};
};

namespace detail {
using enum RubricGroup;
inline constexpr QStringView kByIndex = u"ORDER BY INDEX";
}  // namespace detail

/// All rubrics, by number. The numbers 24, 43, 44, 46 to 49 and 52 to 54 are not in use.
inline constexpr std::array<Rubric, 45> kRubrics{{
    {1, detail::Practice, u"CmdOperateurs", u"Praticiens", u"Opérateurs"},
    {2, detail::General, u"CmdModExam", u"Modalités d'Examen", u"Modalités d'Examen"},
    {3, detail::General, u"CmdCondExam", u"Conditions d'Examen", u"Conditions d'Examen"},
    {4, detail::FirstTrimester, u"CmdSituation", u"Situation du sac", u"Situation du sac"},
    {5, detail::FirstTrimester, u"CmdAspect", u"Aspect du Sac", u"Aspect du sac"},
    {6, detail::General, u"CmdMA", u"Mouvements Actifs", u"Mouvements actifs"},
    {7, detail::General, u"CmdIndications", u"Indications", u"Indication de l'Echo"},
    {8, detail::General, u"CmdUterus", u"Uterus", u"Pathologie Utérine"},
    {9, detail::General, u"CmdAnnexes", u"Annexes", u"Pathologie Annexielle"},
    {10, detail::General, u"CmdDouglas", u"Douglas", u"Douglas pathologique"},
    {11, detail::FirstTrimester, u"CmdMorpho", u"Morpho. de l'Embryon", u"Morphologie de l'Embryon"},
    {12, detail::General, u"CmdLA", u"Liquide Amniotique", u"Liquide amniotique"},
    {13, detail::General, u"cmdPl", u"Tropho. et Placenta", u"Trophoblaste et Placenta"},
    {14, detail::Practice, u"CmdApp", u"Type d' Appareil", u"Marque de l'Appareil"},
    {15, detail::Practice, u"CmdDateApp", u"Date de mise en service", u"1ère mise en circulation"},
    {16, detail::FirstTrimester, u"CmdConclu1", u"Conclusion Embryon", u"Conclusion Embryon"},
    {17, detail::LaterTrimesters, u"CmdMorphoF", u"Morpho du Foetus Perso", u"Morphologie du Foetus"},
    {18, detail::LaterTrimesters, u"CmdConclu2", u"Conclusion Foetus", u"Conclusion Foetus"},
    {19, detail::Practice, u"CmdEta", u"Etablissement", u"Etablissement"},
    {20, detail::Practice, u"CmdNom", u"Nom", u"Nom"},
    {21, detail::Practice, u"CmdAdress", u"Adresse", u"Adresse"},
    {22, detail::Practice, u"CmdVille", u"Ville  Depart.", u"Ville Département"},
    {23, detail::Practice, u"CmdTel", u"Téléphone", u"Téléphone"},
    {25, detail::LaterTrimesters, u"CmdPresent", u"Présentation", u"Présentation"},
    {26, detail::CheckList, u"CmdZoneA", u"Zone A", u"Morpho Taiple - Zone A", detail::kByIndex},
    {27, detail::CheckList, u"CmdZoneB", u"Zone B", u"Morpho Taiple - Zone B", detail::kByIndex},
    {28, detail::CheckList, u"CmdZoneC", u"Zone C", u"Morpho Taiple - Zone C", detail::kByIndex},
    {29, detail::CheckList, u"CmdZoneD", u"Zone D", u"Morpho Taiple - Zone D", detail::kByIndex},
    {30, detail::Gynaecology, u"CmdOvaires", u"Ovaires", u"Ovaires"},
    {31, detail::Gynaecology, u"CmdTrompes", u"Trompes", u"Trompes"},
    {32, detail::Gynaecology, u"CmdPosUt", u"Position utérus", u"Position Utérus"},
    {33, detail::Gynaecology, u"CmdEchoStruct", u"Echostructure", u"Echostructure"},
    {34, detail::Gynaecology, u"CmdCavUt", u"Cavité utérine", u"Cavité Utérine"},
    {35, detail::Gynaecology, u"CmdEndo", u"Endomètre", u"Endomètre"},
    {36, detail::Gynaecology, u"CmdDIU", u"D.I.U.", u"D.I.U."},
    {37, detail::Gynaecology, u"CmdMasse", u"Masse Utérine", u"Masse utérine"},
    {38, detail::Gynaecology, u"CmdSitMasse", u"Situation Masse", u"Situation Masse"},
    {39, detail::Gynaecology, u"CmdNatMasse", u"Nature Masse", u"Nature Masse"},
    {40, detail::Gynaecology, u"CmdOrMasse", u"Origine Masse", u"Origine Masse"},
    {41, detail::Gynaecology, u"CmdConclu3", u"Conclusion", u"Conclusion Gynéco"},
    {42, detail::Gynaecology, u"CmdIndicGyn", u"Indication", u"Indication"},
    {45, detail::FirstTrimester, u"CmdOPN", u"OPN", u"OPN"},
    {50, detail::Gynaecology, u"Cmdremark1", u"Remarques 1", u"Remarques 1"},
    {51, detail::Gynaecology, u"CmdRemark2", u"Remarques 2", u"Remarques 2"},
    {55, detail::LaterTrimesters, u"CmdDop", u"Doppler Utérines", u"Doppler Utérines"},
}};

static_assert(std::ranges::is_sorted(kRubrics, std::less_equal<>{}, &Rubric::number));

}  // namespace responses
