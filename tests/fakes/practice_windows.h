#pragma once

#include <gtest/gtest.h>

#include "dossier/form4.h"
#include "exams/exam_life.h"
#include "fakes/practice_files.h"
#include "reports/riche_t.h"

namespace fakes {

/// The dossier window and the report editor on a small practice: patient 2 is DUPONT Marie, patient 3 is MARTIN Anne.
/// What an exam family adds stands in its own fixture.
class PracticeWindows : public ::testing::Test, public dossier::ExamDoors {
protected:
    PracticeWindows() {
        makeFiles(world_);
        addPatient(world_, 1, "DOSSIER MODELE", " ");
        addPatient(world_, 2, "DUPONT", "Marie");
        addPatient(world_, 3, "MARTIN", "Anne");
        addBare("Form1");
        desk().add("Form4", [this] { return std::make_unique<dossier::Form4>(world_.around, state_, *this); });
        desk().add("RicheT", [this] { return std::make_unique<reports::RicheT>(world_.around); });
    }
    ~PracticeWindows() override {
        for (const QString& text : world_.boxes.reportedTexts) {
            RecordProperty("report", text.toStdString());
        }
    }

    /// A window of which a test only wants to know that it is there.
    void addBare(const QString& name) {
        desk().add(name, [this, name] { return std::make_unique<Bare>(desk(), name); });
    }
    /// Opens the dossier window on a patient, by her surname.
    dossier::Form4& dossierOf(const QString& surname) {
        desk().show("Form4");
        auto& window = desk().at<dossier::Form4>();
        window.Text1.setText(surname);
        return window;
    }
    template <class Pressed>
    void press(Pressed& control) {
        desk().act([&] { control.click(); });
    }
    void write(forms::TextBox& box, const QString& text) {
        desk().act([&] { box.setText(text); });
    }
    void focus(forms::Control& control) {
        desk().act([&] { control.form().moveFocus(control); });
    }
    bool shown(const QString& form) {
        const forms::Form* found = world_.desk.peek(form);
        return found && found->shown();
    }
    bool loaded(const QString& form) { return world_.desk.peek(form) != nullptr; }
    forms::Desk& desk() { return world_.desk; }

    void store(int rubric, const QString& text, const QString& closing = "A") {
        fakes::add(world_, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", text}, {"TERMINAIS", closing}});
    }
    /// Runs a query on the base of the exams.
    store::Recordset query(const QString& text) {
        return store::Database::open(pathOf(world_, store::FileKind::Echo)).openRecordset(text);
    }
    /// A field of each exam of a patient, in their order.
    QStringList stored(const QString& table, int patient, const QString& field) {
        auto rows = query(QStringLiteral("SELECT*FROM %1 WHERE NUMERO=%2 ORDER BY NUMECHO").arg(table).arg(patient));
        QStringList values;
        for (; !rows.eof(); rows.moveNext()) {
            values << rows.text(field);
        }
        return values;
    }

    void showObstetricExam() override {}
    void showGynaecologyExam() override {}
    void nameNewExam(const QString&, const QString&) override {}

    /// What the album is handed.
    class PictureWindow final : public forms::Form {
    public:
        PictureWindow(forms::Desk& desk, const QString& name) : Form(desk, name, name) {}
        forms::TextBox TxtRechNom{*this, "TxtRechNom"};
        forms::TextBox TxtRechDate{*this, "TxtRechDate"};
        forms::TextBox TxtRechNumEcho{*this, "TxtRechNumEcho"};
    };

    World world_;
    store::State state_;
    exams::ExamLife life_{world_.around, state_};

private:
    class Bare final : public forms::Form {
    public:
        Bare(forms::Desk& desk, const QString& name) : Form(desk, name, name) {}
    };
};

}  // namespace fakes
