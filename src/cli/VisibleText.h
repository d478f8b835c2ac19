#pragma once

#include <string>
#include <string_view>

namespace norlaplan::cli {

enum class LineEnds { Kept, Visible };

/// A text as a terminal may have it, in UTF-8: control characters are written with a caret ("^[" for escape,
/// "^?" for delete), those above ASCII by their code ("<9B>"), so that a table can't give the terminal
/// orders.
std::string visibleText(std::string_view bytes, LineEnds lineEnds = LineEnds::Kept);

}  // namespace norlaplan::cli
