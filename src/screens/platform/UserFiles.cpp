#include <QStandardPaths>
#include <system_error>

#include "screens/platform/QtPorts.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

/// No text of the user's own comes near this size; a file that does is none of them.
constexpr std::size_t kLargest = 1U << 20U;

}  // namespace

std::filesystem::path UserFiles::usualFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation).toStdString();
}

std::string UserFiles::read(const std::string& name) {
    return readWholeFile(folder_ / name, kLargest);
}

void UserFiles::write(const std::string& name, const std::string& content) {
    // Where the folder can't be made, the file can't be written either, and says so.
    std::error_code ignored;
    std::filesystem::create_directories(folder_, ignored);
    writeWholeFile(folder_ / name, content);
}

}  // namespace norlaplan
