#include "qt/program_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace qt {
namespace {

TEST(ProgramFolder, IsTheWantedOneWhenItCanBeWritten) {
    const QTemporaryDir wanted;
    EXPECT_EQ(writableFolder(wanted.path() + '/', "/nulle/part"), wanted.path());
    EXPECT_TRUE(QDir(wanted.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST(ProgramFolder, IsTheOtherOneAndMadeWhenTheWantedCannotBeWritten) {
    const QTemporaryDir user;
    const QString other = user.filePath("données/veranox");
    // A folder that takes no file, whoever asks.
    EXPECT_EQ(writableFolder("/proc", other), other);
    EXPECT_TRUE(QDir(other).exists());
}

}  // namespace
}  // namespace qt
