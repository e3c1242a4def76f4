#include "port/server.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QTest>
#include <algorithm>

#include "port/records.h"
#include "practice/practice.h"

namespace port {
namespace {

struct ControlName {
    QString form, name;
    int index = -1;
};

ControlName parse(const QString& text) {
    ControlName name{text.section(u'.', 0, 0), text.section(u'.', 1), -1};
    if (name.name.endsWith(u')')) {
        bool number = false;
        const int index = name.name.section(u'(', 1).chopped(1).toInt(&number);
        if (number) {
            name.index = index;
            name.name = name.name.section(u'(', 0, 0);
        }
    }
    return name;
}

// A button that is pressed by its letter stays down for a moment before it acts.
bool someButtonIsDown() {
    return std::ranges::any_of(QApplication::allWidgets(), [](const QWidget* widget) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        return button && button->isDown();
    });
}

void untilIdle() {
    constexpr int kRounds = 4;
    constexpr int kPatience = 1000;  // milliseconds, as the pause
    constexpr int kPause = 5;
    QElapsedTimer timer;
    for (timer.start(); someButtonIsDown() && timer.elapsed() < kPatience;) {
        QTest::qWait(kPause);
    }
    for (int i = 0; i < kRounds; ++i) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

QJsonObject describe(const QString& name, const QString& title, bool shown, ::forms::Pointer pointer,
                     const QWidget* window) {
    const QRect place = window ? window->geometry() : QRect();
    return {{QStringLiteral("name"), name},
            {QStringLiteral("title"), title},
            {QStringLiteral("shown"), shown},
            {QStringLiteral("pointer"),
             pointer == ::forms::Pointer::Busy ? QStringLiteral("busy") : QStringLiteral("normal")},
            {QStringLiteral("left"), place.left()},
            {QStringLiteral("top"), place.top()},
            {QStringLiteral("width"), place.width()},
            {QStringLiteral("height"), place.height()}};
}

// The one window of the program that is no form.
QWidget* helpWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (dynamic_cast<qt::HelpWindow*>(window) && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

}  // namespace

Server::Server(const QString& folder, QDate today)
    : folder_(QDir::cleanPath(QDir(folder).absolutePath())),
      clock_(today),
      settings_(folder_ + QStringLiteral("/user-settings.ini")) {
    addActs();
    addRequests();
}

void Server::addActs() {
    acts_ = {
        {QStringLiteral("focus"), [](const Target& t, const QJsonObject&) { hands::focus(t); }},
        {QStringLiteral("type"),
         [](const Target& t, const QJsonObject& r) { hands::type(t, r.value(u"text").toString()); }},
        {QStringLiteral("set"),
         [](const Target& t, const QJsonObject& r) { hands::replace(t, r.value(u"text").toString()); }},
        {QStringLiteral("key"),
         [](const Target& t, const QJsonObject& r) { hands::key(t, r.value(u"key").toString()); }},
        {QStringLiteral("click"), hands::click},
        {QStringLiteral("dblclick"), hands::doubleClick},
        {QStringLiteral("rightclick"), [](const Target& t, const QJsonObject&) { hands::rightClick(t); }},
        {QStringLiteral("pick"),
         [](const Target& t, const QJsonObject& r) { hands::pick(t, r.value(u"date").toString()); }},
        {QStringLiteral("choose"), hands::choose},
        {QStringLiteral("scroll"),
         [](const Target& t, const QJsonObject& r) { hands::scroll(t, r.value(u"value").toInt()); }},
    };
}

void Server::addRequests() {
    const auto own = [this](QJsonObject (Server::*member)(const QJsonObject&)) {
        return [this, member](const QJsonObject& r) { return (this->*member)(r); };
    };
    requests_ = {
        {QStringLiteral("get"), [this](const QJsonObject& r) { return look(target(r)); }},
        {QStringLiteral("format"), [this](const QJsonObject& r) { return format(target(r)); }},
        {QStringLiteral("start"), [this](const QJsonObject&) { return start(); }},
        {QStringLiteral("forms"), [this](const QJsonObject&) { return forms(); }},
        {QStringLiteral("focused"), [this](const QJsonObject&) { return focused(); }},
        {QStringLiteral("printer"), own(&Server::printer)},
        {QStringLiteral("camera"), own(&Server::camera)},
        {QStringLiteral("practice"), own(&Server::practice)},
        {QStringLiteral("insert"), own(&Server::insert)},
        {QStringLiteral("rows"), own(&Server::rows)},
        {QStringLiteral("setting"), own(&Server::setting)},
        {QStringLiteral("close"), own(&Server::close)},
        {QStringLiteral("answer"), own(&Server::queueAnswers)},
        {QStringLiteral("clipboard"), own(&Server::clipboard)},
        {QStringLiteral("shot"), own(&Server::shot)},
    };
}

Server::~Server() = default;

QJsonObject Server::answer(const QJsonObject& request) {
    QJsonObject answer;
    try {
        answer = carryOut(request.value(u"do").toString(), request);
        untilIdle();
        if (front_.giveBackInput()) {
            untilIdle();
        }
        answer[QStringLiteral("ok")] = true;
    } catch (const PortError& error) {
        answer = {{QStringLiteral("ok"), false}, {QStringLiteral("error"), error.why}};
    } catch (const base::RuntimeError& error) {
        answer = {{QStringLiteral("ok"), false}, {QStringLiteral("error"), error.text()}};
    }
    answer[QStringLiteral("boxes")] = watcher_.takeSeen();
    return answer;
}

QJsonObject Server::carryOut(const QString& verb, const QJsonObject& request) {
    if (const auto act = acts_.find(verb); act != acts_.end()) {
        act->second(target(request), request);
        return {};
    }
    const auto known = requests_.find(verb);
    if (known == requests_.end()) {
        throw PortError{QStringLiteral("unknown request: %1").arg(verb)};
    }
    return known->second(request);
}

Target Server::target(const QJsonObject& request) const {
    const QString control = request.value(u"control").toString();
    const ControlName name = parse(control);
    ::forms::Form* form = program_ ? program_->desk().peek(name.form) : nullptr;
    if (!form) {
        throw PortError{QStringLiteral("the window %1 is not loaded").arg(name.form)};
    }
    ::forms::Control* found = form->find(name.name, name.index);
    if (!found) {
        throw PortError{QStringLiteral("there is no control %1").arg(control)};
    }
    qt::FormWindow* window = stage_->windowOf(*form);
    if (!window) {
        return {found};
    }
    return {found, window, window->widgetOf(*found), window->actionOf(*found)};
}

QJsonObject Server::start() {
    // The windows of the program that ends here run no closing steps.
    pictureSource_.stop();
    stage_.reset();
    program_.reset();
    program_ = std::make_unique<shell::Program>(ports::Machine{
        clock_, settings_, boxes_, fileDialogs_, help_, printers_, fontDialog_, clipboard_, pictureSource_, folder_});
    stage_ = std::make_unique<qt::WindowStage>(program_->desk(), [] {});
    stage_->onHelp = [this](const QString& window) { program_->showHelp(window); };
    program_->desk().act([this] { ports::renewDamaged(settings_, boxes_); });
    program_->start();
    return {};
}

QJsonObject Server::practice(const QJsonObject& request) {
    const QString folder = QDir::cleanPath(QDir(request.value(u"folder").toString(folder_)).absolutePath());
    const QString backups = folder_ + QStringLiteral("/Sauve/");
    request.value(u"patients").toBool() ? practice::makeSample(folder) : practice::makeEmpty(folder);
    QDir().mkpath(backups);
    saveSettings(settings_, folder, backups);
    return {};
}

QJsonObject Server::insert(const QJsonObject& request) {
    insertRecord(settings_, request.value(u"table").toString(), request.value(u"row").toObject());
    return {};
}

QJsonObject Server::rows(const QJsonObject& request) {
    return {{QStringLiteral("rows"), allRecords(settings_, request.value(u"table").toString())}};
}

QJsonObject Server::setting(const QJsonObject& request) {
    const QString key = request.value(u"key").toString();
    if (request.contains(u"value")) {
        settings_.save(ports::kApplication, ports::kSection, key, request.value(u"value").toString());
        return {};
    }
    const bool there = settings_.has(ports::kApplication, ports::kSection, key);
    return {{QStringLiteral("value"), there ? QJsonValue(settings_.read(ports::kApplication, ports::kSection, key, {}))
                                            : QJsonValue(QJsonValue::Null)}};
}

QJsonObject Server::forms() const {
    QJsonArray list;
    for (const ::forms::Form* form : program_ ? program_->desk().loaded() : std::vector<::forms::Form*>()) {
        list.append(describe(form->name(), form->title(), form->shown(), form->pointer(), stage_->windowOf(*form)));
    }
    if (const QWidget* help = helpWindow()) {
        list.append(describe(help->objectName(), help->windowTitle(), true, ::forms::Pointer::Normal, help));
    }
    return {{QStringLiteral("forms"), list}};
}

QJsonObject Server::focused() const {
    const auto* window = dynamic_cast<qt::FormWindow*>(QApplication::activeWindow());
    const ::forms::Control* control = window ? window->form().focused() : nullptr;
    return {{QStringLiteral("control"),
             control ? QJsonValue(control->form().name() + u'.' + control->label()) : QJsonValue(QJsonValue::Null)}};
}

QWidget& Server::windowOf(const QJsonObject& request) const {
    const QString name = request.value(u"form").toString();
    ::forms::Form* form = program_ ? program_->desk().peek(name) : nullptr;
    qt::FormWindow* window = form ? stage_->windowOf(*form) : nullptr;
    if (window && form->shown()) {
        return *window;
    }
    QWidget* help = helpWindow();
    if (!help || name.compare(help->objectName(), Qt::CaseInsensitive) != 0) {
        throw PortError{QStringLiteral("the window %1 is not shown").arg(name)};
    }
    return *help;
}

QJsonObject Server::close(const QJsonObject& request) {
    QWidget& window = windowOf(request);
    if (const auto* form = dynamic_cast<const qt::FormWindow*>(&window)) {
        hands::requireInput(*form);
    }
    window.close();
    return {};
}

QJsonObject Server::queueAnswers(const QJsonObject& request) {
    watcher_.queue(request.value(u"with").toArray());
    return {};
}

QJsonObject Server::clipboard(const QJsonObject& request) {
    if (request.contains(u"text")) {
        QApplication::clipboard()->setText(request.value(u"text").toString());
        return {};
    }
    return {{QStringLiteral("text"), QApplication::clipboard()->text()}};
}

QJsonObject Server::printer(const QJsonObject& request) {
    printers_.setFile(request.value(u"none").toBool() ? QString() : request.value(u"file").toString());
    return {};
}

QJsonObject Server::camera(const QJsonObject& request) {
    const QString image = request.value(u"image").toString();
    if (request.value(u"none").toBool()) {
        pictureSource_.unplug();
    } else if (!pictureSource_.setImage(image)) {
        throw PortError{QStringLiteral("%1 is no picture").arg(image)};
    }
    return {};
}

QJsonObject Server::shot(const QJsonObject& request) {
    untilIdle();
    const QString file = request.value(u"file").toString();
    if (!windowOf(request).grab().save(file, "PNG")) {
        throw PortError{QStringLiteral("%1 can't be written").arg(file)};
    }
    return {};
}

}  // namespace port
