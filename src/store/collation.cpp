#include "store/collation.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "store/letters.h"
#include "store/utf8.h"

namespace store {
namespace {

// Weights of the first level; 0 weighs nothing.
using Weight = std::uint32_t;
constexpr Weight kDigits = 0x100;
constexpr Weight kPlainLetters = 0x200;
constexpr Weight kOthers = 0x1000;

// Blanks, then signs, in the order in which they sort.
constexpr std::u32string_view kSigns =
    U"\t\n\v\f\r "
    U"\u2014\u2013_,;:!?.\u2026\u00B7\"\u201C\u201D\u00AB\u00BB()[]{}\u00A7\u00B6@*/"
    U"\\&#%`^\u00A8\u00B0\u00A9\u00AE+\u00B1\u00F7\u00D7<=>|\u00A6~\u00A4$\u00A3\u20AC";
constexpr std::u32string_view kWeightless = U"'\u2019\u2018\u02BC-\u2010\u2011\u00AD";

constexpr bool isLetter(char32_t code) {
    return (code >= U'a' && code <= U'z') || (code >= U'A' && code <= U'Z');
}

constexpr Weight signWeight(char32_t code) {
    const auto found = kSigns.find(code);
    return found == std::u32string_view::npos ? 0 : static_cast<Weight>(found + 1);
}

constexpr Weight asciiWeight(char32_t code) {
    if (code >= U'0' && code <= U'9') {
        return kDigits + (code - U'0');
    }
    return isLetter(code) ? kPlainLetters + ((code | 0x20) - U'a') : signWeight(code);
}

constexpr auto kAscii = [] {
    std::array<std::uint16_t, 128> weights{};
    for (char32_t code = 0; code < weights.size(); ++code) {
        weights[code] = static_cast<std::uint16_t>(asciiWeight(code));
    }
    return weights;
}();

const Letter* findLetter(char32_t code) {
    if (code > 0xFFFF) {
        return nullptr;
    }
    const auto found = std::ranges::lower_bound(kLetters, static_cast<char16_t>(code), {}, &Letter::code);
    return found != kLetters.end() && found->code == code ? &*found : nullptr;
}
static_assert(std::ranges::is_sorted(kLetters, {}, &Letter::code));

Weight markWeight(char32_t mark) {
    const auto found = std::ranges::find(kMarks, mark);
    return static_cast<Weight>(found - kMarks.begin()) + 2;
}

constexpr bool isMark(char32_t code) {
    return code >= 0x0300 && code <= 0x036F;
}

// A plain letter or sign at the second level, and the letters joined to another.
constexpr Weight kPlain = 1;
constexpr Weight kJoinedWeight = 0x100;

Weight otherWeight(char32_t code) {
    if (const Weight sign = signWeight(code)) {
        return sign;
    }
    if (code == 0x00A0 || code == 0x202F) {
        return signWeight(U' ');
    }
    return isMark(code) || kWeightless.find(code) != std::u32string_view::npos ? 0 : kOthers + small(code);
}

/// The weights of the first level: base letters, digits and signs.
class BaseLetters {
public:
    explicit BaseLetters(std::string_view text) : reader_(text) {}

    Weight next() {
        if (second_ != 0) {
            return std::exchange(second_, 0);
        }
        while (!reader_.atEnd()) {
            const char32_t code = reader_.next();
            if (const Weight weight = code < 0x80 ? kAscii[code] : weightOf(code)) {
                return weight;
            }
        }
        return 0;
    }

private:
    Weight weightOf(char32_t code) {
        if (const Letter* letter = findLetter(code)) {
            second_ = letter->second != 0 ? asciiWeight(static_cast<char32_t>(letter->second)) : 0;
            return asciiWeight(static_cast<char32_t>(letter->first));
        }
        return otherWeight(code);
    }

    Utf8Reader reader_;
    Weight second_ = 0;
};

/// The weights of the second level: one for each base letter, and its accents behind it.
class Accents {
public:
    explicit Accents(std::string_view text) : reader_(text) {}

    Weight next() {
        while (true) {
            if (at_ < count_) {
                return pending_[at_++];
            }
            if (reader_.atEnd()) {
                return 0;
            }
            read(reader_.next());
        }
    }

private:
    void read(char32_t code) {
        at_ = count_ = 0;
        const Letter* letter = code < 0x80 ? nullptr : findLetter(code);
        if (letter != nullptr) {
            readLetter(*letter);
        } else if (isMark(code)) {
            push(markWeight(code));
        } else if ((code < 0x80 ? kAscii[code] : otherWeight(code)) != 0) {
            push(kPlain);
        }
    }

    void readLetter(const Letter& letter) {
        push(kPlain);
        for (const char16_t mark : letter.marks) {
            if (mark != 0) {
                push(mark == kJoined ? kJoinedWeight : markWeight(mark));
            }
        }
        if (letter.second != 0) {
            push(kPlain);
        }
    }

    void push(Weight weight) { pending_[count_++] = weight; }

    Utf8Reader reader_;
    std::array<Weight, 4> pending_{};
    std::size_t at_ = 0;
    std::size_t count_ = 0;
};

/// The last level: the characters themselves, case apart.
class Characters {
public:
    explicit Characters(std::string_view text) : reader_(text) {}
    Weight next() { return reader_.atEnd() ? 0 : small(reader_.next()) + 1; }

private:
    Utf8Reader reader_;
};

template <class Level>
int compareLevel(std::string_view a, std::string_view b) {
    Level left(a);
    Level right(b);
    while (true) {
        const Weight l = left.next();
        const Weight r = right.next();
        if (l != r) {
            return l < r ? -1 : 1;
        }
        if (l == 0) {
            return 0;
        }
    }
}

int compareForSqlite(void*, int sizeA, const void* a, int sizeB, const void* b) {
    return compareTexts({static_cast<const char*>(a), static_cast<std::size_t>(sizeA)},
                        {static_cast<const char*>(b), static_cast<std::size_t>(sizeB)});
}

}  // namespace

char32_t small(char32_t code) {
    if (code < 0x80) {
        return code >= U'A' && code <= U'Z' ? code + 0x20 : code;
    }
    if (const Letter* letter = findLetter(code)) {
        return letter->small;
    }
    const bool greek = code >= 0x0391 && code <= 0x03A9 && code != 0x03A2;
    if (greek || (code >= 0x0410 && code <= 0x042F)) {
        return code + 0x20;
    }
    if (code >= 0x0400 && code <= 0x040F) {
        return code + 0x50;
    }
    return code == 0x00DE ? 0x00FE : code;
}

int compareTexts(std::string_view a, std::string_view b) {
    if (a == b) {
        return 0;
    }
    if (const int order = compareLevel<BaseLetters>(a, b)) {
        return order;
    }
    if (const int order = compareLevel<Accents>(a, b)) {
        return order;
    }
    return compareLevel<Characters>(a, b);
}

void addCollation(sqlite3* database) {
    sqlite3_create_collation_v2(database, "FR", SQLITE_UTF8, nullptr, compareForSqlite, nullptr);
}

}  // namespace store
