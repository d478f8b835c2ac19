#pragma once

#include <string>
#include <vector>

namespace norlaplan::cli {

using TextRow = std::vector<std::string>;
using TextRows = std::vector<TextRow>;

/// Rows of cells as text with the columns in line; the first row is the head when `head` is set. Columns in
/// which every cell under the head is empty or a number are set to the right. Control characters become
/// visible.
std::string textTable(TextRows rows, bool head);

}  // namespace norlaplan::cli
