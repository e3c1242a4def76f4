#include "base/process.h"

#include <sys/stat.h>

#include <csignal>

namespace base {

void settleProcess() {
    ::umask(S_IRWXG | S_IRWXO);
    std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace base
