#include "base/private_files.h"

#include <sys/stat.h>

namespace base {

void keepFilesPrivate() {
    ::umask(S_IRWXG | S_IRWXO);
}

}  // namespace base
