// The backup window, from the press of its button to its message, beside `cp`, `sync` and the same check of each copy.

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include "fakes/world.h"
#include "large_practice.h"
#include "shell/form21.h"
#include "shell/program.h"
#include "side_by_side.h"
#include "store/schema.h"
#include "yardstick.h"

using store::FileKind;

namespace {

QString pathOf(FileKind kind) {
    switch (kind) {
        case FileKind::Nom:
            return large_practice::patients();
        case FileKind::Echo:
            return large_practice::exams();
        case FileKind::Atcd:
            return large_practice::histories();
        case FileKind::Echotek:
            break;
    }
    return large_practice::album();
}

QString targetFolder() {
    static const QTemporaryDir folder;
    return folder.path() + u'/';
}

/// The program with the four bases opened, as after a look at a dossier and its history.
class Workstation {
public:
    Workstation() {
        store::State& state = program_.state();
        state.PathNom = pathOf(FileKind::Nom);
        state.PathEcho = pathOf(FileKind::Echo);
        state.PathAtcd = pathOf(FileKind::Atcd);
        state.PathEchotek = pathOf(FileKind::Echotek);
        state.DbNom = store::Database::open(state.PathNom);
        state.DbEcho = store::Database::open(state.PathEcho);
        state.DbAtcd = store::Database::open(state.PathAtcd);
        program_.desk().act([this] { program_.desk().show(u"Form21"_qs); });
        program_.desk().at<shell::Form21>().Text1.setText(targetFolder());
    }

    bool backUp() {
        program_.desk().act([this] { program_.desk().at<shell::Form21>().CmdSauve2.click(); });
        return world_.boxes.said == QStringList{u"Sauvegarde terminée"_qs};
    }

private:
    fakes::World world_;
    shell::Program program_{world_.machine};
};

void backupOurs(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        Workstation station;
        state.ResumeTiming();
        if (!station.backUp()) {
            state.SkipWithError("the backup failed");
        }
    }
}

bool isSound(const QString& path) {
    const yardstick::Connection copy(path);
    yardstick::Statement check(copy, "PRAGMA integrity_check(100)");
    return check.fetch() && check.text(0) == "ok";
}

bool copyPlainly(FileKind kind) {
    const QString target = targetFolder() + u"cp-"_qs + store::usualName(kind);
    return QProcess::execute(u"cp"_qs, {pathOf(kind), target}) == 0 && QProcess::execute(u"sync"_qs, {target}) == 0 &&
           isSound(target);
}

void backupBare(benchmark::State& state) {
    for (const FileKind kind : store::kAllFiles) {
        pathOf(kind);
    }
    for (auto _ : state) {
        for (const FileKind kind : store::kAllFiles) {
            if (!copyPlainly(kind)) {
                state.SkipWithError("a copy failed");
            }
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    side_by_side::pair("backup of four files", backupOurs, backupBare, 2);
    return side_by_side::run(count, arguments);
}
