#include "dossier/key_filters.h"

namespace dossier {

void capitals(forms::KeyPress& key) {
    const QChar c = key.character();
    if (c >= u'a' && c <= u'z') {
        key.replace(c.toUpper());
    }
}

void digitsOnly(forms::KeyPress& key) {
    const QChar c = key.character();
    if (c < u'0' || c > u'9') {
        key.swallow();
    }
}

}  // namespace dossier
