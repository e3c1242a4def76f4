#pragma once

#include <gtest/gtest.h>

#include "dossier/form2.h"
#include "dossier/form3.h"
#include "dossier/form4.h"
#include "dossier/sheet_rows.h"
#include "fakes/practice_files.h"

namespace dossier {

using fakes::addExam;
using fakes::addPatient;
using forms::Form;

class RecordingDoors final : public ExamDoors {
public:
    explicit RecordingDoors(store::State& state) : state_(state) {}
    void openNew(ExamFamily family) override { log << QStringLiteral("new %1").arg(static_cast<int>(family)); }
    void showObstetricExam() override { log << "obstetric " + state_.Rs.text("NUMECHO"); }
    void showGynaecologyExam() override { log << "gynaecology " + state_.Rs.text("NUMECHO"); }
    void nameNewExam(const QString& surname, const QString& firstName) override { log << surname + u'/' + firstName; }
    QStringList log;

private:
    store::State& state_;
};

class OtherForm final : public Form {
public:
    explicit OtherForm(forms::Desk& desk, const QString& name) : Form(desk, name, name) {}
};

/// The dossier window of a practice with six patients, and the sheets that it opens.
class DossierWindow : public ::testing::Test {
protected:
    DossierWindow() {
        fakes::makeFiles(world_);
        addPatient(world_, 1, "DOSSIER MODELE", " ");
        addPatient(world_, 2, "DUPONT", "Marie", {{"SEXE", "F"}, {"DATENAISS", QDate(1975, 12, 31)}});
        addPatient(world_, 3, "DUPONT", "Anne");
        addPatient(world_, 4, "ALBERT", "Zoé");
        addPatient(world_, 5, "D'ALMEIDA", "Inès");
        addPatient(world_, 6, "MARTIN", "Paul", {{"SEXE", "M"}});
        world_.desk.add("Form4", [this] { return std::make_unique<Form4>(world_.around, state_, doors_); });
        world_.desk.add("Form2", [this] { return std::make_unique<Form2>(world_.around, state_); });
        world_.desk.add("Form3", [this] { return std::make_unique<Form3>(world_.around, state_); });
        world_.desk.add("Form1", [this] { return std::make_unique<OtherForm>(world_.desk, "Form1"); });
    }

    Form4& open() {
        world_.desk.show("Form4");
        return world_.desk.at<Form4>();
    }
    Form4& openOn(const QString& surname) {
        Form4& form = open();
        form.Text1.setText(surname);
        return form;
    }
    // What a person's click does, the default report included.
    void click(forms::Control& control) {
        world_.desk.act([&] { control.click(); });
    }
    // The records of a table as the disk holds them, on a handle of their own.
    store::Recordset stored(store::FileKind file, const QString& query) {
        return store::Database::open(fakes::pathOf(world_, file)).openRecordset(query);
    }
    store::Recordset storedPatient(int number) {
        return stored(store::FileKind::Nom, QStringLiteral("SELECT*FROM FICHEPATIENT WHERE NUMINT=%1").arg(number));
    }
    void removePatient(int number) { storedPatient(number).remove(); }
    int patientCount() { return stored(store::FileKind::Nom, "SELECT*FROM FICHEPATIENT").recordCount(); }
    // A text or combo box of a sheet, by its name.
    static forms::TextControl& box(const Form& form, const char* name) {
        return *dynamic_cast<forms::TextControl*>(form.find(QString(name)));
    }
    static void enterAll(const Form& form) {
        for (const SheetRow& row : sheetRows()) {
            box(form, row.control).setText(row.entry);
        }
    }
    void expectAllStored(int number) {
        const store::Recordset record = storedPatient(number);
        for (const SheetRow& row : sheetRows()) {
            EXPECT_EQ(record.field(row.field), row.stored) << row.field;
        }
    }
    static QString shown(const Form4& form) {
        return form.NumLbl.text() + u' ' + form.NomLbl.text() + u' ' + form.PrenomLbl.text();
    }
    // What a person types into a box, key by key.
    static void type(forms::TextBox& box, const QString& text) {
        for (const QChar c : text) {
            forms::KeyPress key(c);
            box.onKey(key);
            if (!key.swallowed()) {
                box.setText(box.text() + key.character());
            }
        }
    }
    void letterhead(int rubric, const QString& text) {
        fakes::add(world_, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", text}, {"TERMINAIS", "A"}});
    }
    void exams() {
        addExam(world_, "1TER", 2, 1, "10/01/2002", {{"TYPECHO", "1"}});
        addExam(world_, "1TER", 2, 3, "12/03/2002", {{"TYPECHO", "2"}});
        addExam(world_, "1TER", 2, 2, "12/03/2002", {{"TYPECHO", "2"}});
        addExam(world_, "GYNECO", 2, 1, "04/05/2001");
        addExam(world_, "1TER", 4, 1, "01/01/2002", {{"TYPECHO", "1"}});
    }

    fakes::World world_;
    store::State state_;
    RecordingDoors doors_{state_};
};

}  // namespace dossier
