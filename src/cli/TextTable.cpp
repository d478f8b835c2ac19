#include "cli/TextTable.h"

#include <algorithm>

#include "cli/VisibleText.h"
#include "numbers/Text.h"
#include "numbers/Utf8.h"

namespace norlaplan::cli {
namespace {

struct Column {
    std::size_t width = 0;
    bool numeric = true;
};

std::vector<Column> measure(const TextRows& rows, bool head) {
    std::vector<Column> columns;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        columns.resize(std::max(columns.size(), rows[row].size()));
        for (std::size_t i = 0; i < rows[row].size(); ++i) {
            columns[i].width = std::max(columns[i].width, characterCount(rows[row][i]));
            // A head and an empty cell say nothing about their column.
            const bool says = !(head && row == 0) && !rows[row][i].empty();
            if (says && !wholeNumberText(rows[row][i])) columns[i].numeric = false;
        }
    }
    return columns;
}

}  // namespace

std::string textTable(TextRows rows, bool head) {
    for (TextRow& row : rows) {
        for (std::string& cell : row)
            cell = visibleText(cell, LineEnds::Visible);
    }
    const std::vector<Column> columns = measure(rows, head);
    std::string text;
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string gap(columns[i].width - characterCount(row[i]), ' ');
            if (i > 0) line += "  ";
            line += columns[i].numeric ? gap + row[i] : row[i] + gap;
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

}  // namespace norlaplan::cli
