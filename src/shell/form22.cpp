#include "shell/form22.h"

#include <QFileInfo>

namespace shell {
namespace {

// The readers spell it in capitals; the store of settings makes no difference.
const QString kWrittenApplication = QStringLiteral("Marelles");

}  // namespace

Form22::Form22(ports::Surroundings& around, store::State& state)
    : Form(around.desk, kName.toString(), QStringLiteral("Superviseur pour VERANOX")), around_(around), state_(state) {
    Command4.onClick = [this] { browseFor(Text1, QStringLiteral("ECHO.MDB")); };
    Command5.onClick = [this] { browseFor(Text2, QStringLiteral("ECHOTEK.MDB")); };
    Command6.onClick = [this] { browseFor(Text3, QStringLiteral("NOM.MDB")); };
    Command8.onClick = [this] { browseFor(Text5, QStringLiteral("ATCD.MDB")); };
    Command7.onClick = [this] { browseForBackups(); };
    Command2.onClick = [this] { saveAndLeave(); };
    Command1.onClick = [this] {
        Text1.setText({});
        Text2.setText({});
    };
    Command3.onClick = [this] { unload(); };
}

void Form22::load() {
    Text1.setText(setting(QStringLiteral("CHEMIN")));
    Text2.setText(setting(QStringLiteral("CHEMINS")));
    Text3.setText(setting(QStringLiteral("CHEMCIV")));
    state_.PathAtcd = setting(QStringLiteral("CHEMATCD"));
    Text5.setText(state_.PathAtcd);
    Text4.setText(setting(QStringLiteral("Sauve")));
}

QString Form22::setting(const QString& key) const {
    return around_.settings.read(ports::kApplication, ports::kSection, key, around_.programFolder);
}

void Form22::browseFor(forms::TextBox& field, const QString& usualName) {
    field.setText(
        around_.fileDialogs.open(QStringLiteral("Basees de Données (*.MDB)|*.MDB"), usualName, ports::MustExist::No));
}

// Any name will do for a folder that holds no file yet.
void Form22::browseForBackups() {
    const QString full = around_.fileDialogs.open(QStringLiteral("Fichiers Veranox (*.*)|*.*"), QStringLiteral("*.*"),
                                                  ports::MustExist::No);
    const QString bare = QFileInfo(full).fileName();
    Text4.setText(full);
    Text4.select(0, static_cast<int>(full.size() - bare.size()));
    Text4.setText(Text4.selectedText());
}

void Form22::saveAndLeave() {
    save(QStringLiteral("Chemin"), Text1);
    save(QStringLiteral("Chemins"), Text2);
    save(QStringLiteral("Chemciv"), Text3);
    save(QStringLiteral("Chematcd"), Text5);
    save(QStringLiteral("Sauve"), Text4);
    unload();
}

void Form22::save(const QString& key, const forms::TextBox& field) {
    around_.settings.save(kWrittenApplication, ports::kSection, key, field.text());
}

}  // namespace shell
