#include "catalogue/CatalogueTable.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "numbers/Encoding.h"
#include "numbers/RuntimeError.h"
#include "numbers/Text.h"
#include "state/FileFault.h"

namespace norlaplan {
namespace {

constexpr int kEnd = -1;
/// No text of a catalogue comes near this; what does isn't a table, and isn't worth the memory.
constexpr std::size_t kLongestField = 65535;

/// Millions of rows; no file of bearings comes near it.
constexpr std::size_t kMostTableBytes = 64U << 20U;

bool endsField(int c) {
    return c == ',' || c == '\n' || c == '\r' || c == kEnd;
}

}  // namespace

CatalogueTable::CatalogueTable(const ProgramFolder& folder, std::string_view name)
    : path_(folder.find("\\Data Tables\\" + std::string(name))), name_(name) {
    // A pipe in a table's place must not be waited for.
    file_ = Descriptor(::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file_.number() < 0) raiseSystem(errno, path_, fault::kFileNotFound);
    struct stat status {};
    if (::fstat(file_.number(), &status) != 0 || !S_ISREG(status.st_mode))
        raiseFile(fault::kPathAccess, path_);
    size_ = static_cast<double>(status.st_size);
    if (size_ > kMostTableBytes) raiseTooLarge(path_, kMostTableBytes);
    skipByteOrderMark();
}

void CatalogueTable::skipByteOrderMark() {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    peek();
    if (std::string_view(block_.data(), filled_).starts_with(kMark)) at_ = kMark.size();
}

void CatalogueTable::skipFields(int count) {
    for (int i = 0; i < count; ++i)
        nextField();
}

bool CatalogueTable::AtEnd() {
    return peek() == kEnd;
}

double CatalogueTable::partRead() const {
    return size_ > 0.0 ? (read_ - static_cast<double>(filled_ - at_)) / size_ : 1.0;
}

void CatalogueTable::take(std::string& target) {
    target = utf8Text(nextField());
}

void CatalogueTable::take(Single& target) {
    target = number();
}

void CatalogueTable::take(double& target) {
    target = number();
}

void CatalogueTable::take(Int16& target) {
    target = number();
}

double CatalogueTable::number() {
    const int row = row_;
    const int column = column_;
    const std::string_view field = nextField();
    const NumberAtStart read = numberAtStart(field);
    if (!read.whole) {
        faults_.push_back(
            {name_, row, column, utf8Text(field), "is not a number and is read as " + plainText(read.value)});
    }
    return read.value;
}

std::string_view CatalogueTable::nextField() {
    if (AtEnd()) raiseFile(fault::kPastEnd, path_);
    while (peek() == ' ' || peek() == '\t')
        get();
    const std::string_view field = peek() == '"' ? quotedField() : plainField();
    endField();
    return field;
}

std::string_view CatalogueTable::plainField() {
    const std::size_t begin = at_;
    while (at_ != filled_ && !endsField(static_cast<unsigned char>(block_[at_])))
        ++at_;
    const std::string_view piece(block_.data() + begin, at_ - begin);
    // A field whose end stands in the block, with one more character for a line end of two, stays there.
    if (filled_ - at_ > 1) return piece;
    field_ = piece;
    while (!endsField(peek()))
        keep();
    return field_;
}

std::string_view CatalogueTable::quotedField() {
    field_.clear();
    get();
    while (peek() != '"' && peek() != kEnd)
        keep();
    // What stands between the closing quote and the field's end belongs to nothing.
    while (!endsField(peek()))
        get();
    return field_;
}

void CatalogueTable::keep() {
    if (field_.size() == kLongestField) raiseFile(fault::kOverflow, path_);
    field_ += static_cast<char>(get());
}

void CatalogueTable::endField() {
    const int end = get();
    if (end == '\r' && peek() == '\n') get();
    column_ = end == ',' ? column_ + 1 : 1;
    if (end != ',') ++row_;
}

int CatalogueTable::peek() {
    if (at_ == filled_) readBlock();
    return at_ == filled_ ? kEnd : static_cast<unsigned char>(block_[at_]);
}

int CatalogueTable::get() {
    const int c = peek();
    if (c != kEnd) ++at_;
    return c;
}

/// Reads on: a whole block, or what is left of the file; nothing at its end.
void CatalogueTable::readBlock() {
    at_ = 0;
    filled_ = 0;
    do {
        const ssize_t count = ::read(file_.number(), block_.data() + filled_, block_.size() - filled_);
        if (count < 0 && errno != EINTR) raiseFile(fault::kDeviceIo, path_);
        if (count == 0) return;
        if (count > 0) {
            filled_ += static_cast<std::size_t>(count);
            read_ += static_cast<double>(count);
        }
    } while (filled_ < block_.size() && read_ < size_);
}

}  // namespace norlaplan
