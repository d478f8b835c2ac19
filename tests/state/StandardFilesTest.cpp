#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "state/StandardFiles.h"

namespace norlaplan {
namespace {

/// The status with which a process ends that runs `check`; this one's own files stay as they are.
template <typename Check>
int inAnotherProcess(Check check) {
    const pid_t process = ::fork();
    if (process == 0) ::_exit(check());
    int status = 0;
    ::waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(ClosedStandardFiles, LeaveTheirPlacesToNoOtherFile) {
    const int place = inAnotherProcess([] {
        for (const int file : {0, 1, 2})
            ::close(file);
        holdClosedStandardFiles();
        return ::open("/dev/null", O_RDWR);
    });
    EXPECT_GE(place, 3);
}

TEST(ClosedStandardFiles, GoOnToFailWhereTheyAreReadOrWritten) {
    const int refused = inAnotherProcess([] {
        char one = 'x';
        for (const int file : {0, 1, 2})
            ::close(file);
        holdClosedStandardFiles();
        int count = 0;
        count += ::read(0, &one, 1) < 0 && errno == EBADF ? 1 : 0;
        count += ::write(1, &one, 1) < 0 && errno == EBADF ? 1 : 0;
        count += ::write(2, &one, 1) < 0 && errno == EBADF ? 1 : 0;
        return count;
    });
    EXPECT_EQ(refused, 3);
}

TEST(OpenStandardFiles, StayWhatTheyAre) {
    const int kept = inAnotherProcess([] {
        int ends[2];
        if (::pipe(ends) != 0 || ::dup2(ends[1], 1) != 1) return 1;
        holdClosedStandardFiles();
        char one = 'x';
        return ::write(1, &one, 1) == 1 && ::read(ends[0], &one, 1) == 1 ? 0 : 2;
    });
    EXPECT_EQ(kept, 0);
}

}  // namespace
}  // namespace norlaplan
