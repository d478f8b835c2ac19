#include <filesystem>
#include <string>

#include "numbers/RuntimeError.h"
#include "screens/platform/QtPorts.h"

namespace norlaplan {
namespace {

std::optional<std::string> contentIfAny(const std::filesystem::path& path) {
    try {
        return readWholeFile(path);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

void putBack(const std::filesystem::path& path, const std::optional<std::string>& content) {
    if (content) {
        writeWholeFile(path, *content);
        return;
    }
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

}  // namespace

void FolderSheets::store(const SheetFiles& sheet) {
    const std::filesystem::path document = folder_.find("DATA.RTF");
    const std::optional<std::string> before = contentIfAny(document);
    writeWholeFile(document, sheet.rtf);
    try {
        writeWholeFile(folder_.find("CONDENSED.DAT"), sheet.records);
    } catch (const RuntimeError&) {
        putBack(document, before);
        throw;
    }
}

}  // namespace norlaplan
