#pragma once

#include <gtest/gtest.h>

#include "exams/form10.h"
#include "exams/form5.h"
#include "exams/form6.h"
#include "exams/form7.h"
#include "fakes/practice_files.h"
#include "reports/riche_t.h"

namespace exams {

/// The obstetric exam windows on a small practice: patient 2 is DUPONT Marie, patient 3 is MARTIN Anne.
class ExamWindows : public ::testing::Test, public dossier::ExamDoors {
protected:
    ~ExamWindows() override {
        for (const QString& text : world_.boxes.reportedTexts) {
            RecordProperty("report", text.toStdString());
        }
    }
    ExamWindows() {
        fakes::makeFiles(world_);
        fakes::addPatient(world_, 1, "DOSSIER MODELE", " ");
        fakes::addPatient(world_, 2, "DUPONT", "Marie");
        fakes::addPatient(world_, 3, "MARTIN", "Anne");
        auto& desk = world_.desk;
        desk.add("Form1", [&] { return std::make_unique<Bare>(desk, "Form1"); });
        desk.add("Form4", [&] { return std::make_unique<dossier::Form4>(world_.around, state_, *this); });
        desk.add("Form5", [&] { return std::make_unique<Form5>(exams_); });
        desk.add("Form6", [&] { return std::make_unique<Form6>(exams_); });
        desk.add("Form7", [&] { return std::make_unique<Form7>(exams_); });
        desk.add("Form10", [&] { return std::make_unique<Form10>(exams_); });
        desk.add("RicheT", [&] { return std::make_unique<reports::RicheT>(world_.around); });
        desk.setUnknown([this](const QString& name) { unknown_ << name; });
    }

    /// Opens the dossier window on a patient, by her surname.
    dossier::Form4& dossierOf(const QString& surname) {
        desk().show("Form4");
        auto& window = desk().at<dossier::Form4>();
        window.Text1.setText(surname);
        return window;
    }
    Form5& newExam(const QString& surname = "DUPONT") {
        press(dossierOf(surname).Cmd1Ter);
        return desk().at<Form5>();
    }
    Form6& view() { return desk().at<Form6>(); }
    /// Shows the last exam of a patient.
    Form6& viewLast(const QString& surname = "DUPONT") {
        press(dossierOf(surname).HlbCptDer);
        return view();
    }
    Form10& laterView() { return desk().at<Form10>(); }
    /// The same for a patient whose last exam is one of the later trimesters.
    Form10& viewLastLater(const QString& surname = "DUPONT") {
        press(dossierOf(surname).HlbCptDer);
        return laterView();
    }
    Form7& correct() {
        press(view().CmdModifs);
        return desk().at<Form7>();
    }
    void press(forms::Button& button) {
        desk().act([&] { button.click(); });
    }
    void press(forms::Menu& entry) {
        desk().act([&] { entry.click(); });
    }
    void write(forms::TextBox& box, const QString& text) {
        desk().act([&] { box.setText(text); });
    }
    /// Types a character through the key filter.
    void type(forms::TextBox& box, QChar c) {
        forms::KeyPress key(c);
        desk().act([&] {
            if (box.onKey) {
                box.onKey(key);
            }
        });
        if (key.swallowed()) {
            return;
        }
        const bool back = key.character() == forms::kBackspace;
        write(box, back ? box.text().chopped(std::min<qsizetype>(1, box.text().size())) : box.text() + key.character());
    }
    bool shown(const QString& form) {
        const forms::Form* found = world_.desk.peek(form);
        return found && found->shown();
    }
    forms::Desk& desk() { return world_.desk; }

    void addExam(int patient, int number, const QString& date, const fakes::Fields& more = {{"TYPECHO", "1"}}) {
        fakes::addExam(world_, "1TER", patient, number, date, more);
    }
    void addLater(int patient, int number, const QString& date, const fakes::Fields& more = {}) {
        addExam(patient, number, date, fakes::Fields{{"TYPECHO", "0"}} + more);
    }
    void store(int rubric, const QString& text) {
        fakes::add(world_, "OPTIONS", {{"NUMEROS", rubric}, {"Texte", text}, {"TERMINAIS", "A"}});
    }
    /// A field of each exam of a patient, in their order.
    QStringList stored(int patient, const QString& field) {
        auto rows =
            store::Database::open(fakes::pathOf(world_, store::FileKind::Echo))
                .openRecordset(QStringLiteral("SELECT*FROM 1TER WHERE NUMERO=%1 ORDER BY NUMECHO").arg(patient));
        QStringList values;
        for (; !rows.eof(); rows.moveNext()) {
            values << rows.text(field);
        }
        return values;
    }

    void openNew(dossier::ExamFamily family) override { exams_.openNew(family); }
    void showObstetricExam() override { exams_.display(); }
    void showGynaecologyExam() override {}
    void nameNewExam(const QString&, const QString&) override {}

    class Bare final : public forms::Form {
    public:
        Bare(forms::Desk& desk, const QString& name) : Form(desk, name, name) {}
    };

    /// What the windows of pictures are handed.
    class PictureWindow final : public forms::Form {
    public:
        PictureWindow(forms::Desk& desk, const QString& name) : Form(desk, name, name) {}
        forms::TextBox TxtNumEcho{*this, "TxtNumEcho"};
        forms::TextBox TxtRechNom{*this, "TxtRechNom"};
        forms::TextBox TxtRechDate{*this, "TxtRechDate"};
        forms::TextBox TxtRechNumEcho{*this, "TxtRechNumEcho"};
    };

    fakes::World world_;
    store::State state_;
    ExamLife life_{world_.around, state_};
    ObstetricExams exams_{life_};
    QStringList unknown_;
};

}  // namespace exams
