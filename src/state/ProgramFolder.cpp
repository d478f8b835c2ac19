#include "state/ProgramFolder.h"

#include <algorithm>
#include <map>
#include <system_error>
#include <utility>

#include "numbers/RuntimeError.h"
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

/// The parts of a name between its separators.
std::vector<std::string> partsOf(std::string_view name) {
    std::vector<std::string> parts;
    std::size_t at = 0;
    while (at < name.size()) {
        const std::size_t end = std::min(name.find_first_of("\\/", at), name.size());
        if (end > at) parts.emplace_back(name.substr(at, end - at));
        at = end + 1;
    }
    return parts;
}

fs::path under(const fs::path& root, std::string_view name) {
    const std::vector<std::string> parts = partsOf(name);
    // As exact names win, one that leads somewhere needs no look into the folders on its way.
    std::string exact = root.native();
    for (const std::string& part : parts) {
        if (!exact.empty() && exact.back() != '/') exact += '/';
        exact += part;
    }
    std::error_code failure;
    if (fs::exists(exact, failure)) return exact;
    fs::path path = root;
    for (const std::string& part : parts)
        path = entryCalled(path, part);
    return path;
}

/// Adds the files of a folder by their names in lower case; a name that is there stays.
void addFiles(std::map<std::string, std::string>& names, const fs::path& folder) {
    std::error_code failure;
    for (fs::directory_iterator at(folder, failure), end; !failure && at != end; at.increment(failure)) {
        std::error_code ignored;
        const std::string name = at->path().filename().string();
        if (at->is_regular_file(ignored)) names.emplace(lowerCase(name), name);
    }
}

}  // namespace

ProgramFolder::ProgramFolder(fs::path root) : root_(std::move(root)) {}

ProgramFolder::ProgramFolder(fs::path root, fs::path shared)
    : root_(std::move(root)), shared_(std::move(shared)) {}

fs::path ProgramFolder::find(std::string_view name) const {
    fs::path path = own(name);
    std::error_code failure;
    if (!installed() || fs::exists(path, failure)) return path;
    fs::path shared = under(shared_, name);
    return fs::exists(shared, failure) ? shared : path;
}

std::string ProgramFolder::read(std::string_view name, std::size_t most) const {
    return readWholeFile(find(name), most);
}

std::vector<std::string> ProgramFolder::files(std::string_view folder) const {
    std::map<std::string, std::string> names;
    addFiles(names, own(folder));
    if (installed()) addFiles(names, under(shared_, folder));
    std::vector<std::string> sorted;
    sorted.reserve(names.size());
    for (auto& [lower, name] : names)
        sorted.push_back(std::move(name));
    return sorted;
}

fs::path ProgramFolder::own(std::string_view name) const {
    return under(root_, name);
}

fs::path ProgramFolder::toWrite(std::string_view name) const {
    fs::path path = own(name);
    if (installed()) makeFolder(path.parent_path());
    return path;
}

fs::path ProgramFolder::toSaveIn(std::string_view folder) const {
    fs::path path = own(folder);
    try {
        if (installed()) makeFolder(path);
    } catch (const RuntimeError&) {
        // The dialog then opens somewhere else; what can't be saved there is said when it is saved.
    }
    return path;
}

}  // namespace norlaplan
