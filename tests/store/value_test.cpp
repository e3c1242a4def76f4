#include "store/value.h"

#include "store/files.h"

using base::ErrorNumber;
using store::Value;

TEST(FieldValue, ReadsAsTextInTheFrenchForm) {
    EXPECT_EQ(Value().text(), QString());
    EXPECT_EQ(Value(-12).text(), u"-12"_qs);
    EXPECT_EQ(Value(12.5).text(), u"12,5"_qs);
    EXPECT_EQ(Value(u" a "_qs).text(), u" a "_qs);
    EXPECT_EQ(Value(QDate(2002, 4, 6)).text(), u"06/04/2002"_qs);
}

TEST(FieldValue, ReadsAsTheNearestWholeNumber) {
    EXPECT_EQ(Value(7).number(), 7);
    EXPECT_EQ(Value(2.5).number(), 2);
    EXPECT_EQ(Value(3.5).number(), 4);
    EXPECT_EQ(Value(u" 003 "_qs).number(), 3);
    EXPECT_EQ(Value(u"12,7"_qs).number(), 13);
    EXPECT_EQ(Value(u"9007199254740993"_qs).number(), 9007199254740993);
    expectError(ErrorNumber::InvalidNull, [] { static_cast<void>(Value().number()); });
    expectError(ErrorNumber::TypeMismatch, [] { static_cast<void>(Value(u"douze"_qs).number()); });
    expectError(ErrorNumber::TypeMismatch, [] { static_cast<void>(Value(QString()).number()); });
    expectError(ErrorNumber::TypeMismatch, [] { static_cast<void>(Value(QDate(2002, 4, 6)).number()); });
    expectError(ErrorNumber::Overflow, [] { static_cast<void>(Value(1e19).number()); });
    expectError(ErrorNumber::Overflow, [] { static_cast<void>(Value(u"99999999999999999999"_qs).number()); });
}

TEST(FieldValue, IsADateOrNone) {
    EXPECT_EQ(Value(QDate(2002, 4, 6)).date(), QDate(2002, 4, 6));
    EXPECT_FALSE(Value(u"06/04/2002"_qs).date().isValid());
    EXPECT_TRUE(Value().isNull());
    EXPECT_FALSE(Value(QString()).isNull());
}
