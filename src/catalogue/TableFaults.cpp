#include "catalogue/TableFaults.h"

#include <algorithm>
#include <string_view>

#include "numbers/Text.h"
#include "numbers/Utf8.h"

namespace norlaplan {
namespace {

/// A damaged column has a fault in every row; a message is to be read.
constexpr std::size_t kMostTold = 8;

/// The beginning of a text, with a sign where it goes on.
std::string beginning(std::string_view text) {
    constexpr std::size_t kMostShown = 60;
    if (text.size() <= kMostShown) return std::string(text);
    return std::string(wholeCharacters(text, kMostShown)) + "\u2026";
}

std::string sentence(const TableFault& fault) {
    return "Table " + fault.table + ", row " + plainText(fault.row) + ", column " + plainText(fault.column) +
           ": \"" + beginning(fault.text) + "\" " + fault.saying + ".";
}

}  // namespace

void TableFaults::add(const TableFault& fault) {
    if (std::find(told_.begin(), told_.end(), fault) != told_.end()) return;
    if (told_.size() < kMostTold)
        told_.push_back(fault);
    else
        more_ = true;
}

void TableFaults::add(const std::vector<TableFault>& faults) {
    for (const TableFault& fault : faults)
        add(fault);
}

void TableFaults::tell(MessagePort& messages) {
    if (told_.empty()) return;
    std::string prompt;
    for (const TableFault& fault : told_)
        prompt += (prompt.empty() ? "" : "\n") + sentence(fault);
    if (more_) prompt += "\nThere are more.";
    told_.clear();
    more_ = false;
    messages.show({"Catalog Tables", prompt, Icon::Warning});
}

}  // namespace norlaplan
