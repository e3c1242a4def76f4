#include "shell/form1.h"

#include "dossier/paths.h"
#include "shell/form15.h"

namespace shell {

Form1::Form1(ports::Surroundings& around, store::State& state)
    : Form(around.desk, kName.toString(), QStringLiteral("VERANOX 3.11")), around_(around), state_(state) {
    Command1.onClick = [this] { onCommand1Click(); };
    Command2.onClick = [this] { onCommand2Click(); };
    Command5.onClick = [this] { desk().show(QStringLiteral("Form19")); };
    Command6.onClick = [this] { desk().show(QStringLiteral("Form20")); };
    CmdSauve.onClick = [this] { desk().show(QStringLiteral("Form21")); };
    CmdSupervi.onClick = [this] { desk().show(QStringLiteral("Form22")); };
    CmdAide.onClick = [this] { around_.help.showContents(around_.manual()); };
    Command4.onClick = [this] { desk().show(QStringLiteral("Form14")); };
    Command3.onClick = [this] { desk().end(); };
}

void Form1::load() {
    // A friend's birthday, once a year.
    if (around_.clock.today().toString(QStringLiteral("ddMM")) == u"1604") {
        auto& greeting = desk().at<Form15>();
        greeting.Label2.setText(QStringLiteral("16 Avril"));
        greeting.Label5.setText(QStringLiteral("Dr Aubin THOREAUX"));
        greeting.Label4.setText(QStringLiteral("aubin.thoreaux@veranox.example"));
        desk().show(Form15::kName.toString());
    }
}

void Form1::unloading() {
    desk().end();
}

void Form1::onCommand1Click() {
    dossier::readPaths(around_, state_);
    if (pathsPass()) {
        desk().show(QStringLiteral("Form4"));
        hide();
    }
}

void Form1::onCommand2Click() {
    state_.PathEcho = dossier::echoPath(around_);
    if (passes(state_.PathEcho, QStringLiteral("ECHO.mdb"), QStringLiteral("Echo.mdb"))) {
        desk().show(QStringLiteral("Form9"));
    }
}

bool Form1::pathsPass() const {
    return passes(state_.PathEcho, QStringLiteral("ECHO.mdb"), QStringLiteral("Echo.mdb")) &&
           passes(state_.PathNom, QStringLiteral("Nom.Mdb"), QStringLiteral("Nom.mdb")) &&
           passes(state_.PathAtcd, QStringLiteral("ATCD.MDB"), QStringLiteral("ATCD.MDB"));
}

bool Form1::passes(const QString& path, const QString& ending, const QString& shownName) const {
    if (dossier::endsInName(path, ending)) {
        return true;
    }
    around_.boxes.message(dossier::missingBaseMessage(shownName));
    return false;
}

}  // namespace shell
