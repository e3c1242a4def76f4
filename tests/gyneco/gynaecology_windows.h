#pragma once

#include <gtest/gtest.h>

#include "fakes/practice_files.h"
#include "fakes/refusing_file.h"
#include "gyneco/form16.h"
#include "gyneco/form17.h"
#include "gyneco/form18.h"
#include "reports/riche_t.h"

namespace gyneco {

/// The windows of gynaecology on a small practice: patient 2 is DUPONT Marie, patient 3 is MARTIN Anne.
class GynaecologyWindows : public ::testing::Test, public dossier::ExamDoors {
protected:
    GynaecologyWindows() {
        fakes::makeFiles(world_);
        fakes::addPatient(world_, 1, "DOSSIER MODELE", " ");
        fakes::addPatient(world_, 2, "DUPONT", "Marie");
        fakes::addPatient(world_, 3, "MARTIN", "Anne");
        auto& windows = world_.desk;
        for (const char* name : {"Form1", "Form14"}) {
            windows.add(name, [&windows, name] { return std::make_unique<Bare>(windows, name); });
        }
        windows.add("Form4", [&] { return std::make_unique<dossier::Form4>(world_.around, state_, *this); });
        windows.add("Form16", [&] { return std::make_unique<Form16>(exams_); });
        windows.add("Form17", [&] { return std::make_unique<Form17>(exams_); });
        windows.add("Form18", [&] { return std::make_unique<Form18>(exams_); });
        windows.add("RicheT", [&] { return std::make_unique<reports::RicheT>(world_.around); });
        windows.setUnknown([this](const QString& name) { unknown_ << name; });
    }

    /// Opens the dossier window on a patient, by her surname.
    dossier::Form4& dossierOf(const QString& surname) {
        desk().show("Form4");
        auto& window = desk().at<dossier::Form4>();
        window.Text1.setText(surname);
        return window;
    }
    Form16& newExam(const QString& surname = "DUPONT") {
        press(dossierOf(surname).CmdGyneco);
        return desk().at<Form16>();
    }
    Form18& view() { return desk().at<Form18>(); }
    /// Shows the last exam of a patient.
    Form18& viewLast(const QString& surname = "DUPONT") {
        press(dossierOf(surname).Command5);
        return view();
    }
    Form17& correct() {
        press(view().CmdModifs);
        return desk().at<Form17>();
    }
    template <class Pressed>
    void press(Pressed& control) {
        desk().act([&] { control.click(); });
    }
    void twice(forms::ListBox& list, const QString& line) {
        desk().act([&] {
            list.setRow(static_cast<int>(list.items().indexOf(line)));
            list.doubleClick();
        });
    }
    void focus(forms::Control& control) {
        desk().act([&] { control.form().moveFocus(control); });
    }
    void save(Form16& form) {
        world_.boxes.answers = {true};
        press(form.CmdEnregis);
    }
    bool shown(const QString& form) {
        const forms::Form* found = world_.desk.peek(form);
        return found && found->shown();
    }
    bool loaded(const QString& form) { return world_.desk.peek(form) != nullptr; }
    forms::Desk& desk() { return world_.desk; }

    void addExam(int patient, int number, const QString& date, const fakes::Fields& more = {}) {
        fakes::addExam(world_, "GYNECO", patient, number, date, more);
    }
    void addExams(const QStringList& dates) {
        for (int i = 0; i < dates.size(); ++i) {
            addExam(2, i + 1, dates[i]);
        }
    }
    void store(int rubric, const QString& text, const QString& closing = "A") {
        fakes::add(world_, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", text}, {"TERMINAIS", closing}});
    }
    store::Recordset query(const QString& text) {
        return store::Database::open(fakes::pathOf(world_, store::FileKind::Echo)).openRecordset(text);
    }
    /// A field of each exam of a patient, in their order.
    QStringList stored(int patient, const QString& field) {
        auto rows = query(QStringLiteral("SELECT*FROM GYNECO WHERE NUMERO=%1 ORDER BY NUMECHO").arg(patient));
        QStringList values;
        for (; !rows.eof(); rows.moveNext()) {
            values << rows.text(field);
        }
        return values;
    }

    void openNew(dossier::ExamFamily) override { exams_.openNew(); }
    void showObstetricExam() override {}
    void showGynaecologyExam() override { exams_.display(); }
    void nameNewExam(const QString&, const QString&) override {}

    class Bare final : public forms::Form {
    public:
        Bare(forms::Desk& desk, const QString& name) : Form(desk, name, name) {}
    };

    fakes::World world_;
    store::State state_;
    exams::ExamLife life_{world_.around, state_};
    GynaecologyExams exams_{life_};
    QStringList unknown_;
};

/// Each field of the writing window in the order of its index, from 1 on: its field in the record.
inline const QStringList kFieldNames{
    "OPERATEUR", "DDR",     "MODEXAM", "CONDITIONS", "INDI",    "SITUATION", "LONGUEUR",  "LARG",   "EPAIS",
    "STRUCTURE", "CAVITE",  "ENDO",    "EENDO",      "DIU",     "MASSE",     "OVD",       "OVG",    "TD",
    "TG",        "DOUGLAS", "SITUA",   "DIMENSIONS", "STRUCT",  "NAT",       "ORIGINE",   "CONCLU", "JSTIM",
    "DIMOVD",    "NBRFOLD", "DIMFOLD", "DIMOVG",     "NBRFOLG", "DIMFOLG",   "ENDOMETRE", "DOP1",   "DOP2"};

/// A record whose every field holds its own name.
inline fakes::Fields namedFields() {
    fakes::Fields fields{{"MACHINE", QStringLiteral("MACHINE")}, {"DATECIRC", QStringLiteral("DATECIRC")}};
    for (const QString& name : kFieldNames) {
        fields << std::pair{name, store::Value(name)};
    }
    return fields;
}

}  // namespace gyneco
