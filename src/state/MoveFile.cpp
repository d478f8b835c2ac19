#include "state/MoveFile.h"

#include <string>
#include <system_error>

#include "numbers/RuntimeError.h"
#include "state/WholeFile.h"

namespace norlaplan {

void moveFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code failure;
    if (!std::filesystem::exists(from, failure)) raise(fault::kFileNotFound);
    if (std::filesystem::equivalent(from, to, failure)) return;
    std::filesystem::rename(from, to, failure);
    if (!failure) return;
    // Another file system, or a folder that isn't there: the copy tells which.
    writeWholeFile(to, readWholeFile(from, kAnySize));
    std::filesystem::remove(from, failure);
}

}  // namespace norlaplan
