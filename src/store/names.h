#pragma once

#include <QString>
#include <QStringView>
#include <cstddef>
#include <unordered_map>

namespace store {

/// A letter of ASCII in capitals; any other character as it stands. Names of tables and fields are plain ASCII.
inline char16_t capital(char16_t c) {
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 0x20) : c;
}

/// Whether two names are the same, case apart.
inline bool sameName(QStringView a, QStringView b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (qsizetype i = 0; i < a.size(); ++i) {
        if (capital(a[i].unicode()) != capital(b[i].unicode())) {
            return false;
        }
    }
    return true;
}

struct NameHash {
    using is_transparent = void;
    std::size_t operator()(QStringView name) const {
        std::size_t hash = 0xcbf29ce484222325U;
        for (const QChar c : name) {
            hash = (hash ^ capital(c.unicode())) * 0x100000001b3U;
        }
        return hash;
    }
};

struct NameEqual {
    using is_transparent = void;
    bool operator()(QStringView a, QStringView b) const { return sameName(a, b); }
};

/// Places by name, case apart.
using NameIndex = std::unordered_map<QString, int, NameHash, NameEqual>;

}  // namespace store
