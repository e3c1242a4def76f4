// The manual: reading its pages as the help opens, and a search in all of them.

#include <QGuiApplication>

#include "qt/help_file.h"
#include "qt/help_search.h"
#include "side_by_side.h"

namespace {

constexpr double kReading = 100;  // milliseconds
constexpr double kSearch = 1;

QString manual() {
    return QCoreApplication::applicationDirPath() + u"/VERANOX.HLP"_qs;
}

void readPages(benchmark::State& state) {
    const qt::HelpFile file(manual());
    for (auto _ : state) {
        const qt::HelpSearch search(file);
        benchmark::DoNotOptimize(search);
    }
}

/// Two words that stand on most pages: each page is walked for both.
void search(benchmark::State& state) {
    const qt::HelpFile file(manual());
    const qt::HelpSearch search(file);
    for (auto _ : state) {
        if (search.find(u"examen fenêtre"_qs).isEmpty()) {
            state.SkipWithError("the search found nothing");
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    side_by_side::within("the manual's pages read", readPages, kReading);
    side_by_side::within("a search of the manual", search, kSearch);
    return side_by_side::run(count, arguments);
}
