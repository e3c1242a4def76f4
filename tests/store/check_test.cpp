#include "store/check.h"

#include <QFile>

#include "store/batch.h"
#include "store/files.h"

using base::ErrorNumber;
using store::Batch;
using store::damagedPlaces;
using store::FileKind;

namespace {

QStringList words(const Files& files) {
    return column(files.open(FileKind::Echotek), u"SELECT*FROM CLEFS"_qs, u"CRIT"_qs);
}

void addWord(const Files& files, const QString& word) {
    add(files.open(FileKind::Echotek), u"CLEFS"_qs, {{u"NUMCRIT"_qs, 0}, {u"CRIT"_qs, word}});
}

/// Overwrites the file's last page.
void damage(const QString& path) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(file.size() - 4096));
    ASSERT_EQ(file.write(QByteArray(4096, '\x7f')), 4096);
}

}  // namespace

TEST(Check, FindsNothingInSoundFiles) {
    const Files files;
    for (const FileKind kind : store::kAllFiles) {
        EXPECT_EQ(damagedPlaces(files.made(kind)), 0);
    }
}

TEST(Check, FindsADamagedPage) {
    const Files files;
    damage(files.made(FileKind::Nom));
    EXPECT_GE(damagedPlaces(files.path(FileKind::Nom)), 1);
}

TEST(Check, FindsNoFileWhereThereIsNone) {
    const Files files;
    expectError(ErrorNumber::DatabaseNotFound, [&] { damagedPlaces(files.path(FileKind::Nom)); });
    EXPECT_FALSE(QFile::exists(files.path(FileKind::Nom)));
}

TEST(Batch, KeepsAllItsRecordsOnceCommitted) {
    const Files files;
    const store::Database database = files.open(FileKind::Echotek);
    {
        Batch batch(files.path(FileKind::Echotek));
        addWord(files, u"Profil"_qs);
        addWord(files, u"Face"_qs);
        batch.commit();
    }
    EXPECT_EQ(words(files), QStringList({u"Profil"_qs, u"Face"_qs}));
}

TEST(Batch, KeepsNoneWhenItEndsBefore) {
    const Files files;
    const store::Database database = files.open(FileKind::Echotek);
    addWord(files, u"Profil"_qs);
    {
        const Batch batch(files.path(FileKind::Echotek));
        addWord(files, u"Face"_qs);
        EXPECT_EQ(words(files).size(), 2);
    }
    EXPECT_EQ(words(files), QStringList(u"Profil"_qs));
}

TEST(Batch, NeedsAFile) {
    const Files files;
    expectError(ErrorNumber::DatabaseNotFound, [&] { const Batch batch(files.path(FileKind::Echotek)); });
}
