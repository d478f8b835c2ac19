#include "state/WholeFile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

#include "numbers/RuntimeError.h"
#include "state/Descriptor.h"
#include "state/FileFault.h"
#include "state/StagedFile.h"

namespace norlaplan {

std::string readWholeFile(const std::filesystem::path& path, std::size_t most) {
    // A pipe in a file's place must not be waited for.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.number() < 0) raiseSystem(errno, path, fault::kFileNotFound);
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) raiseFile(fault::kDeviceIo, path);
    if (!S_ISREG(status.st_mode)) raiseFile(fault::kPathAccess, path);
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > most) raiseTooLarge(path, most);
    std::string content;
    content.reserve(size);
    char block[65536];
    for (;;) {
        const ssize_t count = ::read(file.number(), block, sizeof block);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) raiseFile(fault::kDeviceIo, path);
        if (count == 0) return content;
        content.append(block, static_cast<std::size_t>(count));
        // It may still be growing, and what the system makes up has no size beforehand.
        if (content.size() > most) raiseTooLarge(path, most);
    }
}

void writeWholeFile(const std::filesystem::path& path, std::string_view content) {
    StagedFile(path, content).commit();
}

void makeFolder(const std::filesystem::path& folder) {
    std::error_code failure;
    if (folder.empty() || std::filesystem::is_directory(folder, failure)) return;
    if (folder.has_relative_path()) makeFolder(folder.parent_path());
    if (::mkdir(folder.c_str(), S_IRWXU) == 0) return;
    const int code = errno == EEXIST ? ENOTDIR : errno;
    if (std::filesystem::is_directory(folder, failure)) return;
    const int number = faultOfSystem(code, fault::kPathAccess);
    throw RuntimeError(number,
                       runtimeErrorText(number) + ": the folder " + folder.string() + " can't be made");
}

}  // namespace norlaplan
