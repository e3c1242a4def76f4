#pragma once

#include <QString>
#include <functional>
#include <initializer_list>

#include "exams/exam_life.h"

namespace exams {

/// The life of the obstetric exams: both families share one table, one numbering and one display routine.
class ObstetricExams {
public:
    explicit ObstetricExams(ExamLife& life) : life_(life) {}

    ExamLife& life() const { return life_; }

    /// Opens the writing window of the family on a new exam.
    void openNew(dossier::ExamFamily family);

    /// Shows the exam under the shared cursor in the viewing window of its kind; the other one is hidden.
    void display();
    /// Shows the last exam of the open dossier, or says that there is none.
    void showLast();

    /// The number of the exam in view, as it is joined into a query; "0" if no viewing window is loaded.
    QString numberInView() const;

    // Stepping among the exams of the dossier. At the edges the first or last one is shown again.
    void showFirst();
    void showFinal();
    void showPrevious();
    void showNext();

    /// Puts the shared cursor on the exams of the dossier, in their order.
    void reopenDossier();
    /// The same, on the exam in view, so that stepping works again.
    void bringCursorBack();

    /// A new exam's number: that of the last record plus one, 1 for a dossier without any. Leaves the shared cursor on
    /// the last exam.
    QString nextNumber();

    /// Hides or shows the buttons that step on the cursor as it stands, in both viewing windows.
    void setStepping(bool possible);
    /// What a writing window does when it goes: biometry and curves go along, and the cursor comes back.
    void leaveWriting();
    /// The dossier window can't step on a cursor that stands on exams.
    void hideDossierSteps();

    /// Writes the marks of the windows that are loaded into the settings file beside the program.
    void keepMarks();
    /// Closes windows without that: whatever goes with them, the file stays as it is.
    void withoutKeepingMarks(const std::function<void()>& close);
    /// What a viewing window does when it goes: it takes these windows along and leads to a fresh dossier window.
    void leaveViewing(std::initializer_list<QStringView> along);

    /// Asks twice, then deletes the exam in view and clears the writing window of the family; false if a question was
    /// not answered Yes. The caller unloads its viewing window and then puts the cursor on the patients.
    bool deleteInView(const QString& number);

private:
    void step(void (store::Recordset::*move)());
    void showEnd(void (store::Recordset::*move)());
    void closeBiometry();

    ExamLife& life_;
    bool keepsMarks_ = true;
    // While one viewing window takes the other along, the outer one alone leads back.
    bool leaving_ = false;
};

/// Whether the exam under the cursor is one of the first trimester.
bool isFirstTrimester(const store::Recordset& exam);

}  // namespace exams
