#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace norlaplan {

// A formatted document as the viewer shows it, whatever it was read from. Lengths are twips (1440 to the
// inch), texts UTF-8, colours 24-bit with red in the low byte.

using Colour = std::uint32_t;

enum class TextAlignment { Left, Centre, Right, Justified };
enum class Script { Normal, Sub, Super };

struct CharacterLook {
    std::string font;
    double points = 12.0;
    bool bold = false, italic = false, underline = false, strike = false, hidden = false;
    Script script = Script::Normal;
    std::optional<Colour> colour, highlight;

    bool operator==(const CharacterLook&) const = default;
};

struct TextRun {
    std::string text;  ///< tabs and line breaks stand in it as '\t' and '\n'
    CharacterLook look;
};

/// A picture as its file's bytes; `format` is "png", "jpg" or "bmp".
struct PictureRun {
    std::string bytes;
    std::string format;
    int width = 0, height = 0;  ///< as it is to be shown, twips; 0 when not told
};

using Run = std::variant<TextRun, PictureRun>;

enum class TabAlignment { Left, Centre, Right, Decimal };

struct TabStop {
    int position = 0;  ///< from the left margin of the page, not from the paragraph's indent
    TabAlignment alignment = TabAlignment::Left;

    bool operator==(const TabStop&) const = default;
};

struct ParagraphLook {
    TextAlignment alignment = TextAlignment::Left;
    int leftIndent = 0, rightIndent = 0, firstIndent = 0, spaceBefore = 0, spaceAfter = 0;
    double lineSpacing = 1.0;  ///< as a multiple of a single line
    std::vector<TabStop> tabs;
    std::optional<Colour> fill;
    bool pageBreakBefore = false;
};

struct Paragraph {
    ParagraphLook look;
    std::vector<Run> runs;
    CharacterLook endLook;  ///< of the sign that ends it: an empty paragraph is as high as that
};

/// What a row's definition says of a cell.
struct CellLook {
    int rightEdge = 0;
    bool left = false, top = false, right = false, bottom = false;  ///< which of its sides have a line
    std::optional<Colour> fill;

    bool operator==(const CellLook&) const = default;
};

struct TableCell {
    CellLook look;
    std::vector<Paragraph> paragraphs;
};

/// One row of a table. Rows that follow each other make a table.
struct TableRow {
    int leftEdge = 0;
    std::vector<TableCell> cells;
};

using Block = std::variant<Paragraph, TableRow>;

struct RichDocument {
    std::vector<Block> blocks;
    bool cutShort = false;  ///< it was longer than a viewer can show; what is here is its beginning
};

}  // namespace norlaplan
