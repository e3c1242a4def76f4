#include "forms/key_filters.h"

namespace forms {

void capitals(KeyPress& key) {
    const QChar c = key.character();
    if (c >= u'a' && c <= u'z') {
        key.replace(c.toUpper());
    }
}

void digitsOnly(KeyPress& key) {
    const QChar c = key.character();
    if ((c < u'0' || c > u'9') && c != kBackspace) {
        key.swallow();
    }
}

}  // namespace forms
