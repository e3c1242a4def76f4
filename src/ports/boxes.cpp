#include "ports/boxes.h"

namespace ports {

QString reportText(const base::RuntimeError& error) {
    return QStringLiteral("Erreur d'exécution '%1' :\n\n%2").arg(static_cast<int>(error.number())).arg(error.text());
}

}  // namespace ports
