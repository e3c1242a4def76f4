#include "store/like.h"

#include <sqlite3.h>

#include <algorithm>

#include "store/collation.h"
#include "store/utf8.h"

namespace store {
namespace {

void appendSmall(std::string& folded, std::string_view text) {
    for (Utf8Reader reader(text); !reader.atEnd();) {
        const char32_t code = small(reader.next());
        if (code < 0x80) {
            folded += static_cast<char>(code);
        } else {
            appendUtf8(folded, code);
        }
    }
}

std::string_view textOf(sqlite3_value* value) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return bytes == nullptr ? std::string_view()
                            : std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

const Pattern* patternOf(sqlite3_context* context, sqlite3_value* value) {
    if (const void* kept = sqlite3_get_auxdata(context, 0)) {
        return static_cast<const Pattern*>(kept);
    }
    sqlite3_set_auxdata(context, 0, new Pattern(textOf(value)), [](void* old) { delete static_cast<Pattern*>(old); });
    return static_cast<const Pattern*>(sqlite3_get_auxdata(context, 0));
}

void resemble(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
        return;
    }
    if (const Pattern* pattern = patternOf(context, arguments[0])) {
        sqlite3_result_int(context, pattern->matches(textOf(arguments[1])) ? 1 : 0);
    } else {
        sqlite3_result_error_nomem(context);
    }
}

}  // namespace

Pattern::Pattern(std::string_view pattern) {
    std::string folded;
    appendSmall(folded, pattern);
    std::size_t from = 0;
    for (std::size_t star; (star = folded.find('*', from)) != std::string::npos; from = star + 1) {
        pieces_.push_back(folded.substr(from, star - from));
    }
    pieces_.push_back(folded.substr(from));
}

bool Pattern::matches(std::string_view text) const {
    thread_local std::string folded;
    folded.clear();
    appendSmall(folded, text);
    return matchesFolded(folded);
}

bool Pattern::matchesFolded(std::string_view text) const {
    const std::string& head = pieces_.front();
    const std::string& tail = pieces_.back();
    if (pieces_.size() == 1) {
        return text == head;
    }
    if (text.size() < head.size() + tail.size() || !text.starts_with(head) || !text.ends_with(tail)) {
        return false;
    }
    text = text.substr(head.size(), text.size() - head.size() - tail.size());
    return std::all_of(pieces_.begin() + 1, pieces_.end() - 1, [&text](const std::string& piece) {
        const auto found = text.find(piece);
        text.remove_prefix(found == std::string_view::npos ? text.size() : found + piece.size());
        return found != std::string_view::npos;
    });
}

void addLike(sqlite3* database) {
    constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_function_v2(database, "RESSEMBLE", 2, kFlags, nullptr, resemble, nullptr, nullptr, nullptr);
}

}  // namespace store
