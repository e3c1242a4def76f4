#pragma once

#include "exams/later_sheet.h"
#include "forms/form.h"

namespace exams {

/// Corrects the exam of the later trimesters in view. Its age is a whole number of weeks, from the ultrasound start
/// alone; its kind stays as stored.
class Form11 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form11";

    explicit Form11(ObstetricExams& exams);
    bool exclusive() const override { return true; }

    LaterSheet sheet;
    forms::TextBox txtAgeGesta{*this, "txtAgeGesta"};
    forms::Button CmdModifs{*this, "CmdModifs", "Enregistrer Modifs"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "Quitter sans Enregistrer"};

private:
    void load() override;
    void unloading() override;
    void onFetusesChange();
    void roundAge();
    void roundLoadedAge();
    void save();
    void writeChanges(store::Recordset& exam);
    void refillView(const store::Recordset& exam);

    ObstetricExams& exams_;
    // The exam under correction, as joined into queries.
    QString dossier_;
    QString number_;
};

}  // namespace exams
