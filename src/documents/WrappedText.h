#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace norlaplan {

/// Width of a text, in the unit of the widths below.
using TextMeasure = std::function<double(std::string_view)>;

/// A text (UTF-8) as lines no wider than `width`: broken at its line feeds, at blanks, and inside a word that
/// is wider by itself. A line has at least one character, however narrow the width.
std::vector<std::string> wrappedText(std::string_view text, double width, const TextMeasure& measure);

/// The bytes of the first character of a text; a byte that begins no character stands for itself. The text
/// isn't empty.
std::size_t characterLength(std::string_view text);

}  // namespace norlaplan
