#pragma once

#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace store {

/// A pattern of LIKE: `*` stands for any run of characters, every other character for itself. Case is ignored, accents
/// count.
class Pattern {
public:
    /// From a pattern in UTF-8.
    explicit Pattern(std::string_view pattern);

    bool matches(std::string_view text) const;

private:
    bool matchesFolded(std::string_view text) const;

    // What stands between the wild cards, in small letters: at least one piece.
    std::vector<std::string> pieces_;
};

/// Makes the function RESSEMBLE(pattern, value) known to a connection: 1, 0, or null for a null. A number matches
/// through its digits.
void addLike(sqlite3* database);

}  // namespace store
