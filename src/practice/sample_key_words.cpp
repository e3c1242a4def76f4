#include "practice/sample_rows.h"

namespace practice {
namespace {

constexpr KeyWord kKeyWords[] = {
    // Diagnostics
    {0, u"Normal"},
    {0, u"Grossesse gémellaire"},
    {0, u"Grossesse triple"},
    {0, u"Grossesse arrêtée"},
    {0, u"Grossesse extra-utérine"},
    {0, u"Clarté nucale augmentée"},
    {0, u"Retard de croissance"},
    {0, u"Macrosomie"},
    {0, u"Pyélectasie"},
    {0, u"Fente labiale"},
    {0, u"Cardiopathie"},
    {0, u"Spina bifida"},
    {0, u"Omphalocèle"},
    {0, u"Placenta praevia"},
    {0, u"Fibrome utérin"},
    {0, u"Kyste de l'ovaire"},
    {0, u"Endométriome"},
    {0, u"Polype de l'endomètre"},

    // Région
    {1, u"Tête"},
    {1, u"Face"},
    {1, u"Rachis"},
    {1, u"Thorax"},
    {1, u"Coeur"},
    {1, u"Abdomen"},
    {1, u"Reins"},
    {1, u"Membres"},
    {1, u"Cordon"},
    {1, u"Placenta"},
    {1, u"Utérus"},
    {1, u"Ovaire droit"},
    {1, u"Ovaire gauche"},

    // Coupe
    {2, u"Sagittale"},
    {2, u"Frontale"},
    {2, u"Axiale"},
    {2, u"Quatre cavités"},
    {2, u"Profil"},
    {2, u"Doppler couleur"},
    {2, u"Doppler pulsé"},

    // Usage
    {3, u"Enseignement"},
    {3, u"Courrier"},
    {3, u"À revoir"},
    {3, u"Belle image"},
};

}  // namespace

std::span<const KeyWord> sampleKeyWords() {
    return kKeyWords;
}

}  // namespace practice
