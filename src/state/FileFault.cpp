#include "state/FileFault.h"

#include <cerrno>
#include <string>

#include "numbers/Utf8.h"

namespace norlaplan {
namespace {

/// A path that fits a message: a long one lacks its middle.
std::string shownPath(const std::filesystem::path& file) {
    constexpr std::size_t kEnd = 120;
    std::string path = file.string();
    if (path.size() <= 2 * kEnd + 3) return path;
    std::size_t right = path.size() - kEnd;
    while (right < path.size() && continuesCharacter(path[right]))
        ++right;
    return std::string(wholeCharacters(path, kEnd)) + "..." + path.substr(right);
}

}  // namespace

RuntimeError fileFault(int number, const std::filesystem::path& path) {
    return {number, runtimeErrorText(number) + ": " + shownPath(path)};
}

void raiseFile(int fault, const std::filesystem::path& file) {
    throw fileFault(fault, file);
}

void raiseTooLarge(const std::filesystem::path& file, std::size_t most) {
    const std::size_t limit = most >> 20U;
    throw RuntimeError(fault::kInvalidFormat, runtimeErrorText(fault::kInvalidFormat) +
                                                  ": it is larger than " + std::to_string(limit) +
                                                  " MB: " + shownPath(file));
}

int faultOfSystem(int code, int missing) {
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
            return missing;
        case EISDIR:
        case ELOOP:
            return fault::kPathAccess;
        case ENAMETOOLONG:
            return fault::kBadFileName;
        case EMFILE:
        case ENFILE:
            return fault::kTooManyFiles;
        case ENOMEM:
            return fault::kOutOfMemory;
        default:
            return fault::kDeviceIo;
    }
}

void raiseSystem(int code, const std::filesystem::path& file, int missing) {
    const int number = faultOfSystem(code, missing);
    if (number != fault::kBadFileName) raiseFile(number, file);
    throw RuntimeError(number, runtimeErrorText(number) + ": the name is too long: " + shownPath(file));
}

}  // namespace norlaplan
