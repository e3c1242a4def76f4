#include <QDateTime>
#include <QFile>
#include <QStringList>
#include <algorithm>
#include <cstdio>

#include "base/errors.h"
#include "base/process.h"
#include "practice/check.h"
#include "practice/practice.h"
#include "practice/restore.h"

namespace {

enum ExitCode { Fine = 0, Faulty = 1, NotRun = 2 };

const QString kHelp = QStringLiteral(
    "Utilisation : veranox-base COMMANDE [SAUVEGARDE] DOSSIER\n"
    "\n"
    "Commandes :\n"
    "  nouveau DOSSIER   crée les quatre bases d'un nouveau cabinet\n"
    "  exemple DOSSIER   crée un cabinet d'exemple, avec 40 patientes inventées\n"
    "  verifie DOSSIER   contrôle les quatre bases, sans rien modifier\n"
    "  restaure SAUVEGARDE DOSSIER\n"
    "                    remet les quatre bases d'une sauvegarde dans DOSSIER\n"
    "  aide              affiche cette page\n"
    "\n"
    "Les bases sont NOM.MDB, ECHO.MDB, ATCD.MDB et ECHOTEK.MDB. Une base qui existe\n"
    "déjà n'est jamais remplacée. Le DOSSIER est créé si seul son dernier nom manque.\n"
    "\n"
    "Avant de restaurer, fermez VERANOX sur tous les postes. La sauvegarde est contrôlée\n"
    "d'abord ; les bases présentes sont mises de côté dans un sous-dossier daté. Les\n"
    "quatre bases sont remises, ou aucune. SAUVEGARDE est le dossier des copies, ou le\n"
    "début de leurs noms.\n"
    "\n"
    "Codes de retour :\n"
    "  0  tout est en ordre\n"
    "  1  le contrôle a trouvé des défauts\n"
    "  2  la commande n'a pas pu être exécutée\n");

/// Prints in UTF-8 whatever the locale.
void print(std::FILE* stream, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream);
}

void say(const QString& line) {
    print(stdout, line + u'\n');
}

void complain(const QString& line) {
    print(stderr, u"veranox-base : "_qs + line + u'\n');
}

int makeEmpty(const QStringList& arguments) {
    practice::makeEmpty(arguments.at(0));
    say(u"Nouveau cabinet créé dans %1"_qs.arg(arguments.at(0)));
    return Fine;
}

int makeSample(const QStringList& arguments) {
    practice::makeSample(arguments.at(0));
    say(u"Cabinet d'exemple créé dans %1"_qs.arg(arguments.at(0)));
    return Fine;
}

int check(const QStringList& arguments) {
    int code = Fine;
    for (const practice::Finding& finding : practice::check(arguments.at(0))) {
        if (finding.faults.isEmpty()) {
            say(u"%1 : en ordre"_qs.arg(finding.subject));
        }
        for (const QString& fault : finding.faults) {
            complain(u"%1 : %2"_qs.arg(finding.subject, fault));
            code = Faulty;
        }
    }
    return code;
}

int restore(const QStringList& arguments) {
    const QString aside = practice::restore(arguments.at(0), arguments.at(1), QDateTime::currentDateTime());
    say(u"Les quatre bases de la sauvegarde sont en place dans %1"_qs.arg(arguments.at(1)));
    if (!aside.isEmpty()) {
        say(u"Les bases précédentes ont été mises de côté dans %1"_qs.arg(aside));
    }
    return Fine;
}

struct Command {
    QString name;
    qsizetype places;
    int (*run)(const QStringList& arguments);
    QString wanted;
};

const Command kCommands[] = {
    {u"nouveau"_qs, 1, makeEmpty, u"un DOSSIER, et un seul"_qs},
    {u"exemple"_qs, 1, makeSample, u"un DOSSIER, et un seul"_qs},
    {u"verifie"_qs, 1, check, u"un DOSSIER, et un seul"_qs},
    {u"restaure"_qs, 2, restore, u"une SAUVEGARDE et un DOSSIER"_qs},
};

int refuse(const QString& reason) {
    complain(reason + u" Voir « veranox-base aide »."_qs);
    return NotRun;
}

int run(const QStringList& arguments) {
    static const QStringList kHelpWords{u"aide"_qs, u"--aide"_qs, u"-h"_qs, u"--help"_qs};
    if (arguments.isEmpty() || kHelpWords.contains(arguments.first())) {
        print(stdout, kHelp);
        return Fine;
    }
    const auto* command = std::ranges::find(kCommands, arguments.first(), &Command::name);
    if (command == std::end(kCommands)) {
        return refuse(u"Commande inconnue : %1."_qs.arg(arguments.first()));
    }
    if (arguments.size() != command->places + 1) {
        return refuse(u"La commande %1 attend %2."_qs.arg(command->name, command->wanted));
    }
    return command->run(arguments.sliced(1));
}

}  // namespace

int main(int count, char** words) {
    base::settleProcess();
    QStringList arguments;
    for (int i = 1; i < count; ++i) {
        arguments << QFile::decodeName(words[i]);
    }
    try {
        return run(arguments);
    } catch (const base::RuntimeError& error) {
        complain(error.text());
    } catch (const std::exception& error) {
        complain(u"Erreur inattendue : %1"_qs.arg(QString::fromLocal8Bit(error.what())));
    }
    return NotRun;
}
