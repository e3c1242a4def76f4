#pragma once

#include <string_view>

struct sqlite3;

namespace store {

/// The version of the order below, kept in each file: a file sorted by another one has its indexes made anew.
inline constexpr int kCollationVersion = 1;

/// Compares two texts (UTF-8) in French order: base letters first, accents next, case never. An œ sorts as oe, an æ as
/// ae. Apostrophes and hyphens weigh nothing but in a last comparison that keeps different texts different. Depends
/// on no library and no locale, since indexes are stored in this order.
int compareTexts(std::string_view a, std::string_view b);

/// The small form of a letter; any other character as it stands. One character always gives one.
char32_t small(char32_t code);

/// Makes the order known to a connection as FR.
void addCollation(sqlite3* database);

}  // namespace store
