#pragma once

#include "fakes/practice_windows.h"
#include "fakes/refusing_file.h"
#include "gyneco/form16.h"
#include "gyneco/form17.h"
#include "gyneco/form18.h"

namespace gyneco {

/// The windows of gynaecology on a small practice: patient 2 is DUPONT Marie, patient 3 is MARTIN Anne.
class GynaecologyWindows : public fakes::PracticeWindows {
protected:
    GynaecologyWindows() {
        auto& windows = world_.desk;
        addBare("Form14");
        windows.add("Form16", [&] { return std::make_unique<Form16>(exams_); });
        windows.add("Form17", [&] { return std::make_unique<Form17>(exams_); });
        windows.add("Form18", [&] { return std::make_unique<Form18>(exams_); });
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
    void twice(forms::ListBox& list, const QString& line) {
        desk().act([&] {
            list.setRow(static_cast<int>(list.items().indexOf(line)));
            list.doubleClick();
        });
    }
    void save(Form16& form) {
        world_.boxes.answers = {true};
        press(form.CmdEnregis);
    }
    void addExam(int patient, int number, const QString& date, const fakes::Fields& more = {}) {
        fakes::addExam(world_, "GYNECO", patient, number, date, more);
    }
    void addExams(const QStringList& dates) {
        for (int i = 0; i < dates.size(); ++i) {
            addExam(2, i + 1, dates[i]);
        }
    }
    QStringList stored(int patient, const QString& field) { return PracticeWindows::stored("GYNECO", patient, field); }

    void openNew(dossier::ExamFamily) override { exams_.openNew(); }
    void showGynaecologyExam() override { exams_.display(); }

    GynaecologyExams exams_{life_};
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
