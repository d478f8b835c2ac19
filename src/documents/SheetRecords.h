#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "state/Canvas.h"

namespace norlaplan {

/// A text of a drawing: placed at the left top corner of its box, colour and typeface by name ("BLUE",
/// "TNR").
struct SheetText {
    PageBox box;
    double size = 0.0;  ///< points
    std::string colour, text;
    bool bold = false;
    std::string font;
    bool vertical = false, italic = false;
};
/// How far left of its box a text begins, in inches. A chart's label has a blank in front: it may stand
/// outside, so that the figures are in the middle and a fifth digit has room.
double labelIndent(const SheetText& text);

/// A filled, framed box with its text centred both ways.
struct SheetTextBox {
    SheetText text;
    Colour fill = 0;
};
struct SheetTint {
    PageBox box;
    Colour fill = 0;
};
struct SheetLine {
    PagePoint from, to;
    Colour colour = 0;
    double width = 0.0;  ///< EMU
    int dash = 0;
    bool dataSheet = false;  ///< the variant that carries a dash
};
struct SheetCircle {
    PagePoint centre;
    double radius = 0.0;
    Colour colour = 0;
    double width = 0.0;
};

/// One drawing call of a data sheet, as it stands in the side file.
using SheetRecord = std::variant<SheetText, SheetTextBox, SheetTint, SheetLine, SheetCircle>;

/// The last line of a side file.
constexpr std::string_view kRecordsEnd = "ALLDONE";

/// A line of the side file that is neither empty nor a known keyword, or whose fields can't be read.
class BadSheetRecord : public std::runtime_error {
  public:
    explicit BadSheetRecord(const std::string& line);
};

/// Writes the record's two lines behind the text: its keyword, and its fields in print zones of 14 columns.
void appendRecord(std::string& text, const SheetText& record);
void appendRecord(std::string& text, const SheetTextBox& record);
void appendRecord(std::string& text, const SheetTint& record);
void appendRecord(std::string& text, const SheetLine& record);
void appendRecord(std::string& text, const SheetCircle& record);

/// The records of a side file up to its last line or its end. Error: `BadSheetRecord`.
std::vector<SheetRecord> readSheetRecords(std::string_view text);

void paintRecords(const std::vector<SheetRecord>& records, Canvas& canvas);

/// Draws a side file onto the canvas, with the maker's mark at the head of the page. Error: `BadSheetRecord`.
void paintSheet(std::string_view records, Canvas& canvas);

}  // namespace norlaplan
