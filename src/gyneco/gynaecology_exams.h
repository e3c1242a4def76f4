#pragma once

#include <QString>

#include "exams/exam_life.h"

namespace gyneco {

/// The life of the gynaecological exams: a table, a numbering and a display routine of their own.
class GynaecologyExams {
public:
    explicit GynaecologyExams(exams::ExamLife& life) : life_(life) {}

    exams::ExamLife& life() const { return life_; }

    /// Opens the writing window on a new exam.
    void openNew();
    /// Shows the exam under the shared cursor in the viewing window.
    void display();

    // Stepping among the exams of the dossier. At the edges the first or last one is shown again.
    void showFirst();
    void showFinal();
    void showPrevious();
    void showNext();

    /// The number of the exam in view, as it is joined into a query; "0" if none is.
    QString numberInView() const;
    /// Puts the shared cursor on the exams of the dossier, in their order, at the exam in view. Without such an exam it
    /// stands on the first one, and the find is marked as matching nothing.
    void standOnExamInView();
    /// The next exam's number.
    QString nextNumber();

    /// Asks twice, then deletes the exam in view; false if a question was not answered Yes.
    bool deleteInView();

private:
    void reopenDossier();
    void showEnd(void (store::Recordset::*move)());
    void step(void (store::Recordset::*move)());

    exams::ExamLife& life_;
};

}  // namespace gyneco
