#include "state/WholeFile.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

namespace fs = std::filesystem;

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
    // Some file systems have no such call; they write at closing.
    return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
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

std::string readWholeFile(const fs::path& path) {
    // A pipe in a file's place must not be waited for.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.number() < 0) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        raise(missing ? fault::kFileNotFound : faultOf(errno));
    }
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) raise(fault::kDeviceIo);
    if (!S_ISREG(status.st_mode)) raise(fault::kPathAccess);
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

StagedFile::StagedFile(const fs::path& path, std::string_view content) {
    std::error_code ignored;
    // A link is written through, so that what it points to is what gets replaced.
    target_ = fs::is_symlink(path, ignored) ? fs::weakly_canonical(path, ignored) : path;
    if (fs::is_directory(target_, ignored)) raise(fault::kPathAccess);
    std::string name = target_.string() + ".XXXXXX";
    Descriptor file(::mkstemp(name.data()));
    if (file.number() < 0) raise(faultOf(errno));
    temporary_ = name;
    // A memory stick may know no rights; the content is what counts.
    if (::fchmod(file.number(), rightsFor(target_)) != 0) errno = 0;
    if (writeAll(file.number(), content) && file.closeNow() == 0) return;
    const int code = errno;
    discard();
    raise(faultOf(code));
}

StagedFile::~StagedFile() {
    discard();
}

void StagedFile::commit() {
    if (::rename(temporary_.c_str(), target_.c_str()) != 0) raise(faultOf(errno));
    temporary_.clear();
}

void StagedFile::discard() {
    if (!temporary_.empty()) ::unlink(temporary_.c_str());
    temporary_.clear();
}

void writeWholeFile(const fs::path& path, std::string_view content) {
    StagedFile(path, content).commit();
}

}  // namespace norlaplan
