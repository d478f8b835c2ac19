#include "help/ProductLines.h"

#include <algorithm>

#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "state/FileFault.h"

namespace norlaplan {
namespace {

constexpr const char* kFolder = "\\bearing pictures\\";
constexpr const char* kFile = "\\bearing pictures\\Product Lines.txt";
constexpr std::size_t kMostLines = 30, kLongestName = 60;

/// Takes the file's lines one by one.
class LineReader {
  public:
    void take(std::string_view line) {
        if (line.size() > 2 && line.front() == '[' && line.back() == ']')
            begin(trimmed(line.substr(1, line.size() - 2)));
        else if (!passing_)
            add(line);
    }
    std::vector<ProductLine> lines() const { return lines_; }

  private:
    void begin(std::string_view name) {
        const bool known = std::any_of(lines_.begin(), lines_.end(),
                                       [name](const ProductLine& line) { return line.name == name; });
        passing_ = known || name.empty() || name.size() > kLongestName || lines_.size() == kMostLines;
        if (!passing_) lines_.push_back({std::string(name), "", ""});
        ended_ = false;
    }
    void add(std::string_view line) {
        ProductLine& product = lines_.back();
        if (line.empty()) {
            ended_ = !product.text.empty();
        } else if (product.picture.empty()) {
            product.picture = kFolder + std::string(line);
        } else {
            if (!product.text.empty()) product.text += ended_ ? "\n\n" : " ";
            product.text += line;
            ended_ = false;
        }
    }

    std::vector<ProductLine> lines_;
    bool passing_ = true;  ///< over a text that belongs to no line
    bool ended_ = false;   ///< the paragraph before
};

}  // namespace

std::vector<ProductLine> readProductLines(std::string_view content) {
    if (content.starts_with("\xEF\xBB\xBF")) content.remove_prefix(3);
    LineReader reader;
    while (!content.empty()) {
        const std::size_t end = std::min(content.find('\n'), content.size());
        std::string_view line = content.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        reader.take(trimmed(line));
        content.remove_prefix(std::min(end + 1, content.size()));
    }
    return reader.lines();
}

std::vector<std::string> productLineNames(const ProgramFolder& folder) {
    std::vector<std::string> names;
    try {
        for (const ProductLine& line : readProductLines(folder.read(kFile)))
            names.push_back(line.name);
    } catch (const RuntimeError&) {
        // The fault is told when the user asks for a line.
    }
    for (const char* const always : {kMetricSeries, kCustomBearings}) {
        if (std::find(names.begin(), names.end(), always) == names.end()) names.push_back(always);
    }
    return names;
}

ProductLine productLine(const ProgramFolder& folder, const std::string& name) {
    for (const ProductLine& line : readProductLines(folder.read(kFile))) {
        if (line.name == name) return line;
    }
    throw RuntimeError(fault::kFileNotFound, fileFault(fault::kFileNotFound, folder.find(kFile)).what() +
                                                 (" has no page \"" + name + "\""));
}

}  // namespace norlaplan
