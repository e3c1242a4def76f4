// The exam windows on a base of thirty exams a dossier: opening a new exam and displaying one, beside the bare
// statements that they need; and a field with a long list of phrases, from the focus until the list is drawn.

#include <QApplication>
#include <QListView>
#include <QLoggingCategory>
#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <random>

#include "qt/stage.h"
#include "qt/theme.h"
#include "side_by_side.h"
#include "workstation.h"
#include "yardstick.h"

namespace {

constexpr int kOfADossier = 30;
constexpr int kFewExams = 3000;
constexpr int kManyExams = large_practice::kExams;
constexpr double kFrame = 16;  // milliseconds

QString base(int exams) {
    return large_practice::exams(exams, kOfADossier);
}

/// A family of obstetric exams: its windows, the button of a new exam, which exams of a dossier are of its kind, its
/// fields, and the two of them with the long lists: the indication and the uterus.
struct Family {
    forms::Button dossier::Form4::*newExam;
    const char16_t* writing;
    const char16_t* viewing;
    int first;
    int last;
    const char16_t* fields;
    std::array<int, 2> longLists;
};

constexpr Family kFirstTrimester{&dossier::Form4::Cmd1Ter, u"Form5", u"Form6", 1, kOfADossier / 2, u"Txt1Ter", {7, 8}};

constexpr Family kLaterTrimesters{
    &dossier::Form4::Cmd2Ter, u"Form8", u"Form10", kOfADossier / 2 + 1, kOfADossier, u"Txt2T", {7, 8}};

Workstation& stationOf(const benchmark::State& state) {
    static std::map<qint64, std::unique_ptr<Workstation>> all;
    std::unique_ptr<Workstation>& station = all[state.range(0)];
    if (!station) {
        station = std::make_unique<Workstation>(large_practice::patients(), base(static_cast<int>(state.range(0))));
    }
    return *station;
}

/// The same dossiers and exams for the program and for the bare statements.
class Draw {
public:
    explicit Draw(const benchmark::State& state) : dossiers_(static_cast<unsigned>(state.range(0)) / kOfADossier) {}
    int dossier() { return static_cast<int>(random_() % dossiers_) + 1; }
    int examOf(const Family& family) {
        return family.first + static_cast<int>(random_() % static_cast<unsigned>(family.last - family.first + 1));
    }

private:
    std::mt19937 random_{12};
    unsigned dossiers_;
};

QString textOf(Workstation& station, const char16_t* window, const char16_t* control) {
    const forms::Form* form = station.desk().peek(QString::fromUtf16(window));
    return form && form->shown() ? static_cast<forms::TextControl*>(form->find(control))->text() : QString();
}

void require(benchmark::State& state, bool right) {
    if (!right) {
        state.SkipWithError("the window shows something else");
    }
}

template <const Family& family>
void newExamOurs(benchmark::State& state) {
    Workstation& station = stationOf(state);
    Draw draw(state);
    for (auto _ : state) {
        station.openDossier(draw.dossier());
        station.press(station.dossierWindow().*family.newExam);
    }
    require(state, station.isQuiet() && textOf(station, family.writing, u"TxtNumEcho") == u"31"_qs);
}

/// What the opening of an exam reads: the device, its date, the dossier's last number, the practitioners.
void newExamBare(benchmark::State& state) {
    const yardstick::Connection bare(base(static_cast<int>(state.range(0))));
    yardstick::Statement stored(bare, "SELECT*FROM OPTIONS WHERE NUMEROS=?");
    yardstick::Statement last(bare, "SELECT*FROM \"1TER\" WHERE NUMERO=? ORDER BY NUMECHO DESC LIMIT 1");
    yardstick::Statement offered(bare, "SELECT*FROM OPTIONS WHERE NUMEROS=? ORDER BY \"INDEX\"");
    const auto read = [](yardstick::Statement& statement, qint64 value) {
        statement.bind(1, value);
        while (statement.fetch()) {
        }
        statement.reset();
    };
    Draw draw(state);
    for (auto _ : state) {
        read(stored, 14);
        read(stored, 15);
        read(last, draw.dossier());
        read(offered, 1);
    }
}

/// A double click on a date in the dossier's list of exams.
template <const Family& family>
void displayOurs(benchmark::State& state) {
    Workstation& station = stationOf(state);
    Draw draw(state);
    forms::ListBox& list = station.dossierWindow().List1;
    int number = 0;
    for (auto _ : state) {
        station.openDossier(draw.dossier());
        number = draw.examOf(family);
        list.setItems({large_practice::dateOfExam(number)});
        list.setRow(0);
        station.desk().act([&list] { list.doubleClick(); });
    }
    require(state, station.isQuiet() && textOf(station, family.viewing, u"LblNumEcho") == QString::number(number));
}

template <const Family& family>
void displayBare(benchmark::State& state) {
    const yardstick::Connection bare(base(static_cast<int>(state.range(0))));
    yardstick::Statement found(bare, "SELECT*FROM \"1TER\" WHERE NUMERO=? AND DATEXAM=? ORDER BY NUMECHO DESC LIMIT 1");
    Draw draw(state);
    for (auto _ : state) {
        found.bind(1, draw.dossier());
        const QByteArray date = large_practice::dateOfExam(draw.examOf(family)).toUtf8();
        found.bind(2, date);
        require(state, found.fetch());
        found.reset();
    }
}

/// Counts how often a widget is drawn.
class DrawCount final : public QObject {
public:
    explicit DrawCount(QWidget& widget) { widget.installEventFilter(this); }
    int count() const { return count_; }

protected:
    bool eventFilter(QObject* /*widget*/, QEvent* event) override {
        count_ += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int count_ = 0;
};

/// From the focus on one of two fields with long lists until the real list is drawn.
template <const Family& family>
void focusOnManyPhrases(benchmark::State& state) {
    Workstation station(large_practice::patients(), base(kManyExams));
    station.openDossier(1);
    const qt::WindowStage stage(station.desk(), [] {});
    station.press(station.dossierWindow().*family.newExam);
    const forms::Form& form = *station.desk().peek(QString::fromUtf16(family.writing));
    qt::FormWindow& window = *stage.windowOf(form);
    QApplication::setActiveWindow(&window);
    auto& list = static_cast<QListView&>(*window.widgetOf(*form.find(u"List1")));
    std::array<QWidget*, 2> fields{};
    std::ranges::transform(family.longLists, fields.begin(),
                           [&](int index) { return window.widgetOf(*form.find(family.fields, index)); });
    const DrawCount drawn(*list.viewport());
    std::size_t at = 0;
    for (auto _ : state) {
        const int before = drawn.count();
        fields[at++ % 2]->setFocus();
        while (drawn.count() == before) {
            QApplication::processEvents();
        }
        require(state, list.model()->rowCount() == large_practice::kManyPhrases);
    }
}

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The platform without a screen says at every step what it can't do.
    QLoggingCategory::setFilterRules(u"default.warning=false"_qs);
    QApplication application(count, arguments);
    qt::theme::apply(application);
    const std::vector<int> sizes{kFewExams, kManyExams};
    side_by_side::pair("new exam, 1st trim.", newExamOurs<kFirstTrimester>, newExamBare, 3, sizes);
    side_by_side::pair("new exam, later trim.", newExamOurs<kLaterTrimesters>, newExamBare, 3, sizes);
    side_by_side::pair("exam shown, 1st trim.", displayOurs<kFirstTrimester>, displayBare<kFirstTrimester>, 3, sizes);
    side_by_side::pair("exam shown, later trim.", displayOurs<kLaterTrimesters>, displayBare<kLaterTrimesters>, 3,
                       sizes);
    side_by_side::within("500 phrases, 1st trim.", focusOnManyPhrases<kFirstTrimester>, kFrame);
    side_by_side::within("500 phrases, later trim.", focusOnManyPhrases<kLaterTrimesters>, kFrame);
    return side_by_side::run(count, arguments);
}
