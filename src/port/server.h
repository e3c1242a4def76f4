#pragma once

#include <QJsonObject>
#include <functional>
#include <map>
#include <memory>

#include "port/box_watcher.h"
#include "port/fixed_clock.h"
#include "port/front_windows.h"
#include "port/hands.h"
#include "port/port_picture_source.h"
#include "port/port_printers.h"
#include "ports/settings_file.h"
#include "qt/real_boxes.h"
#include "qt/real_clipboard.h"
#include "qt/real_file_dialogs.h"
#include "qt/real_font_dialog.h"
#include "qt/real_help.h"
#include "qt/stage.h"
#include "shell/program.h"

namespace port {

/// Carries out the requests of a client on the real windows of a whole program.
class Server {
public:
    /// `folder` is the program's own folder, `today` the machine's date (an invalid one: the real date).
    Server(const QString& folder, QDate today);
    ~Server();

    /// Answers one request when the program is idle again.
    QJsonObject answer(const QJsonObject& request);

private:
    using Act = std::function<void(const Target&, const QJsonObject&)>;
    using Request = std::function<QJsonObject(const QJsonObject&)>;

    void addActs();
    void addRequests();
    QJsonObject carryOut(const QString& verb, const QJsonObject& request);
    Target target(const QJsonObject& request) const;

    QJsonObject start();
    QJsonObject practice(const QJsonObject& request);
    QJsonObject insert(const QJsonObject& request);
    QJsonObject rows(const QJsonObject& request);
    QJsonObject setting(const QJsonObject& request);
    QJsonObject forms() const;
    QJsonObject focused() const;
    QJsonObject close(const QJsonObject& request);
    QJsonObject queueAnswers(const QJsonObject& request);
    QJsonObject shot(const QJsonObject& request);
    QJsonObject clipboard(const QJsonObject& request);
    QJsonObject printer(const QJsonObject& request);
    QJsonObject camera(const QJsonObject& request);
    QWidget& windowOf(const QJsonObject& request) const;

    QString folder_;
    FixedClock clock_;
    ports::SettingsFile settings_;
    qt::RealBoxes boxes_;
    qt::RealFileDialogs fileDialogs_;
    PortPrinters printers_;
    qt::RealHelp help_{boxes_, printers_};
    qt::RealFontDialog fontDialog_;
    qt::RealClipboard clipboard_;
    PortPictureSource pictureSource_{settings_};
    BoxWatcher watcher_;
    FrontWindows front_;
    // What a person does to a control, and all other requests, by their verbs.
    std::map<QString, Act> acts_;
    std::map<QString, Request> requests_;
    std::unique_ptr<shell::Program> program_;
    std::unique_ptr<qt::WindowStage> stage_;
};

}  // namespace port
