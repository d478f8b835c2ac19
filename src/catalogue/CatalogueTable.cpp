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
    return c == kEnd || c == ',' || c == '\n' || c == '\r';
}

}  // namespace

CatalogueTable::CatalogueTable(const ProgramFolder& folder, std::string_view name)
    : path_(folder.find("\\Data Tables\\" + std::string(name))), name_(name) {
    // A pipe in a table's place must not be waited for.
    const int descriptor = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) raiseSystem(errno, path_, fault::kFileNotFound);
    file_.reset(::fdopen(descriptor, "rb"));
    if (!file_) {
        ::close(descriptor);
        raiseFile(fault::kDeviceIo, path_);
    }
    struct stat status {};
    if (::fstat(::fileno(file_.get()), &status) != 0 || !S_ISREG(status.st_mode))
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
        readField(field_);
}

bool CatalogueTable::AtEnd() {
    return peek() == kEnd;
}

double CatalogueTable::partRead() const {
    return size_ > 0.0 ? (read_ - static_cast<double>(filled_ - at_)) / size_ : 1.0;
}

void CatalogueTable::take(std::string& target) {
    readField(target);
    target = utf8Text(target);
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
    readField(field_);
    const NumberAtStart read = numberAtStart(field_);
    if (!read.whole) {
        faults_.push_back({name_, row, column, utf8Text(field_),
                           "is not a number and is read as " + plainText(read.value)});
    }
    return read.value;
}

void CatalogueTable::readField(std::string& field) {
    if (AtEnd()) raiseFile(fault::kPastEnd, path_);
    field.clear();
    while (peek() == ' ' || peek() == '\t')
        get();
    if (peek() == '"') {
        readQuoted(field);
    } else {
        while (!endsField(peek()))
            keep(field);
    }
    endField();
}

void CatalogueTable::readQuoted(std::string& field) {
    get();
    while (peek() != '"' && peek() != kEnd)
        keep(field);
    // What stands between the closing quote and the field's end belongs to nothing.
    while (!endsField(peek()))
        get();
}

void CatalogueTable::keep(std::string& field) {
    if (field.size() == kLongestField) raiseFile(fault::kOverflow, path_);
    field += static_cast<char>(get());
}

void CatalogueTable::endField() {
    const int end = get();
    if (end == '\r' && peek() == '\n') get();
    column_ = end == ',' ? column_ + 1 : 1;
    if (end != ',') ++row_;
}

int CatalogueTable::peek() {
    if (at_ == filled_) {
        filled_ = std::fread(block_.data(), 1, block_.size(), file_.get());
        at_ = 0;
        read_ += static_cast<double>(filled_);
        if (filled_ == 0) {
            if (std::ferror(file_.get()) != 0) raiseFile(fault::kDeviceIo, path_);
            return kEnd;
        }
    }
    return static_cast<unsigned char>(block_[at_]);
}

int CatalogueTable::get() {
    const int c = peek();
    if (c != kEnd) ++at_;
    return c;
}

}  // namespace norlaplan
