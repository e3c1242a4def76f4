// The album: its search beside one bare scan with the same matching function, its wall beside the JPEG library's own
// scaled decoding.

#include <sys/resource.h>
#include <turbojpeg.h>

#include <QFile>
#include <array>
#include <list>
#include <memory>
#include <random>
#include <vector>

#include "fakes/world.h"
#include "large_practice.h"
#include "pictures/album_search.h"
#include "pictures/wall.h"
#include "side_by_side.h"
#include "store/like.h"
#include "yardstick.h"

namespace {

// ---- The search ----

/// What is looked for, by how many of 100,000 pictures it finds about.
struct Wanted {
    int found;
    pictures::AlbumSearch search;
};

const std::vector<Wanted>& wanted() {
    const auto of = [](const QString& diagnosis, const QString& surname, const std::array<QString, 3>& words) {
        return pictures::AlbumSearch{
            .diagnosis = diagnosis, .surname = surname, .date = {}, .words = words, .kind = {}};
    };
    static const std::vector<Wanted> all{
        {0, of({}, u"NEMO"_qs, {})},
        {100, of(u"Kyste"_qs, u"MARPÉ"_qs, {})},
        {1000, of(u"kyste"_qs, {}, {u"ovaire"_qs, u"axiale"_qs, {}})},
        {10000, of(u"kyste"_qs, {}, {})},
        {100000, of({}, {}, {})},
    };
    return all;
}

const pictures::AlbumSearch& searchFor(const benchmark::State& state) {
    for (const Wanted& one : wanted()) {
        if (one.found == state.range(0)) {
            return one.search;
        }
    }
    std::abort();
}

void searchOurs(benchmark::State& state) {
    pictures::AlbumBase base;
    base.setPath(large_practice::classedPictures());
    for (auto _ : state) {
        const pictures::FoundPictures found = search(base, searchFor(state));
        state.counters["found"] = static_cast<double>(found.paths.size());
    }
}

/// One scan that collects the same five fields of each picture found.
class Scan {
public:
    explicit Scan(const pictures::AlbumSearch& search) : connection_(large_practice::classedPictures()) {
        store::addLike(connection_.database());
        statement_ = std::make_unique<yardstick::Statement>(
            connection_,
            "SELECT NUMINT,NOM,PRENOM,DATEXAM,NOMPATH FROM ECHOS WHERE RESSEMBLE(?,DIAGNO) AND RESSEMBLE(?,NOM) AND "
            "RESSEMBLE(?,DATEXAM) AND RESSEMBLE(?,CRIT1) AND RESSEMBLE(?,CRIT2) AND RESSEMBLE(?,CRIT3) AND "
            "TYPEXAM>='0'");
        int at = 0;
        for (const QString& text :
             {search.diagnosis, search.surname, search.date, search.words[0], search.words[1], search.words[2]}) {
            patterns_.push_back((u"*"_qs + text + u"*"_qs).toUtf8());
            statement_->bind(++at, patterns_.back());
        }
    }

    void run() {
        while (statement_->fetch()) {
        }
        statement_->reset();
    }

private:
    yardstick::Connection connection_;
    std::list<QByteArray> patterns_;
    std::unique_ptr<yardstick::Statement> statement_;
};

// Both sides open the file first: a search does.
void searchBare(benchmark::State& state) {
    for (auto _ : state) {
        Scan(searchFor(state)).run();
    }
}

// ---- The wall ----

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;
constexpr int kQuality = 90;

/// Speckle as of an ultrasound machine, 12 megapixels, as the text of a JPEG.
QByteArray speckle() {
    std::mt19937 random(11);
    std::vector<unsigned char> planes(kWidth * kHeight * 3 / 2, 128);
    for (std::size_t i = 0; i < kWidth * kHeight; ++i) {
        const auto light = static_cast<int>(i / 64 % 190);
        planes[i] = static_cast<unsigned char>(light + static_cast<int>(random() % 48));
    }
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    tjhandle handle = tjInitCompress();
    tjCompressFromYUV(handle, planes.data(), kWidth, 1, kHeight, TJSAMP_420, &bytes, &size, kQuality, 0);
    QByteArray text(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    tjFree(bytes);
    tjDestroy(handle);
    return text;
}

/// The paths of twenty such pictures.
const QStringList& files() {
    static const QStringList all = [] {
        const QByteArray text = speckle();
        QStringList paths;
        for (int i = 0; i < pictures::Wall::kPlaces; ++i) {
            QFile file(large_practice::place(u"cliché%1.jpg"_qs.arg(i)));
            if (file.open(QIODevice::WriteOnly)) {
                file.write(text);
            }
            paths << file.fileName();
        }
        return paths;
    }();
    return all;
}

class Places final : public forms::Form {
public:
    explicit Places(forms::Desk& desk) : Form(desk, u"Mur"_qs, {}) {}
    forms::Array<forms::Image> Image1{*this, u"Image1"_qs, 0, pictures::Wall::kPlaces - 1};
    forms::Array<forms::TextBox> TxtPath{*this, u"TxtPath"_qs, 0, pictures::Wall::kPlaces - 1};
};

/// The most memory that this process had at a time, in MB.
double peak() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void wallOurs(benchmark::State& state) {
    files();
    fakes::World world;
    Places places(world.desk);
    pictures::Wall wall(places.Image1, places.TxtPath, world.boxes);
    for (auto _ : state) {
        wall.showNext(files());
    }
    if (!world.boxes.said.isEmpty() || places.Image1(pictures::Wall::kPlaces - 1).empty()) {
        state.SkipWithError("the wall isn't whole");
    }
    state.counters["MB"] = peak();
    state.counters["MB_at_most"] = 120;
}

tjscalingfactor smallestFactor() {
    int count = 0;
    const tjscalingfactor* factors = tjGetScalingFactors(&count);
    tjscalingfactor best{1, 1};
    for (int i = 0; i < count; ++i) {
        if (TJSCALED(kWidth, factors[i]) >= pictures::Wall::kThumbnail.width() &&
            TJSCALED(kWidth, factors[i]) < TJSCALED(kWidth, best)) {
            best = factors[i];
        }
    }
    return best;
}

void wallBare(benchmark::State& state) {
    const tjscalingfactor factor = smallestFactor();
    const int width = TJSCALED(kWidth, factor);
    const int height = TJSCALED(kHeight, factor);
    std::vector<unsigned char> pixels(static_cast<std::size_t>(width * height * 4));
    tjhandle handle = tjInitDecompress();
    for (auto _ : state) {
        for (const QString& path : files()) {
            QFile file(path);
            const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
            if (tjDecompress2(handle, reinterpret_cast<const unsigned char*>(text.constData()),
                              static_cast<unsigned long>(text.size()), pixels.data(), width, 0, height, TJPF_BGRA,
                              0) != 0) {
                state.SkipWithError("a picture can't be decoded");
            }
        }
    }
    tjDestroy(handle);
}

}  // namespace

int main(int count, char** arguments) {
    side_by_side::pair("wall of twenty, 12 MP", wallOurs, wallBare, 1.2);
    side_by_side::pair("search of 100,000, found", searchOurs, searchBare, 1.5, {0, 100, 1000, 10000});
    // Both lists of all pictures are made beside the scan, which keeps nothing.
    side_by_side::pair("search of 100,000, found", searchOurs, searchBare, std::nullopt, {100000});
    return side_by_side::run(count, arguments);
}
