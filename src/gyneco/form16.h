#pragma once

#include "forms/form.h"
#include "gyneco/gynaecology_sheet.h"

namespace gyneco {

/// Writes a new gynaecological exam.
class Form16 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form16";

    explicit Form16(GynaecologyExams& exams);

    GynaecologySheet sheet;
    forms::Button CmdEnregis{*this, "CmdEnregis", "&Enregistrer"};
    forms::Button CmdPhotos{*this, "CmdPhotos", "&Photos"};
    forms::Button CmdQuitter{*this, "CmdQuitter", "&Quitter"};

    /// Does nothing: a right click on a list moves on to the next field by itself.
    void CLIC_DROIT() {}
    /// Comes up empty on a new exam of the open dossier, with its number, on the pelvic page.
    void openNew();

private:
    void clear();
    void save();
    void addRecord();
    void showSaved();

    GynaecologyExams& exams_;
};

}  // namespace gyneco
