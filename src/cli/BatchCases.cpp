#include "cli/BatchCases.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace norlaplan::cli {
namespace {

std::string columnName(std::size_t column) {
    return column == 0 ? kPartNumberColumn : kLoadColumns[column - 1];
}

std::string allColumns() {
    std::string names = kPartNumberColumn;
    for (const char* const name : kLoadColumns)
        names += std::string(",") + name;
    return names;
}

[[noreturn]] void refuseHead(const std::string& what) {
    throw CommandError(ErrorKind::Message, "Head row of the cases", what + "; it reads: " + allColumns());
}

/// As the command line reads the numbers of its options, so that a case is what a single call would be.
double optionNumber(const std::string& name, const std::string& text) {
    if (text.empty()) return 0.0;
    char* end = nullptr;
    const auto value = static_cast<double>(std::strtold(text.c_str(), &end));
    if (*end != '\0') throw CommandError(ErrorKind::Message, name, "\"" + text + "\" is not a number");
    return value;
}

}  // namespace

CaseReader::CaseReader(const std::filesystem::path& path) : reader_(path) {
    readHead();
}

void CaseReader::readHead() {
    if (!reader_.nextLine(line_)) refuseHead("There is none");
    for (const std::string& name : csvFields(line_)) {
        std::size_t column = 0;
        while (column <= Case::kLoads && name != columnName(column))
            ++column;
        if (column > Case::kLoads) refuseHead("No column is called \"" + name + "\"");
        if (std::count(columns_.begin(), columns_.end(), column) != 0)
            refuseHead("\"" + name + "\" stands there twice");
        columns_.push_back(column);
    }
    if (std::count(columns_.begin(), columns_.end(), 0U) == 0) refuseHead("It has no partNumber");
}

bool CaseReader::next(Case& row) {
    row = {};
    if (!reader_.nextLine(line_)) return false;
    try {
        std::vector<std::string> fields = csvFields(line_);
        if (fields.size() > columns_.size()) {
            throw CommandError(ErrorKind::Message, "Row of the table",
                               std::to_string(fields.size()) + " fields where the head has " +
                                   std::to_string(columns_.size()));
        }
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (columns_[i] == 0) {
                row.partNumber = std::move(fields[i]);
            } else {
                row.texts[columns_[i] - 1] = std::move(fields[i]);
            }
        }
        double* const loads[] = {&row.loads.radial, &row.loads.axial, &row.loads.moment, &row.loads.speed};
        for (std::size_t i = 0; i < Case::kLoads; ++i)
            *loads[i] = optionNumber(kLoadColumns[i], row.texts[i]);
    } catch (const CommandError& error) {
        row.wrong = error;
    }
    return true;
}

}  // namespace norlaplan::cli
