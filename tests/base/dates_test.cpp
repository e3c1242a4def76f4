#include <gtest/gtest.h>

#include "base/dates.h"

namespace {

const QDate kToday(2024, 2, 10);

std::string read(QStringView text, QDate today = kToday) {
    const auto date = base::readDate(text, today);
    return date ? date->toString(Qt::ISODate).toStdString() : "none";
}

TEST(ReadDate, TakesDayMonthAndYearByAnyOfTheFourMarks) {
    for (const QStringView text : {u"01/03/2002", u"1/3/2002", u"01.03.2002", u"01-03-2002", u"01 03 2002",
                                   u" 01/03/2002 ", u"01 / 03 / 2002", u"1. 3. 2002", u"1/03-2002"}) {
        EXPECT_EQ(read(text), "2002-03-01") << text.toUtf8().toStdString();
    }
}

TEST(ReadDate, PutsYearsOfTwoDigitsBetween1930And2029) {
    EXPECT_EQ(read(u"01/03/00"), "2000-03-01");
    EXPECT_EQ(read(u"01/03/02"), "2002-03-01");
    EXPECT_EQ(read(u"01/03/29"), "2029-03-01");
    EXPECT_EQ(read(u"01/03/30"), "1930-03-01");
    EXPECT_EQ(read(u"01/03/99"), "1999-03-01");
}

TEST(ReadDate, KnowsTheTwelveMonthsByTheirFrenchNames) {
    constexpr QStringView names[]{u"janvier", u"février", u"mars",      u"avril",   u"mai",      u"juin",
                                  u"juillet", u"août",    u"septembre", u"octobre", u"novembre", u"décembre"};
    int month = 1;
    for (const QStringView name : names) {
        const QDate expected(2002, month++, 13);
        const QString written = QStringLiteral("13 %1 2002");
        EXPECT_EQ(base::readDate(written.arg(name), kToday), expected) << name.toUtf8().toStdString();
        EXPECT_EQ(base::readDate(written.arg(name.toString().toUpper()), kToday), expected);
    }
}

TEST(ReadDate, TakesMonthsWithoutAccentsAndCutShort) {
    EXPECT_EQ(read(u"13 fevrier 2002"), "2002-02-13");
    EXPECT_EQ(read(u"13 janv. 2002"), "2002-01-13");
    EXPECT_EQ(read(u"13 févr. 2002"), "2002-02-13");
    EXPECT_EQ(read(u"13-déc-02"), "2002-12-13");
    EXPECT_EQ(read(u"13 juil. 2002"), "2002-07-13");
    EXPECT_EQ(read(u"1er mars 2002"), "2002-03-01");
    EXPECT_EQ(read(u"1ER MARS 2002"), "2002-03-01");
}

TEST(ReadDate, RefusesAMonthNameThatCouldBeTwoOrNone) {
    EXPECT_EQ(read(u"13 jui 2002"), "none");
    EXPECT_EQ(read(u"13 ma 2002"), "none");
    EXPECT_EQ(read(u"13 march 2002"), "none");
    EXPECT_EQ(read(u"13 marse 2002"), "none");
}

TEST(ReadDate, TakesAMissingYearFromToday) {
    EXPECT_EQ(read(u"01/03"), "2024-03-01");
    EXPECT_EQ(read(u"1 mars"), "2024-03-01");
    EXPECT_EQ(read(u"29/02"), "2024-02-29");
    EXPECT_EQ(read(u"29/02", QDate(2023, 5, 1)), "none");
}

TEST(ReadDate, RefusesADayThatItsMonthDoesNotHave) {
    for (const QStringView text : {u"31/02/2002", u"31/02", u"29/02/2002", u"31/04/2002", u"32/01/2002", u"00/01/2002",
                                   u"01/13/2002", u"01/00/2002", u"31 avril 2002"}) {
        EXPECT_EQ(read(text), "none") << text.toUtf8().toStdString();
    }
    EXPECT_EQ(read(u"29/02/2000"), "2000-02-29");
    EXPECT_EQ(read(u"29/02/1900"), "none");
}

TEST(ReadDate, BecomesADateWhileItIsTypedOnlyWithAYearOfTwoOrFourDigits) {
    EXPECT_EQ(read(u"0"), "none");
    EXPECT_EQ(read(u"01"), "none");
    EXPECT_EQ(read(u"01/"), "none");
    EXPECT_EQ(read(u"01/0"), "none");
    EXPECT_EQ(read(u"01/03"), "2024-03-01");
    EXPECT_EQ(read(u"01/03/"), "none");
    EXPECT_EQ(read(u"01/03/2"), "none");
    EXPECT_EQ(read(u"01/03/20"), "2020-03-01");
    EXPECT_EQ(read(u"01/03/200"), "none");
    EXPECT_EQ(read(u"01/03/2002"), "2002-03-01");
    EXPECT_EQ(read(u"01/03/20021"), "none");
}

TEST(ReadDate, EndsWithTheCalendar) {
    EXPECT_EQ(read(u"31/12/9999"), "9999-12-31");
    EXPECT_EQ(read(u"01/01/10000"), "none");
    EXPECT_EQ(read(u"01/01/0001"), "0001-01-01");
    EXPECT_EQ(read(u"01/01/0000"), "none");
}

TEST(ReadDate, RefusesEverythingElse) {
    for (const QStringView text : {u"",
                                   u" ",
                                   u"/",
                                   u"-",
                                   u"mars",
                                   u"mars 2002",
                                   u"03/2002",
                                   u"2002/03/01",
                                   u"2002-03-01",
                                   u"03/2002/01",
                                   u"01//03/2002",
                                   u"/01/03/2002",
                                   u"01/03/2002/",
                                   u"01/03/2002/5",
                                   u"01/03/2002 10:30",
                                   u"le 1 mars 2002",
                                   u"001/03/2002",
                                   u"01/003/2002",
                                   u"-1/03/2002",
                                   u"01,03,2002",
                                   u"1er/1er/2002",
                                   u"néant",
                                   u"12 SA",
                                   u"\u0660\u0661/03/2002"}) {
        EXPECT_EQ(read(text), "none") << text.toUtf8().toStdString();
    }
}

TEST(ShortDate, HasTwoTwoAndFourDigits) {
    EXPECT_EQ(base::shortDate(QDate(2002, 3, 1)).toStdString(), "01/03/2002");
    EXPECT_EQ(base::shortDate(QDate(9999, 12, 31)).toStdString(), "31/12/9999");
    EXPECT_EQ(base::shortDate(QDate(1, 1, 1)).toStdString(), "01/01/0001");
}

TEST(ShortDate, IsEmptyForNoDate) {
    EXPECT_TRUE(base::shortDate(QDate()).isEmpty());
}

TEST(ShortDate, ReadsBackAsTheSameDate) {
    for (QDate date(1999, 12, 25); date < QDate(2000, 3, 5); date = date.addDays(1)) {
        EXPECT_EQ(base::readDate(base::shortDate(date), kToday), date);
    }
}

}  // namespace
