#include "documents/SheetRecords.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "numbers/Text.h"
#include "numbers/Utf8.h"

namespace norlaplan {
namespace {

constexpr std::size_t kZone = 14;
constexpr std::size_t kLongestText = 4000;

/// Writes fields in print zones behind a text, in place: the next one starts at the next multiple of 14
/// columns of its line.
class FieldWriter {
  public:
    explicit FieldWriter(std::string& text) : text_(text), line_(text.size()) {}

    void field(double value) { number(value); }
    void field(Colour value) { number(value); }
    void field(int value) { number(value); }
    void field(bool value) {
        toZone();
        text_ += value ? "True" : "False";
    }
    void field(const std::string& value) {
        toZone();
        text_ += '"';
        // A longer one would make the file one that can't be read.
        for (const char c : wholeCharacters(value, kLongestText)) {
            if (c == '"') text_ += c;
            text_ += c == '\n' || c == '\r' ? ' ' : c;
        }
        text_ += '"';
    }

  private:
    void toZone() {
        const std::size_t columns = text_.size() - line_;
        if (columns != 0) text_.append(kZone - columns % kZone, ' ');
    }
    template <typename Number>
    void number(Number value) {
        toZone();
        std::array<char, 32> digits{};
        text_.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
    }

    std::string& text_;
    std::size_t line_;  ///< where the line begins
};

/// Reads the same fields back.
class FieldReader {
  public:
    explicit FieldReader(std::string_view line) : line_(line), rest_(line) {}

    void field(double& value) { value = number(); }
    void field(Colour& value) { value = static_cast<Colour>(whole(0.0, 16777215.0)); }
    void field(int& value) { value = static_cast<int>(whole(-100.0, 100.0)); }
    void field(bool& value) {
        const std::string word = bareWord();
        if (word != "True" && word != "False") fail();
        value = word == "True";
    }
    void field(std::string& value) {
        skipBlanks();
        if (rest_.empty() || rest_.front() != '"') fail();
        rest_.remove_prefix(1);
        value.clear();
        for (;;) {
            const std::size_t quote = rest_.find('"');
            if (quote == std::string_view::npos || value.size() + quote > kLongestText) fail();
            value += rest_.substr(0, quote);
            rest_.remove_prefix(quote + 1);
            if (rest_.empty() || rest_.front() != '"') return;
            value += '"';
            rest_.remove_prefix(1);
        }
    }
    void end() {
        skipBlanks();
        if (!rest_.empty()) fail();
    }

  private:
    [[noreturn]] void fail() const { throw BadSheetRecord(std::string(line_.substr(0, 80))); }
    void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }
    std::string bareWord() {
        skipBlanks();
        const std::size_t length = std::min(rest_.find(' '), rest_.size());
        std::string word(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return word;
    }
    double number() {
        const std::optional<double> value = wholeNumberText(bareWord());
        if (!value || *value < -1e7 || *value > 1e7) fail();
        return *value;
    }
    double whole(double least, double most) {
        const std::optional<double> value = wholeNumberText(bareWord());
        if (!value || *value < least || *value > most) fail();
        return *value;
    }

    std::string_view line_, rest_;
};

// The one description of the format: keyword and fields of each record, walked by the writer and the reader.

template <typename Fields>
void walkBox(PageBox& box, Fields& fields) {
    fields.field(box.left);
    fields.field(box.top);
    fields.field(box.right);
    fields.field(box.bottom);
}

template <typename Fields>
void walk(SheetText& record, Fields& fields, Colour* fill = nullptr) {
    walkBox(record.box, fields);
    fields.field(record.size);
    fields.field(record.colour);
    fields.field(record.text);
    fields.field(record.bold);
    fields.field(record.font);
    if (fill != nullptr) fields.field(*fill);
    fields.field(record.vertical);
    fields.field(record.italic);
}

template <typename Fields>
void walk(SheetTextBox& record, Fields& fields) {
    walk(record.text, fields, &record.fill);
}

template <typename Fields>
void walk(SheetTint& record, Fields& fields) {
    walkBox(record.box, fields);
    fields.field(record.fill);
}

template <typename Fields>
void walk(SheetLine& record, Fields& fields) {
    fields.field(record.from.x);
    fields.field(record.from.y);
    fields.field(record.to.x);
    fields.field(record.to.y);
    fields.field(record.colour);
    fields.field(record.width);
    if (record.dataSheet) fields.field(record.dash);
}

template <typename Fields>
void walk(SheetCircle& record, Fields& fields) {
    fields.field(record.centre.x);
    fields.field(record.centre.y);
    fields.field(record.radius);
    fields.field(record.colour);
    fields.field(record.width);
}

constexpr std::string_view kText = "RTFDATASHEETTEXT";
constexpr std::string_view kTextBox = "RTFTEXTWBOX";
constexpr std::string_view kTint = "TINTEDTTEXTBOX";
constexpr std::string_view kLine = "RTFLINE";
constexpr std::string_view kDataSheetLine = "RTFDATASHEETLINE";
constexpr std::string_view kCircle = "RTFCIRCLE";

std::string_view keywordOf(const SheetText&) {
    return kText;
}
std::string_view keywordOf(const SheetTextBox&) {
    return kTextBox;
}
std::string_view keywordOf(const SheetTint&) {
    return kTint;
}
std::string_view keywordOf(const SheetLine& line) {
    return line.dataSheet ? kDataSheetLine : kLine;
}
std::string_view keywordOf(const SheetCircle&) {
    return kCircle;
}

/// An empty record of the keyword; nothing for an unknown one.
std::optional<SheetRecord> recordOf(std::string_view keyword) {
    if (keyword == kText) return SheetText{};
    if (keyword == kTextBox) return SheetTextBox{};
    if (keyword == kTint) return SheetTint{};
    if (keyword == kLine) return SheetLine{};
    if (keyword == kDataSheetLine) {
        SheetLine line;
        line.dataSheet = true;
        return line;
    }
    if (keyword == kCircle) return SheetCircle{};
    return std::nullopt;
}

template <typename Record>
void append(std::string& text, Record record) {
    text += keywordOf(record);
    text += "\r\n";
    FieldWriter fields(text);
    walk(record, fields);
    text += "\r\n";
}

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

}  // namespace

double labelIndent(const SheetText& text) {
    constexpr double kBlank = 30.0 / 1440.0;
    return text.text.rfind(' ') == 0 ? kBlank : 0.0;
}

BadSheetRecord::BadSheetRecord(const std::string& line)
    : std::runtime_error("The drawing of the data sheet holds a line that it can't mean: " + line) {}

void appendRecord(std::string& text, const SheetText& record) {
    append(text, record);
}
void appendRecord(std::string& text, const SheetTextBox& record) {
    append(text, record);
}
void appendRecord(std::string& text, const SheetTint& record) {
    append(text, record);
}
void appendRecord(std::string& text, const SheetLine& record) {
    append(text, record);
}
void appendRecord(std::string& text, const SheetCircle& record) {
    append(text, record);
}

std::vector<SheetRecord> readSheetRecords(std::string_view text) {
    std::vector<SheetRecord> records;
    while (!text.empty()) {
        const std::string_view keyword = takeLine(text);
        if (keyword == kRecordsEnd) break;
        if (keyword.empty()) continue;
        std::optional<SheetRecord> record = recordOf(keyword);
        if (!record) throw BadSheetRecord(std::string(keyword.substr(0, 80)));
        FieldReader fields(takeLine(text));
        std::visit([&](auto& filled) { walk(filled, fields); }, *record);
        fields.end();
        records.push_back(std::move(*record));
    }
    return records;
}

}  // namespace norlaplan
