#include "responses/introduction.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "base/errors.h"

namespace responses {
namespace {

class IntroductionFile : public ::testing::Test {
protected:
    void put(const QByteArray& bytes) {
        QFile file(folder_.filePath("intro"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray bytes() {
        QFile file(folder_.filePath("intro"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder_;
    Introduction introduction_{folder_.path()};
};

TEST_F(IntroductionFile, IsOneQuotedItemOnALine) {
    introduction_.write("Examen réalisé ce jour.");
    EXPECT_EQ(bytes(), QByteArray("\"Examen réalisé ce jour.\"\r\n"));
}

TEST_F(IntroductionFile, GivesBackQuotesLineEndsAndCommas) {
    const QString text = "Madame, \"l'examen\"\r\nde ce jour, \"";
    introduction_.write(text);
    EXPECT_EQ(introduction_.read(), text);
}

TEST_F(IntroductionFile, IsEmptyWhenThereIsNone) {
    EXPECT_EQ(introduction_.read(), "");
}

TEST_F(IntroductionFile, CanBeEmptied) {
    introduction_.write("un");
    introduction_.write("");
    EXPECT_EQ(bytes(), QByteArray("\"\"\r\n"));
    EXPECT_EQ(introduction_.read(), "");
}

TEST_F(IntroductionFile, ReadsTheLastOfSeveralItems) {
    put("\"un\",\"deux\"\r\n\"trois\"\r\n");
    EXPECT_EQ(introduction_.read(), "trois");
}

TEST_F(IntroductionFile, IsReadInWindows1252Too) {
    put("\"Examen pass\xE9\"\r\n");
    EXPECT_EQ(introduction_.read(), "Examen passé");
}

TEST_F(IntroductionFile, ThatCannotBeReadIsTold) {
    QDir(folder_.path()).mkdir("intro");
    EXPECT_THROW(introduction_.read(), base::RuntimeError);
    EXPECT_THROW(introduction_.write("a"), base::RuntimeError);
}

}  // namespace
}  // namespace responses
