// Opening the dossier window on a practice of many years beside opening it on a new one.

#include "side_by_side.h"
#include "workstation.h"

namespace {

constexpr int kFewPatients = 40;

void openDossierWindow(benchmark::State& state, int patients) {
    Workstation station(large_practice::patients(patients), large_practice::exams());
    for (auto _ : state) {
        state.PauseTiming();
        station.closeAll();
        state.ResumeTiming();
        station.openDossierWindow();
    }
    if (!station.isQuiet() || !station.desk().peek(u"Form4"_qs)) {
        state.SkipWithError("the dossier window did not open");
    }
}

void manyPatients(benchmark::State& state) {
    openDossierWindow(state, large_practice::kPatients);
}

void fewPatients(benchmark::State& state) {
    openDossierWindow(state, kFewPatients);
}

}  // namespace

int main(int count, char** arguments) {
    side_by_side::pair("dossier window, 40 patients", manyPatients, fewPatients, 1.5);
    return side_by_side::run(count, arguments);
}
