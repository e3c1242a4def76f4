#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr Phrase kPhrases[] = {
    // Situation du sac
    {4, u'C', u"Intra-utérin, fundique."},
    {4, u'C', u"Intra-utérin, corporéal."},
    {4, u'C', u"Intra-utérin, bas situé."},
    {4, u'C', u"Excentré, dans la corne droite."},
    {4, u'C', u"Excentré, dans la corne gauche."},
    {4, u'C', u"Pas de sac intra-utérin visible."},

    // Aspect du sac
    {5, u'C', u"Tonique, à contours réguliers."},
    {5, u'C', u"Deux sacs séparés par une cloison épaisse."},
    {5, u'A', u"Contours irréguliers."},
    {5, u'A', u"Sac aplati, peu tonique."},
    {5, u'A', u"Décollement trophoblastique marginal."},
    {5, u'A', u"Vésicule vitelline visible."},
    {5, u'C', u"Sac clair, sans écho embryonnaire."},

    // Mouvements actifs
    {6, u'C', u"Présents."},
    {6, u'C', u"Présents, amples."},
    {6, u'C', u"Rares pendant l'examen."},
    {6, u'C', u"Absents à ce terme."},
    {6, u'C', u"Absents."},

    // Morphologie de l'embryon
    {11, u'A', u"Pôle céphalique de contour régulier, avec ligne médiane."},
    {11, u'A', u"Quatre membres à trois segments."},
    {11, u'A', u"Paroi abdominale fermée, estomac visible."},
    {11, u'C', u"Vessie visible, de taille normale."},
    {11, u'C', u"Embryon d'aspect conforme au terme."},
    {11, u'A', u"Hernie ombilicale physiologique encore présente."},
    {11, u'B', u"Clarté nucale augmentée."},
    {11, u'C', u"Étude morphologique impossible à ce terme."},

    // Trophoblaste et placenta
    {13, u'C', u"Antérieur, normalement inséré."},
    {13, u'C', u"Postérieur, normalement inséré."},
    {13, u'C', u"Fundique."},
    {13, u'A', u"Latéral droit."},
    {13, u'A', u"Latéral gauche."},
    {13, u'A', u"Bas inséré, à      mm de l'orifice interne du col."},
    {13, u'A', u"Recouvrant l'orifice interne du col."},
    {13, u'A', u"Homogène, de maturité conforme au terme."},
    {13, u'A', u"Décollement mesurant      mm."},
    {13, u'C', u"Deux masses placentaires distinctes."},
    {13, u'C', u"Masse placentaire unique, membrane fine."},

    // Conclusion de l'embryon
    {16, u'A', u"Examen sans particularité ce jour."},
    {16, u'A', u"Biométrie concordante avec le terme théorique."},
    {16, u'A', u"Début de grossesse à corriger d'après la longueur cranio-caudale."},
    {16, u'B', u"Clarté nucale dans les limites de la normale."},
    {16, u'B', u"Clarté nucale augmentée.\r\nConsultation de diagnostic anténatal proposée."},
    {16, u'B', u"Grossesse arrêtée.\r\nContrôle dans huit jours avant toute décision."},
    {16, u'A', u"Grossesse trop jeune pour affirmer son évolutivité."},
    {16, u'C', u"Contrôle conseillé entre 11 et 13 semaines d'aménorrhée."},
    {16, u'C', u"Prochain examen à 22 semaines d'aménorrhée."},

    // Os propres du nez
    {45, u'C', u"Visibles."},
    {45, u'C', u"Non visibles."},
    {45, u'C', u"Non étudiés, position défavorable."},
};

}  // namespace

std::span<const Phrase> firstTrimesterPhrases() {
    return kPhrases;
}

}  // namespace practice
