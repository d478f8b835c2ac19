#include "state/ProgramFolder.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "numbers/RuntimeError.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

namespace fs = std::filesystem;

/// The entry of `folder` that is called `name` but for case; the exact name wins over the others.
fs::path entryCalled(const fs::path& folder, const std::string& name) {
    std::error_code failure;
    if (fs::exists(folder / name, failure)) return folder / name;
    const std::string wanted = lowerCase(name);
    for (fs::directory_iterator at(folder, failure), end; !failure && at != end; at.increment(failure)) {
        if (lowerCase(at->path().filename().string()) == wanted) return at->path();
    }
    return folder / name;
}

int faultOf(int code) {
    switch (code) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return fault::kDiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return fault::kPermissionDenied;
        case ENOENT:
        case ENOTDIR:
        case EISDIR:
            return fault::kPathAccess;
        default:
            return fault::kDeviceIo;
    }
}

/// A file descriptor that closes itself.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    int closeNow() { return ::close(std::exchange(number_, -1)); }

  private:
    int number_;
};

bool writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return ::fsync(descriptor) == 0 || errno == EINVAL;
}

/// The access rights of the file that is replaced, or those that a new file gets.
mode_t rightsFor(const fs::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) return status.st_mode & 0777U;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666U & ~mask;
}

}  // namespace

ProgramFolder::ProgramFolder(fs::path root) : root_(std::move(root)) {}

fs::path ProgramFolder::find(std::string_view name) const {
    fs::path path = root_;
    std::size_t at = 0;
    while (at < name.size()) {
        const std::size_t end = std::min(name.find_first_of("\\/", at), name.size());
        if (end > at) path = entryCalled(path, std::string(name.substr(at, end - at)));
        at = end + 1;
    }
    return path;
}

std::string ProgramFolder::read(std::string_view name) const {
    return readWholeFile(find(name));
}

std::string readWholeFile(const fs::path& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.number() < 0) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        raise(missing ? fault::kFileNotFound : faultOf(errno));
    }
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) raise(fault::kDeviceIo);
    if (S_ISDIR(status.st_mode)) raise(fault::kPathAccess);
    std::string content;
    content.reserve(static_cast<std::size_t>(status.st_size));
    char block[65536];
    for (;;) {
        const ssize_t count = ::read(file.number(), block, sizeof block);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) raise(fault::kDeviceIo);
        if (count == 0) return content;
        content.append(block, static_cast<std::size_t>(count));
    }
}

void writeWholeFile(const fs::path& path, std::string_view content) {
    std::error_code ignored;
    // A link is written through, so that what it points to is what gets replaced.
    const fs::path target = fs::is_symlink(path, ignored) ? fs::weakly_canonical(path, ignored) : path;
    if (fs::is_directory(target, ignored)) raise(fault::kPathAccess);
    std::string temporary = target.string() + ".XXXXXX";
    Descriptor file(::mkstemp(temporary.data()));
    if (file.number() < 0) raise(faultOf(errno));
    const bool whole = ::fchmod(file.number(), rightsFor(target)) == 0 && writeAll(file.number(), content) &&
                       file.closeNow() == 0;
    if (!whole || ::rename(temporary.c_str(), target.c_str()) != 0) {
        const int code = errno;
        ::unlink(temporary.c_str());
        raise(faultOf(code));
    }
}

}  // namespace norlaplan
