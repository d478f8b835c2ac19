#pragma once

#include <string>
#include <string_view>

#include "documents/SheetRecords.h"
#include "state/Drawing.h"

namespace norlaplan {

/// A text as RTF: backslash and braces escaped, characters beyond ASCII as cp1252 or Unicode escapes.
std::string rtfText(std::string_view utf8);

struct RtfGraphPage;

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
    /// A box filled with `fore`; a reader that fills with a pattern has `back` for the second colour.
    void TINTEDTTEXTBOX(const PageBox& place, Colour fore, Colour back);
    void RTFLINE(PagePoint from, PagePoint to, Colour colour, double width);
    void RTFDATASHEETLINE(PagePoint from, PagePoint to, Colour colour, double width, int dash);
    void RTFCIRCLE(PagePoint place, double size, Colour colour, double width);
    /// A text of the document alone: the side file gets no record of it.
    void RtfPlainText(const SheetText& text, Alignment alignment = Alignment::Centre);
    /// A filled box without a frame, of the document alone.
    void RtfFill(const PageBox& place, Colour fill);
    /// The maker's picture once more, as a shape of its own number.
    void RtfLogoPicture();
    /// A curve on its grid, with titles and the part number above. Errors: those of `rtfGraph`, and 5 for a
    /// step of 0 or less, or one that makes more lines than a page holds.
    void RtfGraph(const RtfGraphPage& graph);

    int shapeCounter() const { return shapeCounter_; }
    const std::string& rtf() const { return rtf_; }
    const std::string& records() const { return records_; }

    /// Closes the side file with its last line.
    void endRecords();

  private:
    template <typename Record>
    void record(const Record& record);
    void writePicture(int shapeId);
    void beginShape(const PageBox& box, int type, bool flip);
    void writeText(const SheetText& text, const Colour* fill, Alignment alignment = Alignment::Left);
    void writeLine(const SheetLine& line);

    std::string rtf_, records_;
    int shapeCounter_ = 0;
};

}  // namespace norlaplan
