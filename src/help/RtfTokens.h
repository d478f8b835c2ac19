#pragma once

#include <string>
#include <string_view>

namespace norlaplan {

/// A piece of RTF: a brace, a control word with its number, a control symbol, or a stretch of plain text,
/// which may come in several pieces.
struct RtfToken {
    enum class Kind { Open, Close, Word, Symbol, Text, End };
    Kind kind = Kind::End;
    std::string_view text;  ///< the word's letters, the symbol's character, or the text
    bool hasNumber = false;
    int number = 0;
};

/// Takes RTF apart. It never looks behind the end, whatever the bytes are.
class RtfTokens {
  public:
    explicit RtfTokens(std::string_view bytes) : rest_(bytes) {}

    RtfToken next();
    /// Takes up to `count` bytes as they stand: the binary part of a picture.
    std::string_view take(std::size_t count);

  private:
    RtfToken control();

    std::string_view rest_;
};

/// The value of a hexadecimal digit; -1 for another character.
int hexDigit(char c);

/// A code point as UTF-8. A replacement character for one that is none or that text can't hold (an object's
/// place, a separator of paragraphs); nothing for a control character other than the tab.
std::string utf8Of(unsigned code);

/// A byte of the Western code page 1252 as UTF-8.
std::string utf8OfWestern(unsigned char byte);

/// A byte of a font of signs: bullets as such, any other as in the Western code page.
std::string utf8OfSign(unsigned char byte);

}  // namespace norlaplan
