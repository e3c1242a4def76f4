#pragma once

#include "forms/controls.h"
#include "forms/form.h"

namespace shell {

/// The about box.
class Form14 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form14";

    explicit Form14(forms::Desk& desk);

    forms::Image picIcon{*this, "picIcon"};
    forms::Label Label6{*this, "Label6", "VERANOX"};
    forms::Label Label5{*this, "Label5",
                        "Logiciel destiné à archiver et à établir les comptes rendus d'examens échographiques "
                        "gynéco-obstétricaux"};
    forms::Label Label2{*this, "Label2", "Version 3.11 du 01/03/2002"};
    forms::Label Label3{*this, "Label3", "Conçu et réalisé par l'équipe VERANOX"};
    forms::Label Label4{*this, "Label4"};
    forms::Button Command1{*this, "Command1", "&OK"};
};

}  // namespace shell
