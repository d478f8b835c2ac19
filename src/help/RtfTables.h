#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "help/RichDocument.h"
#include "help/RtfTokens.h"

namespace norlaplan {

/// The fonts and colours that the head of a document lists and its text names by number.
class RtfTables {
  public:
    void fontWord(const RtfToken& token);
    void fontText(std::string_view bytes);
    void colourWord(const RtfToken& token);
    void colourText(std::string_view bytes);

    /// The family's name; empty for a number that isn't in the table.
    std::string fontName(int number) const;
    /// True for fonts of signs, in which a letter's byte means something else.
    bool isSymbolFont(int number) const;
    /// The colour; nothing for the automatic one and for a number that isn't in the table.
    std::optional<Colour> colour(int number) const;

    int defaultFont = 0;

  private:
    struct Font {
        std::string name;
        bool named = false, symbols = false;
    };
    Font* font();

    std::unordered_map<int, Font> fonts_;
    int font_ = 0;
    std::vector<std::optional<Colour>> colours_;
    std::optional<Colour> nextColour_;
};

}  // namespace norlaplan
