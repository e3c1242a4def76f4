#include "base/quoted_items.h"

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(QuotedItem, StandsBetweenQuotesAndDoublesThoseInside) {
    EXPECT_EQ(quotedItem(""), "\"\"");
    EXPECT_EQ(quotedItem("Examen"), "\"Examen\"");
    EXPECT_EQ(quotedItem("dit \"normal\""), "\"dit \"\"normal\"\"\"");
}

TEST(ReadItems, PartsAtCommasAndLineEnds) {
    EXPECT_EQ(readItems(u"\"un\",\"deux\"\r\n\"trois\"\n\"quatre\""), QStringList({"un", "deux", "trois", "quatre"}));
}

TEST(ReadItems, KeepsCommasAndLineEndsInsideQuotes) {
    EXPECT_EQ(readItems(u"\"un, deux\r\ntrois\"\r\n"), QStringList({"un, deux\r\ntrois"}));
}

TEST(ReadItems, TakesAnItemWithoutQuotesAndDropsTheBlanksAroundIt) {
    EXPECT_EQ(readItems(u"  un deux , trois"), QStringList({"un deux", "trois"}));
}

TEST(ReadItems, KeepsAnEmptyItemBetweenCommas) {
    EXPECT_EQ(readItems(u"un,,\"\""), QStringList({"un", "", ""}));
}

TEST(ReadItems, TakesASingleQuoteInsideAsItself) {
    EXPECT_EQ(readItems(u"\"dit \"normal\" ici\"\r\n"), QStringList({"dit \"normal\" ici"}));
}

TEST(ReadItems, FindsNoneInBlankLines) {
    EXPECT_EQ(readItems(u""), QStringList());
    EXPECT_EQ(readItems(u" \r\n\r\n"), QStringList());
    EXPECT_EQ(readItems(u"\"un\"\r\n\r\n"), QStringList({"un"}));
}

TEST(ReadItems, RunsAnUnclosedItemToTheEnd) {
    EXPECT_EQ(readItems(u"\"un, deux"), QStringList({"un, deux"}));
    EXPECT_EQ(readItems(u"\""), QStringList({""}));
}

TEST(ReadItems, GivesBackWhatWasQuoted) {
    for (const QString text :
         {"", " ", "\"", "\"\"", "a\"", "\"a", "a\",\"b", "a\" \r\nb", "\r\n", ",", "l'été, œuf\"\r\n"}) {
        EXPECT_EQ(readItems(QString(quotedItem(text) + "\r\n")), QStringList({text})) << text.toStdString();
    }
}

}  // namespace
}  // namespace base
