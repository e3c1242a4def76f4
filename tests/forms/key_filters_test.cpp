#include "forms/key_filters.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

/// What is left of some typed characters.
QString left(void (*filter)(KeyPress&), const QString& typed) {
    QString text;
    for (const QChar c : typed) {
        KeyPress key(c);
        filter(key);
        if (!key.swallowed()) {
            text += key.character();
        }
    }
    return text;
}

TEST(KeyFilters, TurnTheLettersFromAToZIntoCapitals) {
    EXPECT_EQ(left(capitals, "azAZ-é'9 "), "AZAZ-é'9 ");
}

TEST(KeyFilters, LetDigitsAndBackspaceThrough) {
    EXPECT_EQ(left(digitsOnly, "0a9,.- é٣/:"), "09");
    EXPECT_EQ(left(digitsOnly, QString(kBackspace)), QString(kBackspace));
    EXPECT_EQ(left(capitals, QString(kBackspace)), QString(kBackspace));
}

}  // namespace
}  // namespace forms
