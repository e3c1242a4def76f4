#pragma once

#include <cstdint>

#include "forms/controls.h"
#include "forms/form.h"
#include "ports/surroundings.h"

namespace pictures {

/// Asks for the quality of a JPEG file and saves the picture that `Form19` shows in full size.
class FrmCpr final : public forms::Form {
public:
    static constexpr QStringView kName = u"FrmCpr";

    explicit FrmCpr(ports::Surroundings& around);

    forms::Label Label5{*this, "Label5", "Réglage du taux de compression"};
    forms::Label Label3{*this, "Label3", "Basse qualité"};
    forms::Label Label4{*this, "Label4", "Haute qualité"};
    forms::ScrollBar HScroll1{*this, "HScroll1", {.min = 1, .max = 100, .largeStep = 10}, 90};
    forms::Label Label1{*this, "Label1", "Forte compression"};
    forms::Label Label2{*this, "Label2", "Faible compression"};
    forms::TextBox TxtQuality{*this, "TxtQuality", "90"};
    forms::Button Command3{*this, "Command3", "&Enregistrer"};
    forms::Button Command2{*this, "Command2", "&Annuler"};

private:
    void save();
    /// What `TxtQuality` says as a whole number, whatever its size; what is none becomes 90.
    std::int32_t quality();

    ports::Surroundings& around_;
};

}  // namespace pictures
