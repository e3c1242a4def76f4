#pragma once

#include <QImage>
#include <QMap>
#include <QPainter>
#include <QStringList>
#include <QTemporaryDir>
#include <deque>

#include "ports/surroundings.h"

/// Scripted stand-ins for the machine, shared by the tests of the windows.
namespace fakes {

class Clock final : public ports::Clock {
public:
    QDate today() const override { return date; }
    QDate date{2002, 4, 5};
};

class Settings final : public ports::Settings {
public:
    QString read(const QString& application, const QString& section, const QString& key,
                 const QString& fallback) const override {
        return values.value(path(application, section, key), fallback);
    }
    bool has(const QString& application, const QString& section, const QString& key) const override {
        return values.contains(path(application, section, key));
    }
    void save(const QString& application, const QString& section, const QString& key, const QString& value) override {
        values[path(application, section, key)] = value;
        saved << key;
    }
    /// Puts a value of this program in place.
    void put(const QString& key, const QString& value) {
        values[path(ports::kApplication, ports::kSection, key)] = value;
    }

    QMap<QString, QString> values;
    QStringList saved;

private:
    static QString path(const QString& application, const QString& section, const QString& key) {
        return (application + u'/' + section + u'/' + key).toUpper();
    }
};

/// Writes down what is said; answers questions in the order of `answers`, No when they run out.
class Boxes final : public ports::Boxes {
public:
    void message(const QString& text, ports::Icon icon) override {
        said << text;
        saidIcons << icon;
        whenSaid();
    }
    bool ask(const QString& text, ports::Icon icon, const ports::Asking& asking) override {
        asked << text;
        askings << asking;
        icons << icon;
        whenAsked();
        return !answers.isEmpty() && answers.takeFirst();
    }
    void report(const base::RuntimeError& error) override {
        reported << static_cast<int>(error.number());
        reportedTexts << error.text();
    }

    QStringList said;
    QList<ports::Icon> saidIcons;
    QStringList asked;
    QList<ports::Icon> icons;
    QList<ports::Asking> askings;
    QList<bool> answers;
    QList<int> reported;
    QStringList reportedTexts;
    std::function<void()> whenAsked = [] {};
    std::function<void()> whenSaid = [] {};
};

class FileDialogs final : public ports::FileDialogs {
public:
    QString open(const QString& filter, const QString& proposed, ports::MustExist mustExist) override {
        filters << filter;
        proposals << proposed;
        anyName = mustExist == ports::MustExist::No;
        return chosen;
    }

    std::optional<ports::SaveChoice> save(const ports::SaveRequest& request) override {
        saves << request;
        return savedAs;
    }

    QString chosen;
    QStringList filters;
    QStringList proposals;
    bool anyName = false;                      // whether the last one takes the name of a file that isn't there
    std::optional<ports::SaveChoice> savedAs;  // none: Cancel
    QList<ports::SaveRequest> saves;
};

class Help final : public ports::Help {
public:
    void showContents(const QString& file) override { shown << file; }
    void showChapter(const QString& file, const QString& window) override {
        shown << file;
        chapters << window;
    }
    QStringList shown, chapters;
};

/// A printer on paper of its own choosing. What is drawn goes nowhere; the jobs are counted.
class Printers final : public ports::Printers {
public:
    struct Job {
        QString title;
        int pages = 1;
        bool ended = false;
    };

    std::unique_ptr<ports::Printer> standard() override { return page ? std::make_unique<Printer>(*this) : nullptr; }
    void choose(const Print& print) override {
        ++dialogs;
        if (accepts) {
            Printer chosen(*this);
            print(chosen);
        }
    }

    std::optional<ports::PageGeometry> page;  // none: no printer on this machine
    bool accepts = true;                      // the printer dialog; Cancel otherwise
    bool refuses = false;                     // to open a document
    int dialogs = 0;
    std::deque<Job> jobs;

private:
    class Paper final : public ports::PrintJob {
    public:
        explicit Paper(Job& job) : job_(job), painter_(&page_) {}
        QPainter& painter() override { return painter_; }
        void newPage() override { ++job_.pages; }
        void end() override { job_.ended = true; }

    private:
        Job& job_;
        QImage page_{1, 1, QImage::Format_RGB32};
        QPainter painter_;
    };

    class Printer final : public ports::Printer {
    public:
        explicit Printer(Printers& all) : all_(all) {}
        ports::PageGeometry geometry() const override { return all_.page.value_or(ports::PageGeometry()); }
        std::unique_ptr<ports::PrintJob> open(const QString& title) override {
            if (all_.refuses) {
                throw base::RuntimeError(base::ErrorNumber::DeviceError);
            }
            all_.jobs.push_back({title});
            return std::make_unique<Paper>(all_.jobs.back());
        }

    private:
        Printers& all_;
    };
};

/// A4 upright, 600 pixels an inch, no unprintable edge.
inline constexpr ports::PageGeometry kA4{.width = 11906, .height = 16838, .dpiX = 600, .dpiY = 600};

class FontDialog final : public ports::FontDialog {
public:
    std::optional<ports::FontChoice> choose(const ports::FontChoice& current) override {
        offered = current;
        return chosen;
    }
    std::optional<ports::FontChoice> chosen;  // none: Cancel
    ports::FontChoice offered;
};

class Clipboard final : public ports::Clipboard {
public:
    QString text() const override { return content; }
    void setText(const QString& text) override {
        if (fails) {
            throw base::RuntimeError(base::ErrorNumber::PermissionDenied);
        }
        content = text;
    }
    QString content;
    bool fails = false;
};

/// A camera that shows one picture; without one there is no connection.
class PictureSource final : public ports::PictureSource {
public:
    void start(std::function<void(const QImage&)> live) override {
        ++starts;
        live_ = std::move(live);
        show(picture);
    }
    void stop() override { live_ = nullptr; }
    QImage grab() override { return picture; }

    bool running() const { return static_cast<bool>(live_); }
    /// What it shows from now on.
    void show(const QImage& now) {
        picture = now;
        if (live_) {
            live_(picture);
        }
    }
    QImage picture;
    int starts = 0;

private:
    std::function<void(const QImage&)> live_;
};

/// A machine with a folder of its own for the program.
class World {
public:
    QTemporaryDir folder;
    Clock clock;
    Settings settings;
    Boxes boxes;
    FileDialogs fileDialogs;
    Help help;
    Printers printers;
    FontDialog fontDialog;
    Clipboard clipboard;
    PictureSource pictureSource;
    forms::Desk desk;
    ports::Machine machine{clock,    settings,   boxes,     fileDialogs,   help,
                           printers, fontDialog, clipboard, pictureSource, folder.path()};
    ports::Surroundings around{machine, desk};

    World() {
        desk.setErrorReport([this](const base::RuntimeError& error) { boxes.report(error); });
    }
};

}  // namespace fakes
