#pragma once

#include <QString>

namespace dossier {

enum class ExamFamily { FirstTrimester, LaterTrimesters, Gynaecology };

/// What the dossier window asks of the exam windows, which stand above it.
class ExamDoors {
public:
    virtual ~ExamDoors() = default;

    /// Opens the writing window of the family on a new exam of the open dossier.
    virtual void openNew(ExamFamily family) = 0;
    /// Shows the obstetric exam under the current cursor in the viewing window of its kind.
    virtual void showObstetricExam() = 0;
    /// Shows the gynaecological exam under the current cursor.
    virtual void showGynaecologyExam() = 0;
    /// Writes a surname and a first name into the window of a new first-trimester exam.
    virtual void nameNewExam(const QString& surname, const QString& firstName) = 0;
};

}  // namespace dossier
