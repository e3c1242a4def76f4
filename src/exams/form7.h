#pragma once

#include "exams/first_trimester_sheet.h"
#include "forms/form.h"

namespace exams {

/// Corrects the first-trimester exam in view. What is typed in its dates moves neither start nor age.
class Form7 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form7";

    explicit Form7(ObstetricExams& exams);
    bool exclusive() const override { return true; }

    FirstTrimesterSheet sheet;
    forms::Button CmdModifs{*this, "CmdModifs", "Enregistrer Modifs"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "Quitter sans Enregistrer"};

    void AFFCIVILITES();

private:
    void load() override;
    void unloading() override;
    void openExam();
    void showPanel();
    void save();
    void writeChanges();
    void refillView(const store::Recordset& exam);

    ObstetricExams& exams_;
    // The exam under correction, as joined into queries.
    QString dossier_;
    QString number_;
};

}  // namespace exams
