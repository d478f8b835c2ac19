#include "state/StagedFile.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "numbers/RuntimeError.h"
#include "numbers/Utf8.h"
#include "state/FileFault.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr int kMostLinks = 40;
constexpr int kTries = 20;
/// How long a pipe's other end is waited for.
constexpr auto kPipePatience = 10s;

[[noreturn]] void raiseWriting(int code, const fs::path& file) {
    raiseSystem(code, file, fault::kPathAccess);
}

/// What a link leads to, whether that exists or not.
fs::path followed(fs::path path) {
    std::error_code failure;
    for (int links = 0; fs::is_symlink(path, failure); ++links) {
        if (links == kMostLinks) raiseWriting(ELOOP, path);
        const fs::path next = fs::read_symlink(path, failure);
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    return path;
}

/// The name of the file that waits to take the target's place. A name with no room for more is cut, and a
/// number made of all of it keeps two apart.
std::string waitingName(const fs::path& target) {
    constexpr std::size_t kLongest = 240;
    constexpr std::size_t kKept = 200;
    std::string name = target.filename().string();
    if (name.size() > kLongest) {
        std::uint64_t number = 14695981039346656037U;
        for (const char byte : name)
            number = (number ^ static_cast<unsigned char>(byte)) * 1099511628211U;
        name.resize(wholeCharacters(name, kKept).size());
        name += "." + std::to_string(number);
    }
    return (target.parent_path() / ("." + name + ".part")).string();
}

/// Whether the open file is still the one of that name, and the user's own.
bool isStillNamed(int descriptor, const std::string& name) {
    struct stat open {
    }, named{};
    return ::fstat(descriptor, &open) == 0 && ::lstat(name.c_str(), &named) == 0 && S_ISREG(named.st_mode) &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino && open.st_uid == ::geteuid();
}

/// Bytes onto a descriptor that may make the writer wait, for a while. What `errno` says when it fails.
int writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written >= 0) {
            content.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            pollfd other{descriptor, POLLOUT, 0};
            const auto patience = std::chrono::duration_cast<std::chrono::milliseconds>(kPipePatience);
            if (::poll(&other, 1, static_cast<int>(patience.count())) == 0) return EIO;
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

/// Brings a file's bytes onto its disk. What `errno` says when that fails.
int toDisk(int descriptor) {
    // Some file systems have no such call; they write at closing.
    if (::fsync(descriptor) == 0) return 0;
    if (errno != EINVAL && errno != ENOTSUP && errno != ENOSYS) return errno;
    const int twin = ::dup(descriptor);
    return twin < 0 || ::close(twin) != 0 ? errno : 0;
}

/// The access rights of the file that is replaced, or those that a new file gets.
mode_t rightsFor(const fs::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) return status.st_mode & 0777U;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666U & ~mask;
}

/// A file that its owner has protected stays, although its folder would let it be replaced.
void refuseProtected(const fs::path& path) {
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0) return;
    if (errno == EACCES || errno == EPERM || errno == EROFS) raiseWriting(errno, path);
}

/// A pipe or device, open to be written through; nothing for a plain file or for what isn't there.
std::optional<int> openedThrough(const fs::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || S_ISREG(status.st_mode)) return std::nullopt;
    if (S_ISDIR(status.st_mode) || S_ISSOCK(status.st_mode)) raiseFile(fault::kPathAccess, path);
    const auto end = std::chrono::steady_clock::now() + kPipePatience;
    for (;;) {
        const int descriptor = ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        if (descriptor >= 0) return descriptor;
        // A pipe without a reader: he may be about to open it.
        if (errno != ENXIO || std::chrono::steady_clock::now() >= end) raiseWriting(errno, path);
        std::this_thread::sleep_for(20ms);
    }
}

/// While it lives, a reader who leaves a pipe is an error of the write and not the end of the program.
class WithoutPipeSignal {
  public:
    WithoutPipeSignal() : before_(std::signal(SIGPIPE, SIG_IGN)) {}
    ~WithoutPipeSignal() { std::signal(SIGPIPE, before_); }
    WithoutPipeSignal(const WithoutPipeSignal&) = delete;
    WithoutPipeSignal& operator=(const WithoutPipeSignal&) = delete;

  private:
    void (*before_)(int);
};

}  // namespace

StagedFile::StagedFile(const fs::path& path) {
    if (const auto device = openedThrough(path)) {
        target_ = path;
        file_ = Descriptor(*device);
        return;
    }
    target_ = followed(path);
    if (target_.filename().empty()) raiseFile(fault::kPathAccess, path);
    refuseProtected(target_);
    // A limit on a file's size is told like a full disk; its signal would end the program.
    [[maybe_unused]] static const auto before = std::signal(SIGXFSZ, SIG_IGN);
    openWaiting();
    // A memory stick may know no rights; the content is what counts.
    [[maybe_unused]] const int rights = ::fchmod(file_.number(), rightsFor(target_));
    if (::ftruncate(file_.number(), 0) == 0) return;
    const int failure = errno;
    discard();
    raiseWriting(failure, target_);
}

StagedFile::StagedFile(const fs::path& path, std::string_view content) : StagedFile(path) {
    if (waiting_.empty()) {
        through_ = content;
    } else {
        append(content);
        settle();
    }
}

void StagedFile::openWaiting() {
    const std::string name = waitingName(target_);
    for (int tries = 0; tries < kTries; ++tries) {
        file_ =
            Descriptor(::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
        if (file_.number() < 0) break;
        // Another program that is saving to the same file holds it, and takes it away when it is done.
        if (::flock(file_.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) break;
        if (isStillNamed(file_.number(), name)) {
            waiting_ = name;
            return;
        }
    }
    if (file_.number() < 0 && errno != ELOOP && errno != EEXIST) raiseWriting(errno, target_);
    std::string own = name.substr(0, name.size() - std::string_view(".part").size()) + ".XXXXXX";
    file_ = Descriptor(::mkostemp(own.data(), O_CLOEXEC));
    if (file_.number() < 0) raiseWriting(errno, target_);
    waiting_ = own;
}

void StagedFile::append(std::string_view content) {
    const WithoutPipeSignal told;
    settled_ = waiting_.empty();
    if (const int failure = writeAll(file_.number(), content); failure != 0) raiseWriting(failure, target_);
}

void StagedFile::settle() {
    if (settled_) return;
    if (const int failure = toDisk(file_.number()); failure != 0) raiseWriting(failure, target_);
    settled_ = true;
}

StagedFile::~StagedFile() {
    discard();
}

void StagedFile::commit() {
    if (waiting_.empty()) {
        append(through_);
    } else {
        settle();
        if (::rename(waiting_.c_str(), target_.c_str()) != 0) raiseWriting(errno, target_);
        waiting_.clear();
    }
    file_.close();
}

void StagedFile::discard() {
    if (!waiting_.empty()) ::unlink(waiting_.c_str());
    waiting_.clear();
    file_.close();
}

void commitTogether(StagedFile& first, StagedFile& second) {
    if (first.waiting().empty()) {
        // What went through a pipe or a device can't be taken back.
        first.commit();
        second.commit();
        return;
    }
    const fs::path& target = first.target();
    const std::string kept = first.waiting() + ".before";
    ::unlink(kept.c_str());
    std::optional<std::string> content;
    const bool linked = ::link(target.c_str(), kept.c_str()) == 0;
    // Some disks know no second name of a file.
    if (!linked && errno != ENOENT) content = readWholeFile(target, kAnySize);
    bool replaced = false;
    try {
        first.commit();
        replaced = true;
        second.commit();
    } catch (...) {
        if (linked) {
            // Of two names of one file a rename leaves both.
            if (::rename(kept.c_str(), target.c_str()) == 0) ::unlink(kept.c_str());
        } else if (replaced && content) {
            writeWholeFile(target, *content);
        } else if (replaced) {
            ::unlink(target.c_str());
        }
        throw;
    }
    if (linked) ::unlink(kept.c_str());
}

}  // namespace norlaplan
