#include <gtest/gtest.h>

#include <array>
#include <set>

#include "base/errors.h"

using base::ErrorNumber;
using base::RuntimeError;

namespace {

constexpr std::array kAll{
    ErrorNumber::InvalidCall,       ErrorNumber::Overflow,         ErrorNumber::DivisionByZero,
    ErrorNumber::TypeMismatch,      ErrorNumber::FileNotFound,     ErrorNumber::DeviceError,
    ErrorNumber::DiskFull,          ErrorNumber::PermissionDenied, ErrorNumber::PathNotFound,
    ErrorNumber::ObjectNotSet,      ErrorNumber::InvalidNull,      ErrorNumber::InvalidPicture,
    ErrorNumber::UpdateWithoutEdit, ErrorNumber::NoCurrentRecord,  ErrorNumber::DuplicateKey,
    ErrorNumber::DatabaseNotFound,  ErrorNumber::ReadOnly,         ErrorNumber::DatabaseNotOpenable,
    ErrorNumber::QuerySyntax,       ErrorNumber::UnknownTable,     ErrorNumber::UnknownParameter,
    ErrorNumber::RecordDeleted,     ErrorNumber::RecordLocked,     ErrorNumber::UnknownField,
    ErrorNumber::RequiredValue,     ErrorNumber::EmptyText,        ErrorNumber::UnknownFormat,
    ErrorNumber::ObjectClosed,      ErrorNumber::JpegSave};

TEST(ErrorText, IsASentenceOfItsOwnForEveryNumber) {
    std::set<QString> texts;
    for (const ErrorNumber number : kAll) {
        const QString text = base::errorText(number);
        EXPECT_TRUE(text.endsWith(u'.')) << text.toStdString();
        EXPECT_TRUE(texts.insert(text).second) << text.toStdString();
        EXPECT_NE(text, base::errorText(ErrorNumber{1})) << static_cast<int>(number);
    }
}

TEST(ErrorText, OfAnUnknownNumberSaysThatItIsUnexpected) {
    EXPECT_EQ(base::errorText(ErrorNumber{1}).toStdString(), "Erreur inattendue.");
}

TEST(RuntimeError, CarriesTheUsualTextOfItsNumber) {
    const RuntimeError error(ErrorNumber::DivisionByZero);
    EXPECT_EQ(static_cast<int>(error.number()), 11);
    EXPECT_EQ(error.text().toStdString(), "Division par zéro.");
}

TEST(RuntimeError, CarriesATextOfItsOwn) {
    const RuntimeError error(ErrorNumber::JpegSave, QStringLiteral("Échec."));
    EXPECT_EQ(static_cast<int>(error.number()), 26001);
    EXPECT_EQ(error.text().toStdString(), "Échec.");
}

TEST(RuntimeError, TellsItsTextInUtf8AlsoAsACopy) {
    const RuntimeError error(ErrorNumber::JpegSave, QStringLiteral("Échec."));
    const RuntimeError copy = error;
    EXPECT_STREQ(copy.what(), "Échec.");
}

}  // namespace
