#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace norlaplan {

// A formatted document as the viewer shows it, whatever it was read from. Lengths are twips (1440 to the
// inch), texts UTF-8, colours 24-bit with red in the low byte.

enum class TextAlignment { Left, Centre, Right, Justified };
enum class Script { Normal, Sub, Super };

struct CharacterLook {
    std::string font;
    double points = 12.0;
    bool bold = false, italic = false, underline = false, strike = false;
    Script script = Script::Normal;
    std::uint32_t colour = 0;
    bool hasColour = false;

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

struct ParagraphLook {
    TextAlignment alignment = TextAlignment::Left;
    int leftIndent = 0, rightIndent = 0, firstIndent = 0, spaceBefore = 0, spaceAfter = 0;
    std::vector<int> tabs;
    bool pageBreakBefore = false;
};

struct Paragraph {
    ParagraphLook look;
    std::vector<Run> runs;
};

/// One row of a table: the right edges of its cells and their paragraphs. Rows that follow each other make a
/// table.
struct TableRow {
    std::vector<int> edges;
    std::vector<std::vector<Paragraph>> cells;
};

using Block = std::variant<Paragraph, TableRow>;

struct RichDocument {
    std::vector<Block> blocks;
};

}  // namespace norlaplan
