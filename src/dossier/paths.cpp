#include "dossier/paths.h"

namespace dossier {
namespace {

QString setting(const ports::Surroundings& around, const QString& key, const QString& fallback) {
    return around.settings.read(ports::kApplication, ports::kSection, key, fallback);
}

}  // namespace

QString echoPath(const ports::Surroundings& around) {
    return setting(around, QStringLiteral("CHEMIN"), around.programFolder);
}

void readPaths(const ports::Surroundings& around, store::State& state) {
    state.PathNom = setting(around, QStringLiteral("CHEMCIV"), around.programFolder);
    state.PathEcho = echoPath(around);
    state.PathAtcd = setting(around, QStringLiteral("CHEMATCD"), around.programFolder);
    state.PathEchotek = setting(around, QStringLiteral("CHEMINS"), {});
    state.WorkEcho = state.PathEcho;
    state.WorkNom = state.PathNom;
    state.WorkAtcd = state.PathAtcd;
}

bool endsInName(const QString& path, const QString& name) {
    return path.endsWith(name, Qt::CaseInsensitive);
}

QString missingBaseMessage(const QString& name) {
    return QStringLiteral(
               "La base de données '%1' est introuvable. Veuillez à l'aide du SUPERVISEUR la placer dans un "
               "repertoire quelconque de votre reseau puis relancer le programme")
        .arg(name);
}

}  // namespace dossier
