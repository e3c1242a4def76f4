#pragma once

#include "forms/controls.h"
#include "forms/form.h"
#include "ports/surroundings.h"
#include "store/state.h"

namespace shell {

/// The main menu. It lives for the whole run, and the program ends from here alone.
class Form1 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form1";

    Form1(ports::Surroundings& around, store::State& state);

    forms::Image Image1{*this, "Image1"};
    forms::Button Command1{*this, "Command1", "&Dossiers Patientes"};
    forms::Button Command2{*this, "Command2", "Réponses &mémorisées"};
    forms::Button Command5{*this, "Command5", "&Photos"};
    forms::Button Command6{*this, "Command6", "&Album"};
    forms::Button CmdSauve{*this, "CmdSauve", "&Sauvegardes"};
    forms::Button CmdSupervi{*this, "CmdSupervi", "Su&perviseur"};
    forms::Button CmdAide{*this, "CmdAide", "Ai&de"};
    forms::Button Command4{*this, "Command4", "A &propos"};
    forms::Button Command3{*this, "Command3", "&Fermer"};

private:
    void load() override;
    void unloading() override;
    void onCommand1Click();
    void onCommand2Click();
    bool pathsPass() const;
    bool passes(const QString& path, const QString& ending, const QString& shownName) const;

    ports::Surroundings& around_;
    store::State& state_;
};

}  // namespace shell
