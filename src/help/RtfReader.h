#pragma once

#include <optional>
#include <string_view>

#include "help/RichDocument.h"

namespace norlaplan {

/// Reads an RTF document: paragraphs with alignment, indents, tabs and spacing; fonts, sizes, colours, bold,
/// italic, underline, strike, sub and superscript; list texts; PNG, JPEG and DIB pictures; simple tables;
/// page breaks. Groups it doesn't know are skipped. Nothing when the bytes are no RTF at all. Whatever the
/// bytes hold, it ends in time in proportion to their number and in bounded memory; a document too long to be
/// shown is cut short, and what lies beyond a damage is read as far as it can be.
std::optional<RichDocument> readRtf(std::string_view bytes);

}  // namespace norlaplan
