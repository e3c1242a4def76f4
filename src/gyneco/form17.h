#pragma once

#include "forms/form.h"
#include "gyneco/gynaecology_sheet.h"

namespace gyneco {

/// Corrects the gynaecological exam in view.
class Form17 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form17";

    explicit Form17(GynaecologyExams& exams);
    bool exclusive() const override { return true; }

    GynaecologySheet sheet;
    forms::Button CmdModifs{*this, "CmdModifs", "&Enregistrer Modifs"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter sans Enregistrer"};

private:
    void load() override;
    void unloading() override;
    void save();
    void writeChanges();

    GynaecologyExams& exams_;
};

}  // namespace gyneco
