#pragma once

#include <gtest/gtest.h>

#include "biometry/form12.h"
#include "biometry/form13.h"
#include "biometry/sample_exam.h"
#include "fakes/practice_files.h"

namespace biometry {

/// The exam in view as a test sets it.
class SetExam final : public ExamInView {
public:
    Exam exam() const override { return value; }
    Exam value = sampleExam();
};

/// The biometry and curves windows on the files of a practice, whose patient 2 has the exams that a test adds.
class BiometryWindows : public ::testing::Test {
protected:
    BiometryWindows() {
        fakes::makeFiles(world_);
        fakes::addPatient(world_, 2, "DUPONT", "Marie");
        state_.PathEcho = fakes::pathOf(world_, store::FileKind::Echo);
        world_.desk.add("Form12", [&] { return std::make_unique<Form12>(world_.around, state_, shown_); });
        world_.desk.add("Form13", [&] { return std::make_unique<Form13>(world_.desk); });
    }

    forms::Desk& desk() { return world_.desk; }
    Exam& exam() { return shown_.value; }
    /// Opens the biometry of the exam as it stands.
    Form12& open() {
        desk().act([&] { showBiometry(desk()); });
        return desk().at<Form12>();
    }
    /// Opens it on the fetus of this panel, of three.
    Form12& openFetus(int fetus) {
        exam().fetusCount = "3";
        exam().panels = {fetus == 1, fetus == 2, fetus == 3};
        return open();
    }
    Form13& curves() {
        desk().act([&] { desk().at<Form12>().Courbe.click(); });
        return desk().at<Form13>();
    }
    void press(forms::Control& control) {
        desk().act([&] { control.click(); });
    }
    void write(forms::TextBox& box, const QString& text) {
        desk().act([&] { box.setText(text); });
    }
    void scroll(forms::ScrollBar& bar, int value) {
        desk().act([&] { bar.setValue(value); });
    }
    /// Types a character through the key filter.
    static void type(forms::TextBox& box, QChar c) {
        forms::KeyPress key(c);
        if (box.onKey) {
            box.onKey(key);
        }
        if (!key.swallowed()) {
            box.setText(box.text() + key.character());
        }
    }
    void addExam(int number, const QString& start, const fakes::Fields& more = {}, int patient = 2) {
        fakes::addExam(world_, "1TER", patient, number, "21/05/2002", fakes::Fields{{"DGUS", start}} + more);
    }

    fakes::World world_;
    store::State state_;
    SetExam shown_;
};

}  // namespace biometry
