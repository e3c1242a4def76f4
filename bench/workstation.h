#pragma once

#include "dossier/form4.h"
#include "fakes/world.h"
#include "large_practice.h"
#include "shell/program.h"
#include "store/schema.h"

/// The program on the files of a large practice, its dossier window open. Nothing shows it unless a stage is set.
class Workstation {
public:
    Workstation(const QString& patients, const QString& exams) {
        put(store::FileKind::Nom, patients);
        put(store::FileKind::Echo, exams);
        openDossierWindow();
    }

    void openDossierWindow() {
        desk().act([this] { desk().show(u"Form4"_qs); });
    }
    /// Takes the dossier window away and closes the files.
    void closeAll() {
        desk().act([this] { desk().unload(u"Form4"_qs); });
        program_.state() = {};
    }

    forms::Desk& desk() { return program_.desk(); }
    dossier::Form4& dossierWindow() { return desk().at<dossier::Form4>(); }
    void press(forms::Button& button) {
        desk().act([&button] { button.click(); });
    }
    /// Opens a dossier as the search leaves it.
    void openDossier(int number) {
        dossierWindow().NumLbl.setText(QString::number(number));
        dossierWindow().NomLbl.setText(u"DUMONT"_qs);
    }
    /// Whether the program has said nothing at all: no message, no error.
    bool isQuiet() const { return world_.boxes.said.isEmpty() && world_.boxes.reported.isEmpty(); }

private:
    void put(store::FileKind kind, const QString& path) { world_.settings.put(store::settingName(kind), path); }

    fakes::World world_;
    shell::Program program_{world_.machine};
};
