// Loaded before the C library, it lets the file operations below one folder fail, each in its turn. A program
// under test plans the fault itself (`planFault`), or is started with it in its environment:
//   NORLAPLAN_FAULT_FOLDER  the folder, absolute
//   NORLAPLAN_FAULT_KIND    one of the kinds below
//   NORLAPLAN_FAULT_AT      number of the operation, counted from 1
//   NORLAPLAN_FAULT_LOG     a file to which each operation adds a line: its number, its name, and "fault"
//   where the
//                           fault has begun
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

enum class Kind { None, Once, Full, ReadOnly, Kill, KillAfter, Vanish };

constexpr struct {
    const char* name;
    Kind kind;
} kKinds[] = {
    {"once", Kind::Once},            // that operation fails, the others don't
    {"full", Kind::Full},            // from there on there is no room on the disk
    {"readonly", Kind::ReadOnly},    // from there on nothing can be changed
    {"kill", Kind::Kill},            // the process ends before the operation
    {"killafter", Kind::KillAfter},  // it ends so many microseconds after the first one
    {"vanish", Kind::Vanish},        // before the operation somebody gives the folder another name
};

struct Plan {
    std::string folder, log;
    Kind kind = Kind::None;
    long at = 0;
    std::atomic<long> count = 0;
    bool ours[1024] = {};  ///< descriptors of files below the folder that were opened for writing
};

Kind kindOf(const char* name) {
    for (const auto& known : kKinds) {
        if (name != nullptr && std::strcmp(name, known.name) == 0) return known.kind;
    }
    return Kind::None;
}

std::string fromEnvironment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

Plan& plan() {
    static Plan* const made = [] {
        auto* const plan = new Plan;
        plan->folder = fromEnvironment("NORLAPLAN_FAULT_FOLDER");
        plan->log = fromEnvironment("NORLAPLAN_FAULT_LOG");
        plan->kind = kindOf(std::getenv("NORLAPLAN_FAULT_KIND"));
        plan->at = std::atol(fromEnvironment("NORLAPLAN_FAULT_AT").c_str());
        return plan;
    }();
    return *made;
}

template <typename Function>
Function* real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool isOurs(const char* path) {
    const std::string& folder = plan().folder;
    return path != nullptr && !folder.empty() && std::strncmp(path, folder.c_str(), folder.size()) == 0 &&
           path[folder.size()] == '/';
}

bool isOurs(int descriptor) {
    return descriptor >= 0 && descriptor < 1024 && plan().ours[descriptor];
}

void remember(int descriptor, bool ours) {
    if (descriptor >= 0 && descriptor < 1024) plan().ours[descriptor] = ours;
}

/// What an operation fails with on its own, and whether it needs room on the disk.
struct Call {
    const char* name;
    int error;
    bool takesRoom;
};

void note(const Call& call, long number, bool fault) {
    if (plan().log.empty()) return;
    const std::string line = std::to_string(number) + " " + call.name + (fault ? " fault\n" : "\n");
    const long file = syscall(SYS_open, plan().log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    syscall(SYS_write, file, line.data(), line.size());
    syscall(SYS_close, file);
}

void killAfter(long microseconds) {
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGKILL;
    timer_t timer{};
    timer_create(CLOCK_MONOTONIC, &event, &timer);
    itimerspec when{};
    when.it_value = {microseconds / 1'000'000, microseconds % 1'000'000 * 1000 + 1};
    timer_settime(timer, 0, &when, nullptr);
}

/// Counts an operation. Gives what `errno` is to say, 0 when it is to be done.
int faultOf(const Call& call) {
    Plan& now = plan();
    const long number = ++now.count;
    if (now.kind == Kind::None) return 0;
    if (now.kind == Kind::KillAfter) {
        if (number == 1) killAfter(now.at);
        return 0;
    }
    note(call, number, number == now.at);
    if (number < now.at) return 0;
    if (now.kind == Kind::Full) return call.takesRoom ? ENOSPC : 0;
    if (now.kind == Kind::ReadOnly) return EROFS;
    if (number != now.at) return 0;
    if (now.kind == Kind::Kill) kill(getpid(), SIGKILL);
    if (now.kind == Kind::Vanish) syscall(SYS_rename, now.folder.c_str(), (now.folder + ".gone").c_str());
    return now.kind == Kind::Once ? call.error : 0;
}

bool fails(const Call& call) {
    const int before = errno;
    const int failure = faultOf(call);
    errno = failure == 0 ? before : failure;
    return failure != 0;
}

constexpr Call kOpen{"open", EACCES, true}, kWrite{"write", ENOSPC, true}, kSync{"sync", EIO, true},
    kClose{"close", EIO, false}, kTruncate{"truncate", EIO, false}, kRename{"rename", EACCES, false},
    kLink{"link", EPERM, true}, kUnlink{"unlink", EACCES, false}, kMake{"mkdir", ENOSPC, true},
    kRights{"chmod", EPERM, false};

bool writes(int flags) {
    return (flags & O_ACCMODE) != O_RDONLY || (flags & O_CREAT) != 0;
}

using Open = int(const char*, int, mode_t);

int openBy(const char* name, const char* path, int flags, mode_t mode) {
    const bool ours = writes(flags) && isOurs(path);
    if (ours && fails(kOpen)) return -1;
    const int descriptor = real<Open>(name)(path, flags, mode);
    remember(descriptor, ours);
    return descriptor;
}

mode_t modeOf(int flags, va_list& more) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(more, mode_t) : 0;
}

/// Writes half of it on a fault: what a disk takes before it is full.
template <typename Write>
ssize_t writeBy(int descriptor, std::size_t size, const Write& write) {
    if (!isOurs(descriptor) || !fails(kWrite)) return write(size);
    const int failure = errno;
    write(size / 2);
    errno = failure;
    return -1;
}

}  // namespace

extern "C" {

/// From now on. Nothing fails when the kind is none of those above.
void planFault(const char* folder, const char* kind, long at) {
    plan().folder = folder;
    plan().kind = kindOf(kind);
    plan().at = at;
    plan().count = 0;
}

/// Since it was planned.
long operationsSeen() {
    return plan().count;
}

/// Always the same moment, so that two documents are equal.
time_t time(time_t* place) noexcept {
    constexpr time_t kMoment = 1'700'000'000;
    if (place != nullptr) *place = kMoment;
    return kMoment;
}

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = modeOf(flags, more);
    va_end(more);
    return openBy("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const mode_t mode = modeOf(flags, more);
    va_end(more);
    return openBy("open64", path, flags, mode);
}

int mkostemp(char* pattern, int flags) {
    const bool ours = isOurs(pattern);
    if (ours && fails(kOpen)) return -1;
    const int descriptor = real<int(char*, int)>("mkostemp")(pattern, flags);
    remember(descriptor, ours);
    return descriptor;
}

FILE* fopen(const char* path, const char* mode) {
    if (std::strpbrk(mode, "wa+") != nullptr && isOurs(path) && fails(kOpen)) return nullptr;
    return real<FILE*(const char*, const char*)>("fopen")(path, mode);
}

FILE* fopen64(const char* path, const char* mode) {
    if (std::strpbrk(mode, "wa+") != nullptr && isOurs(path) && fails(kOpen)) return nullptr;
    return real<FILE*(const char*, const char*)>("fopen64")(path, mode);
}

ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    static auto* const next = real<ssize_t(int, const void*, std::size_t)>("write");
    return writeBy(descriptor, size, [&](std::size_t count) { return next(descriptor, bytes, count); });
}

ssize_t pwrite64(int descriptor, const void* bytes, std::size_t size, long offset) {
    static auto* const next = real<ssize_t(int, const void*, std::size_t, long)>("pwrite64");
    return writeBy(descriptor, size,
                   [&](std::size_t count) { return next(descriptor, bytes, count, offset); });
}

ssize_t writev(int descriptor, const iovec* parts, int count) {
    if (isOurs(descriptor) && fails(kWrite)) return -1;
    return real<ssize_t(int, const iovec*, int)>("writev")(descriptor, parts, count);
}

int fsync(int descriptor) {
    return isOurs(descriptor) && fails(kSync) ? -1 : real<int(int)>("fsync")(descriptor);
}

int fdatasync(int descriptor) {
    return isOurs(descriptor) && fails(kSync) ? -1 : real<int(int)>("fdatasync")(descriptor);
}

int dup(int descriptor) noexcept {
    const int twin = real<int(int)>("dup")(descriptor);
    remember(twin, isOurs(descriptor));
    return twin;
}

/// A file that fails to close is closed all the same.
int close(int descriptor) {
    static auto* const next = real<int(int)>("close");
    const bool failing = isOurs(descriptor) && fails(kClose);
    const int failure = errno;
    remember(descriptor, false);
    const int result = next(descriptor);
    if (!failing) return result;
    errno = failure;
    return -1;
}

int ftruncate(int descriptor, long size) noexcept {
    return isOurs(descriptor) && fails(kTruncate) ? -1 : real<int(int, long)>("ftruncate")(descriptor, size);
}

int ftruncate64(int descriptor, long size) noexcept {
    return isOurs(descriptor) && fails(kTruncate) ? -1
                                                  : real<int(int, long)>("ftruncate64")(descriptor, size);
}

int fchmod(int descriptor, mode_t mode) noexcept {
    return isOurs(descriptor) && fails(kRights) ? -1 : real<int(int, mode_t)>("fchmod")(descriptor, mode);
}

int rename(const char* from, const char* to) noexcept {
    const bool ours = isOurs(from) || isOurs(to);
    return ours && fails(kRename) ? -1 : real<int(const char*, const char*)>("rename")(from, to);
}

int link(const char* from, const char* to) noexcept {
    return isOurs(to) && fails(kLink) ? -1 : real<int(const char*, const char*)>("link")(from, to);
}

int unlink(const char* path) noexcept {
    return isOurs(path) && fails(kUnlink) ? -1 : real<int(const char*)>("unlink")(path);
}

int remove(const char* path) noexcept {
    return isOurs(path) && fails(kUnlink) ? -1 : real<int(const char*)>("remove")(path);
}

int mkdir(const char* path, mode_t mode) noexcept {
    return isOurs(path) && fails(kMake) ? -1 : real<int(const char*, mode_t)>("mkdir")(path, mode);
}

}  // extern "C"
