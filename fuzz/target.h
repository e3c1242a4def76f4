#pragma once

#include <QString>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The door by which a fuzzer hands its bytes to a target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

inline QByteArray bytes(const std::uint8_t* data, std::size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

/// Ends the run if a rule doesn't hold for the bytes at hand.
inline void demand(bool holds, const char* rule, const QString& text = {}) {
    if (!holds) {
        std::fprintf(stderr, "broken rule: %s\n%s\n", rule, qUtf8Printable(text));
        std::abort();
    }
}

}  // namespace fuzz
