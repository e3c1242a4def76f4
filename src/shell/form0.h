#pragma once

#include "forms/form.h"

namespace shell {

/// The start: shows the main menu, unless the menu greets first, and goes. A person never sees it.
class Form0 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form0";

    explicit Form0(forms::Desk& desk);

private:
    void load() override;
};

}  // namespace shell
