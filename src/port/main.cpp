#include <QApplication>
#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>
#include <iostream>
#include <string>

#include "base/process.h"
#include "port/server.h"
#include "qt/french.h"
#include "qt/theme.h"

namespace {

/// Reads requests from standard input, one a line, and writes an answer for each. False at `quit` or the end.
bool serveOne(port::Server& server) {
    std::string line;
    if (!std::getline(std::cin, line)) {
        return false;
    }
    QJsonParseError fault;
    const QJsonDocument request = QJsonDocument::fromJson(QByteArray::fromStdString(line), &fault);
    const bool quit = request.object().value(u"do").toString() == u"quit";
    QJsonObject answer{{QStringLiteral("ok"), true}, {QStringLiteral("boxes"), QJsonArray()}};
    if (fault.error != QJsonParseError::NoError) {
        answer = {{QStringLiteral("ok"), false},
                  {QStringLiteral("error"), fault.errorString()},
                  {QStringLiteral("boxes"), QJsonArray()}};
    } else if (!quit) {
        answer = server.answer(request.object());
    }
    std::cout << QJsonDocument(answer).toJson(QJsonDocument::Compact).toStdString() << std::endl;
    return !quit;
}

// The platform without a screen says at every step what it cannot do; nobody asked it to.
void logToStandardError(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support"))) {
        std::cerr << message.toStdString() << std::endl;
    }
}

}  // namespace

int main(int argc, char** argv) {
    base::settleProcess();
    qInstallMessageHandler(logToStandardError);
    QApplication application(argc, argv);
    qt::speakFrench(application);
    qt::theme::apply(application);
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser arguments;
    const QCommandLineOption program(QStringLiteral("program"), QStringLiteral("The program's own folder."),
                                     QStringLiteral("DIR"));
    const QCommandLineOption today(QStringLiteral("today"), QStringLiteral("The machine's date."),
                                   QStringLiteral("YYYY-MM-DD"));
    arguments.addOptions({program, today});
    arguments.process(application);
    if (!arguments.isSet(program)) {
        std::fputs("veranox-port --program DIR [--today YYYY-MM-DD]\n", stderr);
        return 2;
    }

    port::Server server(arguments.value(program), QDate::fromString(arguments.value(today), Qt::ISODate));
    while (serveOne(server)) {
    }
    return 0;
}
