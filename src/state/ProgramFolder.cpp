#include "state/ProgramFolder.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "numbers/Text.h"
#include "state/WholeFile.h"

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

}  // namespace norlaplan
