// A database file that was damaged: the bytes of the input are written over a sound one, three a change (two of place,
// one of value). It is refused, or read with errors of the store's own.

#include <QFile>
#include <QTemporaryDir>

#include "base/errors.h"
#include "store/check.h"
#include "store/database.h"
#include "store/recordset.h"
#include "target.h"

namespace {

const QTemporaryDir& folder() {
    static const QTemporaryDir made;
    return made;
}

QByteArray soundFile() {
    const QString path = folder().filePath(QStringLiteral("sain.mdb"));
    store::createFile(store::FileKind::Atcd, path);
    {
        auto rows = store::Database::open(path).openRecordset(QStringLiteral("SELECT*FROM FICHEATCD"));
        for (int i = 1; i <= 40; ++i) {
            rows.addNew();
            rows.set(QStringLiteral("Numint"), i);
            rows.update();
        }
    }
    QFile file(path);
    fuzz::demand(file.open(QIODevice::ReadOnly), "the sound file can be read");
    return file.readAll();
}

QByteArray damaged(const QByteArray& changes) {
    static const QByteArray sound = soundFile();
    QByteArray content = sound;
    for (qsizetype i = 0; i + 2 < changes.size(); i += 3) {
        const auto high = static_cast<unsigned char>(changes[i]);
        const auto low = static_cast<unsigned char>(changes[i + 1]);
        content[(high * 256 + low) % content.size()] = changes[i + 2];
    }
    return content;
}

void walk(const QString& path) {
    const auto base = store::Database::open(path);
    auto rows = base.openRecordset(QStringLiteral("SELECT*FROM FICHEATCD ORDER BY NUMINT"));
    for (int i = 0; i < 100 && !rows.eof(); ++i) {
        rows.moveNext();
    }
    rows.findFirst(QStringLiteral("NUMINT=7"));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString path = folder().filePath(QStringLiteral("abime.mdb"));
    const QByteArray content = damaged(fuzz::bytes(data, size));
    QFile file(path);
    fuzz::demand(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "the file can be written");
    file.close();
    for (void (*use)(const QString&) : {+walk, +[](const QString& p) { store::damagedPlaces(p); },
                                        +[](const QString& p) { store::changedDefinitions(p); }}) {
        try {
            use(path);
        } catch (const base::RuntimeError&) {
            // Refused by a text for a person: what is wanted.
        }
    }
    return 0;
}
