#pragma once

#include <string>

#include "documents/RTFroutines.h"
#include "state/ProgramState.h"

namespace norlaplan {

// The fills of the data sheet.
constexpr Colour kGreyFill = rgb(221, 221, 221);
constexpr Colour kHeadingFill = rgb(0, 204, 255);
constexpr Colour kPaleFill = rgb(204, 255, 255);
constexpr Colour kTintFore = rgb(255, 255, 153);
constexpr Colour kTintBack = rgb(255, 204, 153);
constexpr double kThin = 9525.0;
constexpr double kDouble = 19050.0;

/// How a text of the sheet looks; black Times New Roman unless said otherwise.
struct SheetStyle {
    double size = 9.0;
    const char* colour = "BLACK";
    bool bold = false;
    const char* font = "TNR";
    bool vertical = false;
};

/// Writes the sheet of one bearing: the document with the bearing and the units that its texts are in.
class SheetWriter {
  public:
    SheetWriter(RtfDocument& sheetDocument, const ProgramState& programState)
        : document(sheetDocument),
          bearing(programState.bearing),
          units(programState.units),
          state(programState) {}

    void text(const PageBox& box, const std::string& words, const SheetStyle& style = {}) const;
    void box(const PageBox& box, const std::string& words, Colour fill, const SheetStyle& style = {}) const;
    void line(PagePoint from, PagePoint to, Colour colour, double width) const;

    /// Inches in display length, in the picture.
    std::string length(double inches, const std::string& picture) const;

    bool styleIsOneOf(const char* letters) const;

    RtfDocument& document;
    const BearingSpec& bearing;
    const UnitMode& units;
    const ProgramState& state;
};

// The parts of the sheet, each in a file of its own.
void writeRatings(const SheetWriter& sheet);
void writeFits(const SheetWriter& sheet);
void writePartNumberDetail(const SheetWriter& sheet);
void writeSpeedPanel(const SheetWriter& sheet);
void writeSizeTexts(const SheetWriter& sheet);

/// The end of the speed chart's scale: the smallest of its steps that is not below x, 50000 above 40000.
double NiceAxisMaximum(double x);

}  // namespace norlaplan
