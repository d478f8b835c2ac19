#include "state/StandardFiles.h"

#include <fcntl.h>
#include <unistd.h>

namespace norlaplan {

void holdClosedStandardFiles() {
    for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(file, F_GETFD) >= 0) continue;
        // The lowest free place is this one. It is opened the wrong way round, or a result that nobody gets
        // would seem to be printed.
        [[maybe_unused]] const int held = ::open("/dev/null", file == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

}  // namespace norlaplan
