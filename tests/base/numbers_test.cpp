#include <gtest/gtest.h>

#include <limits>

#include "base/errors.h"
#include "base/numbers.h"

namespace {

using base::ErrorNumber;

template <class Call>
int errorOf(Call call) {
    try {
        call();
    } catch (const base::RuntimeError& error) {
        return static_cast<int>(error.number());
    }
    return 0;
}

TEST(LeadingNumber, EndsAtTheFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(base::leadingNumber(u"53"), 53);
    EXPECT_EQ(base::leadingNumber(u"12 mm"), 12);
    EXPECT_EQ(base::leadingNumber(u"007"), 7);
    EXPECT_EQ(base::leadingNumber(u"12e3"), 12);
    EXPECT_EQ(base::leadingNumber(u"1 000"), 1);
}

TEST(LeadingNumber, TakesThePointAsDecimalMarkAndEndsAtAComma) {
    EXPECT_EQ(base::leadingNumber(u"28.7"), 28.7);
    EXPECT_EQ(base::leadingNumber(u"12.5 mm"), 12.5);
    EXPECT_EQ(base::leadingNumber(u"28,7"), 28);
    EXPECT_EQ(base::leadingNumber(u"12."), 12);
    EXPECT_EQ(base::leadingNumber(u"1.2.3"), 1.2);
    EXPECT_EQ(base::leadingNumber(u"0.1"), 0.1);
}

TEST(LeadingNumber, IsZeroForATextThatStartsWithNoDigit) {
    for (const QStringView text : {u"", u"abc", u" 12", u"-12", u"+12", u".5", u",5", u"é1"}) {
        EXPECT_EQ(base::leadingNumber(text), 0) << text.toUtf8().toStdString();
    }
}

TEST(LeadingNumber, KnowsNoOtherDigitsThanTheTenUsualOnes) {
    EXPECT_EQ(base::leadingNumber(u"\u0663"), 0);   // an Arabic 3
    EXPECT_EQ(base::leadingNumber(u"1\uFF12"), 1);  // a wide 2
}

TEST(LeadingNumber, ReadsMoreDigitsThanANumberHolds) {
    EXPECT_EQ(base::leadingNumber(u"123456789012345678901234567890"), 123456789012345678901234567890.0);
    EXPECT_EQ(base::leadingNumber(u"0.12345678901234567890"), 0.12345678901234567890);
}

TEST(IsNumeric, TakesAWholeTextInTheFrenchForm) {
    for (const QStringView text : {u"12", u"-12", u"+12", u"12,5", u"12.5", u" 12 ", u"12,", u",5", u"-,5", u"0"}) {
        EXPECT_TRUE(base::isNumeric(text)) << text.toUtf8().toStdString();
    }
}

TEST(IsNumeric, RefusesWhatIsMoreOrLessThanANumber) {
    for (const QStringView text :
         {u"", u" ", u"-", u",", u".", u"12 mm", u"1,2,3", u"1 000", u"--1", u"- 1", u"1e3", u"1-"}) {
        EXPECT_FALSE(base::isNumeric(text)) << text.toUtf8().toStdString();
    }
}

TEST(ToNumber, ReadsTheCommaAndThePointAlike) {
    EXPECT_EQ(base::toNumber(u"22,3"), 22.3);
    EXPECT_EQ(base::toNumber(u"22.3"), 22.3);
    EXPECT_EQ(base::toNumber(u" -0,5 "), -0.5);
    EXPECT_EQ(base::toNumber(u"+7"), 7);
    EXPECT_EQ(base::toNumber(u",5"), 0.5);
    EXPECT_EQ(base::toNumber(u"12,"), 12);
    EXPECT_EQ(base::toNumber(u"1234567890,12345678"), 1234567890.12345678);
}

TEST(ToNumber, FailsForATextThatIsNoNumber) {
    EXPECT_EQ(errorOf([] { base::toNumber(u"douze"); }), 13);
    EXPECT_EQ(errorOf([] { base::toNumber(u""); }), 13);
}

TEST(RoundHalfEven, SendsTiesToTheEvenNeighbour) {
    EXPECT_EQ(base::roundHalfEven(0.5), 0);
    EXPECT_EQ(base::roundHalfEven(1.5), 2);
    EXPECT_EQ(base::roundHalfEven(2.5), 2);
    EXPECT_EQ(base::roundHalfEven(28.5), 28);
    EXPECT_EQ(base::roundHalfEven(-0.5), 0);
    EXPECT_EQ(base::roundHalfEven(-1.5), -2);
    EXPECT_EQ(base::roundHalfEven(-2.5), -2);
}

TEST(RoundHalfEven, SendsTheRestToTheNearest) {
    EXPECT_EQ(base::roundHalfEven(28.7), 29);
    EXPECT_EQ(base::roundHalfEven(28.4), 28);
    EXPECT_EQ(base::roundHalfEven(-28.7), -29);
    EXPECT_EQ(base::roundHalfEven(12), 12);
}

TEST(ToInt16, HoldsItsWholeRangeAndNoMore) {
    EXPECT_EQ(base::toInt16(32767), 32767);
    EXPECT_EQ(base::toInt16(-32768), -32768);
    EXPECT_EQ(base::toInt16(32767.4), 32767);
    EXPECT_EQ(base::toInt16(2.5), 2);
    EXPECT_EQ(errorOf([] { base::toInt16(32768); }), 6);
    EXPECT_EQ(errorOf([] { base::toInt16(32767.5); }), 6);
    EXPECT_EQ(errorOf([] { base::toInt16(-32769); }), 6);
    EXPECT_EQ(errorOf([] { base::toInt16(std::nan("")); }), 6);
}

TEST(ToInt32, HoldsItsWholeRangeAndNoMore) {
    EXPECT_EQ(base::toInt32(2147483647), 2147483647);
    EXPECT_EQ(base::toInt32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(errorOf([] { base::toInt32(2147483648.0); }), 6);
    EXPECT_EQ(errorOf([] { base::toInt32(-2147483649.0); }), 6);
}

TEST(DecimalText, HasACommaAndNothingThatIsNotNeeded) {
    EXPECT_EQ(base::decimalText(12.3).toStdString(), "12,3");
    EXPECT_EQ(base::decimalText(12).toStdString(), "12");
    EXPECT_EQ(base::decimalText(1234567.5).toStdString(), "1234567,5");
    EXPECT_EQ(base::decimalText(0.1 + 0.2).toStdString(), "0,3");
}

TEST(DecimalText, HasThePlainMinusSignAndNoNegativeZero) {
    EXPECT_EQ(base::decimalText(-0.9).toStdString(), "-0,9");
    EXPECT_EQ(base::decimalText(-0.0).toStdString(), "0");
}

TEST(QueryNumber, IsTheWholeNumberAtTheStart) {
    EXPECT_EQ(base::queryNumber(u"12").toStdString(), "12");
    EXPECT_EQ(base::queryNumber(u" 12 ").toStdString(), "12");
    EXPECT_EQ(base::queryNumber(u"12 bis").toStdString(), "12");
    EXPECT_EQ(base::queryNumber(u"32767").toStdString(), "32767");
    EXPECT_EQ(base::queryNumber(u"1234567890123456").toStdString(), "1234567890123456");
}

TEST(QueryNumber, StaysOfDigitsHoweverLongTheTextIs) {
    const QString number = base::queryNumber(QString(400, u'2'));
    EXPECT_GT(number.size(), 300);
    for (const QChar c : number) {
        ASSERT_TRUE(c >= u'0' && c <= u'9') << number.toStdString();
    }
}

TEST(QueryNumber, IsZeroForATextWithoutOne) {
    EXPECT_EQ(base::queryNumber(u"").toStdString(), "0");
    EXPECT_EQ(base::queryNumber(u"' OR 1").toStdString(), "0");
}

}  // namespace
