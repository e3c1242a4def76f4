#pragma once

#include <malloc.h>

#include <cstddef>

namespace qt {

/// The bytes that the process has taken from its heap and not given back; 0 where a sanitizer has a heap of its own.
inline std::size_t bytesInUse() {
    const struct mallinfo2 heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

}  // namespace qt
