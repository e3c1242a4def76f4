#pragma once

#include <QFile>

#include "exams/form10.h"
#include "exams/form11.h"
#include "exams/form5.h"
#include "exams/form6.h"
#include "exams/form7.h"
#include "exams/form8.h"
#include "fakes/practice_windows.h"

namespace exams {

/// The obstetric exam windows on a small practice: patient 2 is DUPONT Marie, patient 3 is MARTIN Anne.
class ExamWindows : public fakes::PracticeWindows {
protected:
    ExamWindows() {
        auto& desk = world_.desk;
        desk.add("Form5", [&] { return std::make_unique<Form5>(exams_); });
        desk.add("Form6", [&] { return std::make_unique<Form6>(exams_); });
        desk.add("Form7", [&] { return std::make_unique<Form7>(exams_); });
        desk.add("Form8", [&] { return std::make_unique<Form8>(exams_); });
        desk.add("Form11", [&] { return std::make_unique<Form11>(exams_); });
        desk.add("Form10", [&] { return std::make_unique<Form10>(exams_); });
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
    Form8& newLater(const QString& surname = "DUPONT") {
        press(dossierOf(surname).Cmd2Ter);
        return desk().at<Form8>();
    }
    Form11& correctLater() {
        press(laterView().CmdModifs);
        return desk().at<Form11>();
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
    void addExam(int patient, int number, const QString& date, const fakes::Fields& more = {{"TYPECHO", "1"}}) {
        fakes::addExam(world_, "1TER", patient, number, date, more);
    }
    void addLater(int patient, int number, const QString& date, const fakes::Fields& more = {}) {
        addExam(patient, number, date, fakes::Fields{{"TYPECHO", "0"}} + more);
    }
    QStringList stored(int patient, const QString& field) { return PracticeWindows::stored("1TER", patient, field); }

    /// Puts a settings file beside the program; what it holds.
    void settingsFile(const QByteArray& text) {
        QFile file(world_.folder.filePath("Settings"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray settings() {
        QFile file(world_.folder.filePath("Settings"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void openNew(dossier::ExamFamily family) override { exams_.openNew(family); }
    void showObstetricExam() override { exams_.display(); }

    ObstetricExams exams_{life_};
};

}  // namespace exams
