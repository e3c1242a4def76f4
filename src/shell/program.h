#pragma once

#include "dossier/exam_doors.h"
#include "exams/obstetric_exams.h"
#include "forms/desk.h"
#include "gyneco/gynaecology_exams.h"
#include "ports/surroundings.h"
#include "shell/later_exam_in_view.h"
#include "store/state.h"

namespace shell {

/// The whole program but its view: makes every window known to the desk and hands each what it needs.
class Program final : public dossier::ExamDoors {
public:
    explicit Program(const ports::Machine& machine);

    forms::Desk& desk() { return desk_; }
    store::State& state() { return state_; }

    /// Brings up the main menu.
    void start();
    /// Opens the help at the chapter about a window.
    void showHelp(const QString& window);

private:
    void openNew(dossier::ExamFamily family) override;
    void showObstetricExam() override;
    void showGynaecologyExam() override;
    void nameNewExam(const QString& surname, const QString& firstName) override;
    void addWindows();

    store::State state_;
    forms::Desk desk_;
    ports::Surroundings around_;
    exams::ExamLife examLife_{around_, state_};
    exams::ObstetricExams obstetric_{examLife_};
    LaterExamInView laterExam_{desk_};
    gyneco::GynaecologyExams gynaecology_{examLife_};
};

}  // namespace shell
