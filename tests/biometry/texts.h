#pragma once

#include <string>

#include "biometry/outcome.h"

/// An outcome as a test reads it: the text to write, or in brackets what happens instead.
inline std::string told(const biometry::Outcome& outcome) {
    using Kind = biometry::Outcome::Kind;
    switch (outcome.kind()) {
        case Kind::Leave:
            return "[leave]";
        case Kind::Write:
            return outcome.text().toStdString();
        case Kind::Refuse:
            return "[refuse] " + outcome.text().toStdString();
        case Kind::Fail:
            return "[error " + std::to_string(static_cast<int>(outcome.error())) + "]";
    }
    return "[unknown]";
}
