// Hands a target its seeds and a fixed number of seeded mutations of each, with no fuzzer in between: a short run for
// every day. Usage: TARGET FOLDER-OF-SEEDS [MUTATIONS-OF-EACH]

#include <QDir>
#include <QFile>
#include <random>

#include "target.h"

namespace {

void tryOne(const QByteArray& input) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

QByteArray mutated(QByteArray input, std::mt19937& random) {
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
        const auto at = static_cast<qsizetype>(random() % static_cast<unsigned>(input.size() + 1));
        switch (random() % 3) {
            case 0:
                input.insert(at, static_cast<char>(random()));
                break;
            case 1:
                input.remove(at, 1 + static_cast<qsizetype>(random() % 4));
                break;
            default:
                input.insert(at, input.first(at));
        }
    }
    return input;
}

}  // namespace

int main(int count, char** words) {
    if (count < 2) {
        std::fprintf(stderr, "usage: %s FOLDER-OF-SEEDS [MUTATIONS-OF-EACH]\n", words[0]);
        return 2;
    }
    const int mutations = count > 2 ? std::atoi(words[2]) : 200;
    int tried = 0;
    std::mt19937 random(1);
    const QDir folder(QString::fromLocal8Bit(words[1]));
    for (const QFileInfo& seed : folder.entryInfoList(QDir::Files, QDir::Name)) {
        QFile file(seed.filePath());
        fuzz::demand(file.open(QIODevice::ReadOnly), "the seed can be read", seed.filePath());
        const QByteArray input = file.readAll();
        tryOne(input);
        for (int i = 0; i < mutations; ++i, ++tried) {
            tryOne(mutated(input, random));
        }
    }
    std::printf("%d inputs\n", tried);
    return tried > 0 ? 0 : 1;
}
