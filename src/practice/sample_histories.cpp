#include "practice/sample_rows.h"

namespace practice {
namespace {

// A new history begins with one blank.
constexpr History kHistories[] = {
    {2, u" Première grossesse. Appendicectomie en 1985."},
    {3, u" G2 P1. Un enfant né en 1998 à 37 semaines, 2 350 g.\r\nTabac : 10 cigarettes par jour."},
    {4, u" G3 P2. Deux accouchements par voie basse. Groupe O négatif, agglutinines irrégulières négatives."},
    {5, u" Infertilité d'origine tubaire. Deux tentatives de fécondation in vitro, la seconde avec succès."},
    {6, u" Première grossesse. Père jumeau."},
    {7, u" Stimulation de l'ovulation pour ovaires micropolykystiques.\r\nAllergie à la pénicilline."},
    {8, u" G4 P3. Enfants de 3 900 g, 4 150 g et 4 300 g. Diabète gestationnel lors de la dernière grossesse."},
    {11, u" Première grossesse. Pas d'antécédent notable."},
    {14, u" Un enfant né en mars 2001, voie basse, 3 280 g. Dispositif intra-utérin de mai à octobre 2001."},
    {15, u" G3 P2. Césariennes en 1996 et 1999."},
    {17, u" Hypertension artérielle traitée. Poids avant la grossesse : 89 kg."},
    {21, u" G2 P0. Une fausse couche précoce en 2000."},
    {22, u" Conisation en 2000."},
    {25, u" Trois enfants. Anémie suivie par le médecin traitant."},
    {28, u" Deux enfants. Contraception orale interrompue en 2001."},
    {29, u" Infertilité depuis 2000. Hystérosalpingographie normale. Spermogramme normal."},
    {36, u" Cancer du sein opéré en 2000, sous traitement anti-oestrogène."},
    {40, u" Grossesse extra-utérine gauche en 1999, salpingectomie."},
};

}  // namespace

std::span<const History> sampleHistories() {
    return kHistories;
}

}  // namespace practice
