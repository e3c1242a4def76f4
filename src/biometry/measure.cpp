#include "biometry/measure.h"

namespace biometry {

QString measureName(Measure measure) {
    switch (measure) {
        case Measure::Bip:
            return QStringLiteral("Diamètre Bipariétal");
        case Measure::Cc:
            return QStringLiteral("Circonférence Céphalique");
        case Measure::Dat:
            return QStringLiteral("Diamètre Abdominal Transverse");
        case Measure::Ca:
            return QStringLiteral("Circonférence Abdominale");
        case Measure::Fem:
            return QStringLiteral("Fémur");
        case Measure::Pied:
            return QStringLiteral("Pied");
        case Measure::Hum:
            return QStringLiteral("Humérus");
        case Measure::Cer:
            return QStringLiteral("Cervelet");
        case Measure::Orb:
            return QStringLiteral("Distance Inter Orbitaire");
    }
    return {};
}

}  // namespace biometry
