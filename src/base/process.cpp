#include "base/process.h"

#include <malloc.h>
#include <sys/stat.h>

#include <csignal>

namespace base {
namespace {

// Bytes. Beyond this a block has pages of its own, which go back to the machine when it is freed.
constexpr int kLargeBlock = 256 * 1024;
constexpr int kMostKept = 1024 * 1024;

}  // namespace

void settleProcess() {
    ::umask(S_IRWXG | S_IRWXO);
    ::mallopt(M_MMAP_THRESHOLD, kLargeBlock);
    ::mallopt(M_TRIM_THRESHOLD, kMostKept);
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace base
