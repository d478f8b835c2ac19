#pragma once

#include <optional>
#include <string_view>

#include "help/RichDocument.h"

namespace norlaplan {

/// Reads an RTF document: paragraphs with alignment, indents and tabs; fonts, sizes, colours, bold, italic,
/// underline, strike, sub and superscript; list texts; PNG, JPEG and DIB pictures; simple tables. Groups it
/// doesn't know are skipped. Nothing when the bytes are no RTF at all. Whatever the bytes hold, it ends in
/// time and memory in proportion to their number; what lies beyond a damage is read as far as it can be.
std::optional<RichDocument> readRtf(std::string_view bytes);

}  // namespace norlaplan
