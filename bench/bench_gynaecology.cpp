// The windows of gynaecology on a base of thirty exams a dossier: opening a new exam and displaying one, beside the
// bare statements that they need.

#include <map>
#include <memory>
#include <random>

#include "gyneco/form16.h"
#include "gyneco/form18.h"
#include "side_by_side.h"
#include "workstation.h"
#include "yardstick.h"

namespace {

constexpr int kOfADossier = 30;
constexpr int kFewExams = 3000;
constexpr int kManyExams = large_practice::kExams;

QString base(const benchmark::State& state) {
    return large_practice::gynaecologyExams(static_cast<int>(state.range(0)), kOfADossier);
}

Workstation& stationOf(const benchmark::State& state) {
    static std::map<qint64, std::unique_ptr<Workstation>> all;
    std::unique_ptr<Workstation>& station = all[state.range(0)];
    if (!station) {
        station = std::make_unique<Workstation>(large_practice::patients(), base(state));
    }
    return *station;
}

/// The same dossiers and exams for the program and for the bare statements.
class Draw {
public:
    explicit Draw(const benchmark::State& state) : dossiers_(static_cast<unsigned>(state.range(0)) / kOfADossier) {}
    int dossier() { return static_cast<int>(random_() % dossiers_) + 1; }
    int exam() { return static_cast<int>(random_() % kOfADossier) + 1; }

private:
    std::mt19937 random_{12};
    unsigned dossiers_;
};

void require(benchmark::State& state, bool right) {
    if (!right) {
        state.SkipWithError("the window shows something else");
    }
}

void newExamOurs(benchmark::State& state) {
    Workstation& station = stationOf(state);
    Draw draw(state);
    for (auto _ : state) {
        station.openDossier(draw.dossier());
        station.press(station.dossierWindow().CmdGyneco);
    }
    const auto* window = station.desk().peek<gyneco::Form16>();
    require(state, station.isQuiet() && window && window->sheet.TxtNumEcho.text() == u"31"_qs);
}

/// What the opening of an exam reads: the device, its date, the dossier's last number, the practitioners.
void newExamBare(benchmark::State& state) {
    const yardstick::Connection bare(base(state));
    yardstick::Statement stored(bare, "SELECT*FROM OPTIONS WHERE NUMEROS=?");
    yardstick::Statement last(bare, "SELECT*FROM GYNECO WHERE NUMERO=? ORDER BY NUMECHO DESC LIMIT 1");
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
void displayOurs(benchmark::State& state) {
    Workstation& station = stationOf(state);
    Draw draw(state);
    forms::ListBox& list = station.dossierWindow().List2;
    int number = 0;
    for (auto _ : state) {
        station.openDossier(draw.dossier());
        number = draw.exam();
        list.setItems({large_practice::dateOfExam(number)});
        list.setRow(0);
        station.desk().act([&list] { list.doubleClick(); });
    }
    const auto* window = station.desk().peek<gyneco::Form18>();
    require(state, station.isQuiet() && window && window->TxtNumEcho.text() == QString::number(number));
}

void displayBare(benchmark::State& state) {
    const yardstick::Connection bare(base(state));
    yardstick::Statement found(bare, "SELECT*FROM GYNECO WHERE NUMERO=? AND DATEXAM=? ORDER BY NUMECHO DESC LIMIT 1");
    Draw draw(state);
    for (auto _ : state) {
        found.bind(1, draw.dossier());
        const QByteArray date = large_practice::dateOfExam(draw.exam()).toUtf8();
        found.bind(2, date);
        require(state, found.fetch());
        found.reset();
    }
}

}  // namespace

int main(int count, char** arguments) {
    const std::vector<int> sizes{kFewExams, kManyExams};
    side_by_side::pair("new exam, gynaecology", newExamOurs, newExamBare, 3, sizes);
    side_by_side::pair("exam shown, gynaecology", displayOurs, displayBare, 3, sizes);
    return side_by_side::run(count, arguments);
}
