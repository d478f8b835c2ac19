#pragma once

#include <string_view>

#include "state/Canvas.h"

namespace norlaplan {

/// A colour of texts by its name, which a document's colour table has under a number. Upper and lower case
/// are the same.
struct SheetColour {
    const char* name;
    Colour colour;
    int number;
};
/// None for a name that isn't known.
const SheetColour* sheetColour(std::string_view name);
/// The entry of a colour or of its brighter form; black for every other.
const SheetColour& sheetColourNear(Colour colour);

/// A typeface by its name, which a document's font table has under a number.
struct SheetFont {
    const char* name;
    Typeface typeface;
    int number;
};
/// Times for a name that isn't known.
const SheetFont& sheetFont(std::string_view name);
const SheetFont& sheetFont(Typeface typeface);

}  // namespace norlaplan
