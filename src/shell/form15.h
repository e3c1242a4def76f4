#pragma once

#include "forms/controls.h"
#include "forms/form.h"

namespace shell {

/// The yearly greeting.
class Form15 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form15";

    explicit Form15(forms::Desk& desk);

    forms::Array<forms::Image> Image1{*this, "Image1", 0, 3};
    forms::Label Label1{*this, "Label1", "Aujourd'hui c'est l'anniversaire du bon"};
    forms::Label Label5{*this, "Label5"};
    forms::Label Label2{*this, "Label2"};
    forms::Label Label3{*this, "Label3", "Vous pouvez le lui souhaiter à l'adresse :"};
    forms::Label Label4{*this, "Label4"};
    forms::Button Command1{*this, "Command1", "&Continuer"};

private:
    void unloading() override;
};

}  // namespace shell
