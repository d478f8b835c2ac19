#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/ProgramFolder.h"

namespace norlaplan {

/// One of the maker's other product lines, as its text file has it.
struct ProductLine {
    std::string name;     ///< the item of the menu
    std::string picture;  ///< a file of the program folder: `\bearing pictures\metrics.jpg`
    std::string text;     ///< sales text, its paragraphs separated by an empty line

    bool operator==(const ProductLine&) const = default;
};

/// The line with the table of sizes, and the one for bearings to order: the menu always has these two.
inline constexpr const char* kMetricSeries = "Metric Series";
inline constexpr const char* kCustomBearings = "Custom";

/// Reads the text file of the product lines, UTF-8: "[Name]" in a line of its own begins one, the next line
/// with writing is its picture's file name, and the rest its text, in which an empty line ends a paragraph.
/// What stands before the first name is passed over; so are a name that came before, one of more than 60
/// characters, and what is beyond 30 lines. Any text is taken.
std::vector<ProductLine> readProductLines(std::string_view content);

/// The names for the menu, in the order of the file. Without the file those that the menu always has.
std::vector<std::string> productLineNames(const ProgramFolder& folder);

/// The line of that name, read now. Errors: 53 when the file is missing or has no line of that name, and
/// those of `ProgramFolder::read`; they name the file.
ProductLine productLine(const ProgramFolder& folder, const std::string& name);

}  // namespace norlaplan
