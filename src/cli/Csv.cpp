#include "cli/Csv.h"

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>

#include "cli/CommandError.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "state/FileFault.h"

namespace norlaplan::cli {
namespace {

constexpr std::size_t kLongestLine = 10000;

std::FILE* open(const std::filesystem::path& path) {
    std::FILE* const file = std::fopen(path.c_str(), "rbe");
    if (file == nullptr) raiseSystem(errno, path, fault::kFileNotFound);
    return file;
}

}  // namespace

CsvReader::CsvReader(const std::filesystem::path& path) : path_(path), file_(open(path)) {
    struct stat status {};
    if (::fstat(::fileno(file_.get()), &status) != 0) raiseFile(fault::kDeviceIo, path);
    if (S_ISDIR(status.st_mode)) raiseFile(fault::kPathAccess, path);
    if (S_ISREG(status.st_mode)) size_ = static_cast<double>(status.st_size);
}

bool CsvReader::readLine(std::string& line) {
    line.clear();
    int c = std::getc(file_.get());
    if (c == EOF) {
        if (std::ferror(file_.get()) != 0) raiseFile(fault::kDeviceIo, path_);
        return false;
    }
    for (; c != EOF && c != '\n'; c = std::getc(file_.get())) {
        read_ += 1.0;
        if (line.size() < kLongestLine) line += static_cast<char>(c);
    }
    if (c == '\n') read_ += 1.0;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return true;
}

bool CsvReader::nextLine(std::string& line) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    const bool first = read_ == 0.0;
    while (readLine(line)) {
        if (first && line.starts_with(kMark)) line.erase(0, kMark.size());
        if (line.find_first_not_of(" \t") != std::string::npos) return true;
    }
    return false;
}

double CsvReader::partRead() const {
    return size_ > 0.0 ? read_ / size_ : 0.0;
}

std::vector<std::string> csvFields(std::string_view line) {
    std::vector<std::string> fields;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        std::string field;
        if (line.starts_with('"')) {
            do {
                line.remove_prefix(1);
                const std::size_t quote = line.find('"');
                if (quote == std::string_view::npos)
                    throw CommandError(ErrorKind::Message, "Row of the table", "A quote isn't closed");
                field += line.substr(0, quote);
                line.remove_prefix(quote + 1);
                if (line.starts_with('"')) field += '"';
            } while (line.starts_with('"'));
            line.remove_prefix(std::min(line.find(','), line.size()));
        } else {
            const std::size_t end = std::min(line.find(','), line.size());
            field = trimmed(line.substr(0, end));
            line.remove_prefix(end);
        }
        fields.push_back(std::move(field));
        if (line.empty()) return fields;
        line.remove_prefix(1);
    }
}

void CsvLine::field(std::string_view field) {
    if (fields_++ > 0) line_ += ',';
    const bool plain = field.find_first_of(",\"\r\n") == std::string_view::npos && trimmed(field) == field;
    if (plain) {
        line_ += field;
        return;
    }
    line_ += '"';
    for (const char c : field) {
        if (c == '"') line_ += c;
        line_ += c == '\n' || c == '\r' ? ' ' : c;
    }
    line_ += '"';
}

}  // namespace norlaplan::cli
