#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QPainter>

#include "fakes/practice_files.h"
#include "pictures/form20.h"

namespace pictures {

/// A printer whose paper is an A4 sheet of ten pixels a millimetre.
class PaperPrinters final : public ports::Printers {
public:
    static constexpr int kPixelsPerMillimetre = 10;

    std::unique_ptr<ports::Printer> standard() override { return there ? std::make_unique<Printer>(*this) : nullptr; }
    void choose(const Print& print) override {
        ++dialogs;
        if (accepts) {
            Printer chosen(*this);
            print(chosen);
        }
    }

    bool there = true;
    bool accepts = true;
    int dialogs = 0;
    int begun = 0;
    int ended = 0;
    QImage paper;

private:
    class Job final : public ports::PrintJob {
    public:
        explicit Job(PaperPrinters& all) : all_(all) {
            all.paper = QImage(210 * kPixelsPerMillimetre, 297 * kPixelsPerMillimetre, QImage::Format_RGB32);
            all.paper.fill(Qt::white);
            painter_.begin(&all.paper);
        }
        ~Job() override {
            painter_.end();
            ++all_.ended;
        }
        QPainter& painter() override { return painter_; }
        void newPage() override { ADD_FAILURE() << "a second page"; }

    private:
        PaperPrinters& all_;
        QPainter painter_;
    };

    class Printer final : public ports::Printer {
    public:
        explicit Printer(PaperPrinters& all) : all_(all) {}
        ports::PageGeometry geometry() const override {
            return {.width = 11906, .height = 16838, .dpiX = 254, .dpiY = 254};
        }
        std::unique_ptr<ports::PrintJob> open(const QString&) override {
            ++all_.begun;
            return std::make_unique<Job>(all_);
        }

    private:
        PaperPrinters& all_;
    };
};

/// What the album asks of the capture window.
class CaptureWindow final : public forms::Form {
public:
    explicit CaptureWindow(forms::Desk& desk) : Form(desk, "Form19", {}) {}
    forms::TextBox TxtEntete{*this, "TxtEntete", "CABINET DU PARC"};
};

/// The album on an empty base in a folder of its own.
class AlbumWindow : public ::testing::Test {
protected:
    AlbumWindow() {
        fakes::makeFiles(world_);
        world_.desk.add("Form20", [this] { return std::make_unique<Form20>(around_); });
        world_.desk.add("Form19", [this] { return std::make_unique<CaptureWindow>(world_.desk); });
    }

    Form20& form() {
        world_.desk.show("Form20");
        return world_.desk.at<Form20>();
    }
    void click(forms::Control& control) {
        world_.desk.act([&] { control.click(); });
    }
    void twice(forms::Control& control) {
        world_.desk.act([&] { control.doubleClick(); });
    }
    void clickLine(int row) {
        form().ListNom.setRow(row);
        click(form().ListNom);
    }
    void twicePath(int row) {
        form().List4.setRow(row);
        twice(form().List4);
    }
    QString path(const QString& name) const { return world_.folder.filePath(name); }
    /// A bitmap file of one colour.
    QString put(const QString& name, QColor color = Qt::blue, QSize size = {40, 30}) const {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(color);
        EXPECT_TRUE(picture.save(path(name), "BMP"));
        return path(name);
    }
    QString putBroken(const QString& name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        return path(name);
    }
    /// A record of the album with a value in every field of the search.
    void record(const QString& file, const fakes::Fields& more = {}) {
        fakes::Fields fields{{"Nom", "MARTIN"},   {"Prenom", "Anne"},   {"DATEXAM", "02/05/2002"}, {"NOMFICH", file},
                             {"Typexam", "1"},    {"DIAGNO", "Normal"}, {"NOMPATH", path(file)},   {"CRIT1", "Face"},
                             {"CRIT2", "Profil"}, {"CRIT3", "Courrier"}};
        for (const auto& [name, value] : more) {
            for (auto& field : fields) {
                if (field.first == name) {
                    field.second = value;
                }
            }
        }
        fakes::add(world_, "ECHOS", fields);
    }
    void records(int count) {
        for (int i = 1; i <= count; ++i) {
            record(QStringLiteral("p%1.bmp").arg(i));
        }
    }
    void word(int list, const QString& text) { fakes::add(world_, "CLEFS", {{"NUMCRIT", list}, {"CRIT", text}}); }
    /// A field of all records of a table, in the order of their insertion; a null as "-".
    QStringList stored(const QString& table, const QString& field) {
        QStringList values;
        auto rows = store::Database::open(base()).openRecordset("SELECT*FROM " + table);
        for (; !rows.eof(); rows.moveNext()) {
            const store::Value value = rows.field(field);
            values << (value.isNull() ? QStringLiteral("-") : value.text());
        }
        return values;
    }
    QStringList files() { return stored("ECHOS", "NOMFICH"); }
    QString base() const { return fakes::pathOf(world_, store::FileKind::Echotek); }
    QStringList& said() { return world_.boxes.said; }
    QStringList& asked() { return world_.boxes.asked; }
    QList<int>& reported() { return world_.boxes.reported; }

    fakes::World world_;
    PaperPrinters printers_;
    ports::Machine machine_{world_.clock,         world_.settings,     world_.boxes,      world_.fileDialogs,
                            world_.help,          printers_,           world_.fontDialog, world_.clipboard,
                            world_.pictureSource, world_.folder.path()};
    ports::Surroundings around_{machine_, world_.desk};
};

inline const QString kLost = QStringLiteral("Ce cliché a été déclassé, Voulez supprimer ce classement ?");
inline const QString kNothingFound = QStringLiteral("Pas de cliché trouvé");

}  // namespace pictures
