#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr Phrase kPhrases[] = {
    // Morphologie du foetus, liste du cabinet
    {17, u'B', u"Tête : contours réguliers, ventricules non dilatés, fosse postérieure normale."},
    {17, u'B', u"Face : orbites, profil et lèvre supérieure sans anomalie visible."},
    {17, u'B', u"Thorax : poumons homogènes, coeur à gauche, quatre cavités équilibrées, gros vaisseaux croisés."},
    {17, u'B', u"Abdomen : estomac en place, paroi antérieure fermée, anses d'échogénicité normale."},
    {17, u'B', u"Appareil urinaire : deux reins en place, vessie visible."},
    {17, u'B', u"Rachis : aligné sur les trois plans, revêtement cutané continu."},
    {17, u'C', u"Membres : quatre membres, segments et extrémités vus."},
    {17, u'A', u"Étude de la face incomplète."},
    {17, u'A', u"Étude du coeur incomplète, à revoir."},
    {17, u'A', u"Pyélectasie bilatérale modérée."},
    {17, u'C', u"Morphologie revue, sans modification depuis l'examen précédent."},

    // Conclusion du foetus
    {18, u'A', u"Examen sans anomalie décelable ce jour."},
    {18, u'A', u"Croissance harmonieuse."},
    {18, u'A', u"Biométrie au 50ème percentile."},
    {18, u'A', u"Retard de croissance portant sur le périmètre abdominal."},
    {18, u'A', u"Foetus de grande taille pour le terme."},
    {18, u'B', u"Présentation du siège.\r\nContrôle à 36 semaines d'aménorrhée."},
    {18, u'B', u"Placenta bas inséré.\r\nRepos conseillé, contrôle à 32 semaines d'aménorrhée."},
    {18, u'B', u"Doppler ombilical normal."},
    {18, u'B', u"Doppler ombilical pathologique.\r\nAvis du centre de diagnostic prénatal demandé ce jour."},
    {18, u'A', u"Étude morphologique à compléter dans deux semaines."},
    {18, u'C', u"Prochain examen à 32 semaines d'aménorrhée."},
    {18, u'C', u"Contrôle dans trois semaines."},

    // Présentation
    {25, u'C', u"Céphalique."},
    {25, u'C', u"Céphalique, dos à gauche."},
    {25, u'C', u"Céphalique, dos à droite."},
    {25, u'C', u"Siège décomplété."},
    {25, u'C', u"Siège complet."},
    {25, u'C', u"Transverse, dos en haut."},
    {25, u'C', u"Variable à ce terme."},

    // Zone A
    {26, u'A', u"Contour de la boîte crânienne régulier."},
    {26, u'A', u"Ligne médiane vue sur toute sa longueur, cavité septale présente."},
    {26, u'A', u"Carrefours ventriculaires inférieurs à 10 mm."},
    {26, u'A', u"Cervelet et grande citerne normaux."},
    {26, u'A', u"Orbites symétriques, cristallins vus."},
    {26, u'C', u"Lèvre supérieure continue, profil normal."},

    // Zone B
    {27, u'A', u"Situs normal, coeur dévié à gauche."},
    {27, u'A', u"Quatre cavités symétriques, croix du coeur en place."},
    {27, u'A', u"Voies de sortie croisées, calibres égaux."},
    {27, u'A', u"Poumons de même échogénicité."},
    {27, u'C', u"Coupole diaphragmatique vue des deux côtés."},

    // Zone C
    {28, u'A', u"Estomac à gauche, de taille normale."},
    {28, u'A', u"Vésicule biliaire vue."},
    {28, u'A', u"Insertion du cordon sur une paroi fermée, trois vaisseaux."},
    {28, u'A', u"Reins en place, bassinets fins."},
    {28, u'A', u"Vessie vue, se remplissant."},
    {28, u'C', u"Anses intestinales d'échogénicité normale."},

    // Zone D
    {29, u'A', u"Rachis vu dans les plans sagittal, frontal et axial."},
    {29, u'A', u"Fémurs et humérus symétriques, sans incurvation."},
    {29, u'A', u"Avant-bras et jambes à deux os."},
    {29, u'A', u"Mains ouvertes, pieds dans l'axe."},
    {29, u'C', u"Mobilité des quatre membres normale."},

    // Doppler des artères utérines
    {55, u'C', u"Index de résistance normal, pas d'incisure protodiastolique."},
    {55, u'A', u"Index de résistance :      "},
    {55, u'A', u"Incisure protodiastolique présente."},
    {55, u'C', u"Index de résistance élevé avec incisure persistante."},
    {55, u'C', u"Mesure non réalisée."},
};

}  // namespace

std::span<const Phrase> laterPhrases() {
    return kPhrases;
}

}  // namespace practice
