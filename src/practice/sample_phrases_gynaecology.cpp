#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr Phrase kPhrases[] = {
    // Ovaires
    {30, u'C', u"De taille et d'aspect normaux."},
    {30, u'C', u"De taille normale, avec un follicule dominant."},
    {30, u'A', u"Porteur d'un kyste liquidien à paroi fine mesurant      mm."},
    {30, u'A', u"Porteur d'un kyste à contenu finement échogène, évoquant un endométriome."},
    {30, u'A', u"Porteur d'une formation échogène évoquant un kyste dermoïde."},
    {30, u'A', u"Augmenté de volume, avec plus de douze microfollicules périphériques."},
    {30, u'C', u"Atrophique, en rapport avec la ménopause."},
    {30, u'C', u"Non visualisé."},

    // Trompes
    {31, u'C', u"Non visible, comme il est habituel."},
    {31, u'C', u"Dilatée, à contenu anéchogène : hydrosalpinx."},
    {31, u'C', u"Épaissie, douloureuse au passage de la sonde."},
    {31, u'C', u"Antécédent de salpingectomie."},

    // Position de l'utérus
    {32, u'C', u"Antéversé, antéfléchi."},
    {32, u'C', u"Intermédiaire."},
    {32, u'C', u"Rétroversé, rétrofléchi."},
    {32, u'A', u"Dévié à droite."},
    {32, u'A', u"Dévié à gauche."},
    {32, u'C', u"Antécédent d'hystérectomie, tranche vaginale régulière."},

    // Échostructure
    {33, u'C', u"Homogène."},
    {33, u'A', u"Hétérogène."},
    {33, u'A', u"Renforcements postérieurs évoquant une adénomyose."},
    {33, u'C', u"Liquidienne pure, sans cloison."},
    {33, u'C', u"Liquidienne, cloisonnée."},
    {33, u'C', u"Mixte, à prédominance solide."},

    // Cavité utérine
    {34, u'C', u"Vide, ligne cavitaire régulière."},
    {34, u'A', u"Contenu échogène à bords nets évoquant un polype."},
    {34, u'A', u"Lame liquidienne intracavitaire."},
    {34, u'C', u"Déformée par un myome sous-muqueux."},

    // Endomètre
    {35, u'C', u"Régulier, conforme au jour du cycle."},
    {35, u'C', u"Prolifératif, en cible."},
    {35, u'C', u"Sécrétoire, échogène."},
    {35, u'C', u"Fin, atrophique."},
    {35, u'A', u"Épaissi et irrégulier."},
    {35, u'C', u"Hypertrophique, avec de fines logettes liquidiennes."},

    // Dispositif intra-utérin
    {36, u'C', u"Absent."},
    {36, u'C', u"En place, à      mm du fond utérin."},
    {36, u'C', u"Abaissé dans la partie basse de la cavité."},
    {36, u'C', u"Fils visibles, dispositif non retrouvé dans la cavité."},

    // Masse utérine
    {37, u'C', u"Absente."},
    {37, u'A', u"Myome interstitiel mesurant      mm."},
    {37, u'A', u"Myome sous-séreux mesurant      mm."},
    {37, u'A', u"Myome sous-muqueux mesurant      mm."},
    {37, u'C', u"Utérus polymyomateux."},

    // Situation de la masse
    {38, u'C', u"Latéro-utérine droite."},
    {38, u'C', u"Latéro-utérine gauche."},
    {38, u'C', u"Rétro-utérine."},
    {38, u'C', u"Pré-utérine."},
    {38, u'C', u"Dans le cul-de-sac de Douglas."},

    // Nature de la masse
    {39, u'C', u"Kystique, d'allure fonctionnelle."},
    {39, u'C', u"Kystique, d'allure organique."},
    {39, u'C', u"Solide."},
    {39, u'C', u"Mixte."},
    {39, u'C', u"Indéterminée."},

    // Origine de la masse
    {40, u'C', u"Ovarienne droite."},
    {40, u'C', u"Ovarienne gauche."},
    {40, u'C', u"Utérine."},
    {40, u'C', u"Tubaire."},
    {40, u'C', u"Non précisée."},

    // Conclusion
    {41, u'A', u"Examen pelvien sans anomalie."},
    {41, u'A', u"Utérus myomateux."},
    {41, u'A', u"Kyste d'allure fonctionnelle."},
    {41, u'B', u"Kyste d'allure fonctionnelle.\r\nContrôle après les prochaines règles."},
    {41, u'B', u"Formation ovarienne d'allure organique.\r\nAvis chirurgical souhaitable."},
    {41, u'A', u"Dispositif intra-utérin en place."},
    {41, u'B', u"Endomètre épaissi après la ménopause.\r\nHystéroscopie à discuter."},
    {41, u'A', u"Aspect d'ovaires micropolykystiques."},
    {41, u'C', u"Contrôle dans trois mois."},
    {41, u'C', u"À confronter à la clinique et à la biologie."},

    // Indication
    {42, u'C', u"Examen systématique."},
    {42, u'C', u"Contrôle d'un dispositif intra-utérin."},
    {42, u'A', u"Ménométrorragies."},
    {42, u'A', u"Métrorragies après la ménopause."},
    {42, u'A', u"Douleurs pelviennes."},
    {42, u'A', u"Masse palpée à l'examen clinique."},
    {42, u'A', u"Infertilité, bilan initial."},
    {42, u'C', u"Surveillance d'une stimulation de l'ovulation."},
    {42, u'C', u"Contrôle d'un kyste connu."},

    // Remarques du monitorage
    {50, u'A', u"Contrôle dans 48 heures."},
    {50, u'A', u"Contrôle demain matin."},
    {50, u'A', u"Déclenchement à prévoir ce soir."},
    {50, u'A', u"Follicule dominant à droite."},
    {50, u'A', u"Follicule dominant à gauche."},
    {50, u'C', u"Réponse multifolliculaire : risque d'hyperstimulation."},

    {51, u'A', u"Endomètre favorable, en trois feuillets."},
    {51, u'A', u"Endomètre encore fin."},
    {51, u'A', u"Signes d'ovulation récente : collapsus folliculaire, lame liquidienne."},
    {51, u'C', u"Résultats transmis par téléphone au médecin prescripteur."},
};

}  // namespace

std::span<const Phrase> gynaecologyPhrases() {
    return kPhrases;
}

}  // namespace practice
