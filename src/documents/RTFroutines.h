#pragma once

#include <string>
#include <string_view>

#include "documents/SheetRecords.h"

namespace norlaplan {

/// A text as RTF: backslash and braces escaped, characters beyond ASCII as cp1252 or Unicode escapes.
std::string rtfText(std::string_view utf8);

/// A document in the making: its RTF text, the records of its side file and the number of its last shape.
/// Places are page inches from the lower left corner of a letter page; sizes are points, widths EMU.
class RtfDocument {
  public:
    /// The head: fonts, colours, styles, page, and the maker's picture. Leaves one group of the body open.
    void RtfHeader();

    /// A line of RTF as it stands.
    void append(std::string_view line);

    void RTFDATASHEETTEXT(const SheetText& text);
    void RTFTEXTWBOX(const SheetTextBox& box);
    /// A box that shades from one colour into the other.
    void TINTEDTTEXTBOX(const PageBox& box, Colour fore, Colour back);
    void RTFLINE(PagePoint from, PagePoint to, Colour colour, double width);
    void RTFDATASHEETLINE(PagePoint from, PagePoint to, Colour colour, double width, int dash);
    void RTFCIRCLE(PagePoint centre, double radius, Colour colour, double width);

    int shapeCounter() const { return shapeCounter_; }
    const std::string& rtf() const { return rtf_; }
    const std::string& records() const { return records_; }

    /// Closes the side file with its last line.
    void endRecords();

  private:
    void record(const SheetRecord& record);
    std::string beginShape(const PageBox& box, int type, bool flip);
    void writeText(const SheetText& text, const Colour* fill);
    void writeLine(const SheetLine& line);
    std::string fallbackPlace(const PageBox& box) const;

    std::string rtf_, records_;
    int shapeCounter_ = 0;
};

}  // namespace norlaplan
