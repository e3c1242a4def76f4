#include "shell/form21.h"

#include <algorithm>
#include <array>
#include <vector>

namespace shell {
namespace {

using store::FileKind;

// In the order of their copying.
constexpr std::array kOrder{FileKind::Echo, FileKind::Echotek, FileKind::Nom, FileKind::Atcd};

const QString kFailed = QStringLiteral(
    "Ce repertoire n'est pas valide \n"
    "Ou bien les bases de données n'ont pas été ouvertes.\n\n"
    "Il faut avoir préalablement ouvert les 4 bases NOM.MDB, ECHO.MDB, ATCD.MDB et ECHOTEK.MDB");

const QString& pathOf(const store::State& state, FileKind kind) {
    switch (kind) {
        case FileKind::Nom:
            return state.PathNom;
        case FileKind::Atcd:
            return state.PathAtcd;
        case FileKind::Echotek:
            return state.PathEchotek;
        case FileKind::Echo:
            break;
    }
    return state.PathEcho;
}

// A copy must not take the place of a base in use: what other stations write would go with the old file.
void refuseBasesInUse(const store::State& state, const QString& prefix) {
    for (const FileKind target : kOrder) {
        const QString copy = prefix + store::usualName(target);
        if (std::ranges::any_of(kOrder, [&](FileKind kind) { return store::isSameFile(pathOf(state, kind), copy); })) {
            throw base::RuntimeError(base::ErrorNumber::PermissionDenied);
        }
    }
}

}  // namespace

Form21::Form21(ports::Surroundings& around, store::State& state)
    : Form(around.desk, kName.toString(), QStringLiteral("Sauvegardes")), around_(around), state_(state) {
    CmdSauve1.onClick = [this] { backUp(state_.PathSauve); };
    CmdSauve2.onClick = [this] { backUp(Text1.text()); };
    CmdParcourir.onClick = [this] { browse(); };
    Command1.onClick = [this] { unload(); };
    showProgress(false);
}

void Form21::load() {
    state_.PathSauve =
        around_.settings.read(ports::kApplication, ports::kSection, QStringLiteral("SAUVE"), around_.programFolder);
}

void Form21::browse() {
    const QString chosen =
        around_.fileDialogs.open(QStringLiteral("Fichiers Veranox (*.*)|*.*"), {}, ports::MustExist::No);
    if (!chosen.isEmpty()) {
        Text1.setText(chosen);
    }
}

// After a failure the window stays, and the pointer as it stands.
void Form21::backUp(const QString& prefix) {
    try {
        closeBases();
        setPointer(forms::Pointer::Busy);
        copyBases(prefix);
        setPointer(forms::Pointer::Normal);
    } catch (const base::RuntimeError&) {
        showProgress(false);
        around_.boxes.message(kFailed);
        return;
    }
    around_.boxes.message(QStringLiteral("Sauvegarde terminée"));
    unload();
}

// A base that isn't open fails here.
void Form21::closeBases() {
    state_.DbEcho.close();
    state_.DbAtcd.close();
    state_.DbNom.close();
}

// The copies take their names when all four are sound: the backup before them stays whole until then.
void Form21::copyBases(const QString& prefix) {
    refuseBasesInUse(state_, prefix);
    showProgress(true);
    std::vector<store::Snapshot> copies;
    copies.reserve(kOrder.size());
    for (const FileKind kind : kOrder) {
        copies.emplace_back(pathOf(state_, kind), kind, prefix + store::usualName(kind),
                            [this, kind](store::SnapshotStep step, int percent) { tellProgress(kind, step, percent); });
    }
    for (store::Snapshot& copy : copies) {
        copy.publish();
    }
    showProgress(false);
}

void Form21::tellProgress(FileKind kind, store::SnapshotStep step, int percent) {
    const auto place = std::ranges::find(kOrder, kind) - kOrder.begin();
    const QString what =
        step == store::SnapshotStep::Copying ? QStringLiteral("copie") : QStringLiteral("vérification");
    LblFichier.setText(
        QStringLiteral("%1 (%2 sur %3) : %4").arg(store::usualName(kind)).arg(place + 1).arg(kOrder.size()).arg(what));
    LblAvance.setText(QStringLiteral("%1 %").arg(percent));
}

void Form21::showProgress(bool shown) {
    LblFichier.setVisible(shown);
    LblAvance.setVisible(shown);
}

}  // namespace shell
