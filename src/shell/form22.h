#pragma once

#include "forms/controls.h"
#include "forms/form.h"
#include "ports/surroundings.h"
#include "store/state.h"

namespace shell {

/// The Supervisor: where the four databases and the backups are. It checks nothing; what is saved acts when it is next
/// read.
class Form22 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form22";

    Form22(ports::Surroundings& around, store::State& state);

    forms::Label Label1{*this, "Label1", "Superviseur pour VERANOX"};
    forms::Label Label2{*this, "Label2",
                        "Indiquer le chemin (Path) pour les bases de données NOM.MDB,  ECHO.MDB,  ECHOTEK.MDB et "
                        "ATCD.MDB dans les zones de saisie prévues à cet effet ou en s'aidant des boutons "
                        "\"Parcourir\". Indiquer de la même façon le répertoire de sauvegarde."};
    forms::TextBox Text1{*this, "Text1", "...\\ECHO.MDB"};
    forms::TextBox Text2{*this, "Text2", "...\\ECHOTEK.MDB"};
    forms::TextBox Text3{*this, "Text3", "...\\NOM.MDB"};
    forms::TextBox Text5{*this, "Text5", "...\\ATCD.MDB"};
    forms::TextBox Text4{*this, "Text4", "...\\Sauve"};
    forms::Button Command4{*this, "Command4", "Parcourir... \\...\\&ECHO.MDB"};
    forms::Button Command5{*this, "Command5", "Parcourir... \\...\\E&CHOTEK.MDB"};
    forms::Button Command6{*this, "Command6", "Parcourir... \\...\\&NOM.MDB"};
    forms::Button Command8{*this, "Command8", "Parcourir... \\...\\&ATCD.MDB"};
    forms::Button Command7{*this, "Command7", "&Parcourir... \\...\\Repertoire de Sauvegarde"};
    forms::Button Command2{*this, "Command2", "E&nregistrer et Quitter"};
    forms::Button Command1{*this, "Command1", "E&ffacer"};
    forms::Button Command3{*this, "Command3", "&Quitter"};

private:
    void load() override;
    QString setting(const QString& key) const;
    void browseFor(forms::TextBox& field, const QString& usualName);
    void browseForBackups();
    void saveAndLeave();
    void save(const QString& key, const forms::TextBox& field);

    ports::Surroundings& around_;
    store::State& state_;
};

}  // namespace shell
