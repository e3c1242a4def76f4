#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr Phrase kPhrases[] = {
    // Praticiens
    {1, u'C', u"Docteur Hélène VAUCLAIR"},
    {1, u'C', u"Docteur Marc-Antoine SERVAL"},
    {1, u'C', u"Docteur Noëlle BERTHOUX, remplaçante"},

    // Modalités d'examen
    {2, u'C', u"Voie abdominale."},
    {2, u'C', u"Voie endovaginale."},
    {2, u'C', u"Voie abdominale complétée par la voie endovaginale."},
    {2, u'A', u"Examen complété par un Doppler couleur et pulsé."},
    {2, u'A', u"Patiente informée des limites de l'examen."},

    // Conditions d'examen
    {3, u'C', u"Bonnes."},
    {3, u'C', u"Moyennes."},
    {3, u'A', u"Difficiles."},
    {3, u'A', u"Paroi épaisse."},
    {3, u'A', u"Position foetale défavorable."},
    {3, u'A', u"Cicatrice abdominale gênante."},
    {3, u'C', u"Vessie insuffisamment remplie."},

    // Indication obstétricale
    {7, u'C', u"Surveillance systématique de la grossesse."},
    {7, u'C', u"Datation de la grossesse."},
    {7, u'C', u"Métrorragies du premier trimestre."},
    {7, u'A', u"Douleurs pelviennes."},
    {7, u'A', u"Contrôle de la croissance foetale."},
    {7, u'A', u"Hauteur utérine insuffisante pour le terme."},
    {7, u'A', u"Hauteur utérine excessive pour le terme."},
    {7, u'A', u"Menace d'accouchement prématuré : mesure du col."},
    {7, u'A', u"Diabète gestationnel."},
    {7, u'A', u"Contrôle de la présentation."},
    {7, u'A', u"Diminution des mouvements actifs."},
    {7, u'C', u"Terme dépassé."},

    // Utérus
    {8, u'C', u"Gravide, de contours réguliers, sans anomalie myométriale."},
    {8, u'A', u"Utérus fibromateux."},
    {8, u'A', u"Noyau myomateux interstitiel fundique mesurant      mm."},
    {8, u'A', u"Noyau myomateux sous-séreux sans retentissement sur la cavité."},
    {8, u'A', u"Utérus cicatriciel, segment inférieur régulier."},
    {8, u'A', u"Col long et fermé mesurant      mm."},
    {8, u'A', u"Col raccourci à      mm, orifice interne ouvert."},
    {8, u'C', u"Utérus bicorne, grossesse développée dans la corne droite."},

    // Annexes
    {9, u'C', u"Pas d'anomalie visible."},
    {9, u'C', u"Corps jaune gravidique droit."},
    {9, u'C', u"Corps jaune gravidique gauche."},
    {9, u'A', u"Kyste liquidien de l'ovaire droit mesurant      mm."},
    {9, u'A', u"Kyste liquidien de l'ovaire gauche mesurant      mm."},
    {9, u'A', u"Formation hétérogène à revoir après l'accouchement."},
    {9, u'C', u"Annexes non visualisées en raison du terme."},

    // Douglas
    {10, u'C', u"Libre."},
    {10, u'C', u"Lame liquidienne physiologique."},
    {10, u'C', u"Épanchement de faible abondance."},
    {10, u'C', u"Épanchement abondant, échogène."},
    {10, u'C', u"Non accessible à ce terme."},

    // Liquide amniotique
    {12, u'C', u"Quantité normale."},
    {12, u'A', u"Diminué."},
    {12, u'A', u"Excès modéré de liquide."},
    {12, u'A', u"Hydramnios."},
    {12, u'A', u"Anamnios."},
    {12, u'C', u"Plus grande citerne mesurée à      mm."},
    {12, u'C', u"Identique dans les deux poches."},

    // Appareil et date de mise en service
    {14, u'C', u"ORIVANNE 3500"},
    {15, u'C', u"04/09/2000"},

    // En-tête des comptes rendus
    {19, u'C', u"CABINET D'ÉCHOGRAPHIE DES TILLEULS"},
    {20, u'C', u"Docteur Hélène VAUCLAIR"},
    {21, u'C', u"12, place du Marché-aux-Grains"},
    {22, u'C', u"99310 BELVAUDE-SUR-ORLE"},
    {23, u'C', u"05 36 49 10 10"},
};

}  // namespace

std::span<const Phrase> practicePhrases() {
    return kPhrases;
}

}  // namespace practice
