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

/// A family of exams: its base and table, its windows, the button of a new exam and the list of dates in the dossier
/// window, the number in the viewing window, and which exams of a dossier are of its kind.
struct Family {
    QString (*base)(int exams, int ofADossier);
    const char* table;
    const char16_t* writing;
    const char16_t* viewing;
    forms::Button dossier::Form4::*newExam;
    forms::ListBox dossier::Form4::*dates;
    const char16_t* shownNumber;
    int first;
    int last;
    /// The fields, and the two of them with the long lists: the indication and the uterus.
    const char16_t* fields = nullptr;
    std::array<int, 2> longLists{};
};

using dossier::Form4;

constexpr Family kFirstTrimester{.base = large_practice::exams,
                                 .table = "\"1TER\"",
                                 .writing = u"Form5",
                                 .viewing = u"Form6",
                                 .newExam = &Form4::Cmd1Ter,
                                 .dates = &Form4::List1,
                                 .shownNumber = u"LblNumEcho",
                                 .first = 1,
                                 .last = kOfADossier / 2,
                                 .fields = u"Txt1Ter",
                                 .longLists = {7, 8}};

constexpr Family kLaterTrimesters{.base = large_practice::exams,
                                  .table = "\"1TER\"",
                                  .writing = u"Form8",
                                  .viewing = u"Form10",
                                  .newExam = &Form4::Cmd2Ter,
                                  .dates = &Form4::List1,
                                  .shownNumber = u"LblNumEcho",
                                  .first = kOfADossier / 2 + 1,
                                  .last = kOfADossier,
                                  .fields = u"Txt2T",
                                  .longLists = {7, 8}};

constexpr Family kGynaecology{.base = large_practice::gynaecologyExams,
                              .table = "GYNECO",
                              .writing = u"Form16",
                              .viewing = u"Form18",
                              .newExam = &Form4::CmdGyneco,
                              .dates = &Form4::List2,
                              .shownNumber = u"TxtNumEcho",
                              .first = 1,
                              .last = kOfADossier};

QString baseOf(const Family& family, const benchmark::State& state) {
    return family.base(static_cast<int>(state.range(0)), kOfADossier);
}

Workstation& stationOf(const Family& family, const benchmark::State& state) {
    static std::map<QString, std::unique_ptr<Workstation>> all;
    const QString base = baseOf(family, state);
    std::unique_ptr<Workstation>& station = all[base];
    if (!station) {
        station = std::make_unique<Workstation>(large_practice::patients(), base);
    }
    return *station;
}

QByteArray select(const Family& family, const char* condition) {
    return QByteArray("SELECT*FROM ") + family.table + " WHERE NUMERO=?" + condition + " ORDER BY NUMECHO DESC LIMIT 1";
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
    Workstation& station = stationOf(family, state);
    Draw draw(state);
    for (auto _ : state) {
        station.openDossier(draw.dossier());
        station.press(station.dossierWindow().*family.newExam);
    }
    require(state, station.isQuiet() && textOf(station, family.writing, u"TxtNumEcho") == u"31"_qs);
}

/// What the opening of an exam reads: the device, its date, the dossier's last number, the practitioners.
template <const Family& family>
void newExamBare(benchmark::State& state) {
    const yardstick::Connection bare(baseOf(family, state));
    yardstick::Statement stored(bare, "SELECT*FROM OPTIONS WHERE NUMEROS=?");
    yardstick::Statement last(bare, select(family, "").constData());
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
    Workstation& station = stationOf(family, state);
    Draw draw(state);
    forms::ListBox& list = station.dossierWindow().*family.dates;
    int number = 0;
    for (auto _ : state) {
        station.openDossier(draw.dossier());
        number = draw.examOf(family);
        list.setItems({large_practice::dateOfExam(number)});
        list.setRow(0);
        station.desk().act([&list] { list.doubleClick(); });
    }
    require(state, station.isQuiet() && textOf(station, family.viewing, family.shownNumber) == QString::number(number));
}

template <const Family& family>
void displayBare(benchmark::State& state) {
    const yardstick::Connection bare(baseOf(family, state));
    yardstick::Statement found(bare, select(family, " AND DATEXAM=?").constData());
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
    Workstation station(large_practice::patients(), family.base(kManyExams, kOfADossier));
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
    side_by_side::pair("new exam, 1st trim.", newExamOurs<kFirstTrimester>, newExamBare<kFirstTrimester>, 3, sizes);
    side_by_side::pair("new exam, later trim.", newExamOurs<kLaterTrimesters>, newExamBare<kLaterTrimesters>, 3, sizes);
    side_by_side::pair("new exam, gynaecology", newExamOurs<kGynaecology>, newExamBare<kGynaecology>, 3, sizes);
    side_by_side::pair("exam shown, 1st trim.", displayOurs<kFirstTrimester>, displayBare<kFirstTrimester>, 3, sizes);
    side_by_side::pair("exam shown, later trim.", displayOurs<kLaterTrimesters>, displayBare<kLaterTrimesters>, 3,
                       sizes);
    side_by_side::pair("exam shown, gynaecology", displayOurs<kGynaecology>, displayBare<kGynaecology>, 3, sizes);
    side_by_side::within("500 phrases, 1st trim.", focusOnManyPhrases<kFirstTrimester>, kFrame);
    side_by_side::within("500 phrases, later trim.", focusOnManyPhrases<kLaterTrimesters>, kFrame);
    return side_by_side::run(count, arguments);
}
