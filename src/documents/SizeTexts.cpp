#include "documents/SheetWriter.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

constexpr const char* kReferencePicture = "#0.000";

void drawingText(const SheetWriter& sheet, const PageBox& box, const std::string& words, double size) {
    sheet.text(box, words, {size, "BLACK", false, "Courier New"});
}

/// The two limits of a size: nothing above it, its tolerance below.
void tolerance(const SheetWriter& sheet, const PageBox& upper, const PageBox& lower, double value,
               const std::string& picture) {
    drawingText(sheet, upper, "+" + FormatNumber(0.0, picture), 7.0);
    drawingText(sheet, lower, sheet.length(value, picture), 7.0);
}

void writeRunouts(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    const bool single = sheet.styleIsOneOf("XC");
    const std::string& picture = sheet.units.runoutPicture;
    drawingText(sheet, single ? PageBox{5.236, 6.102, 6.706, 5.752} : PageBox{4.706, 6.102, 6.176, 5.752},
                sheet.length(bearing.innerRadialRunout, picture), 14.0);
    drawingText(sheet, single ? PageBox{3.236, 4.91, 4.706, 4.56} : PageBox{3.706, 4.91, 5.176, 4.56},
                sheet.length(bearing.outerRadialRunout, picture), 14.0);
}

void writeFillet(const SheetWriter& sheet) {
    const std::string radius = sheet.length(sheet.bearing.filletRadius, sheet.units.filletPicture);
    drawingText(sheet, {0.375, 10.2, 1.9, 10.05}, "Will Clear " + radius, 10.0);
    drawingText(sheet, {0.375, 10.05, 1.9, 9.9}, "Max. Fillet Radius", 10.0);
    drawingText(sheet, {0.375, 9.9, 1.9, 9.75}, "4 Exterior Corners", 10.0);
}

void writeMainSizes(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    const auto size = [&](double inches) { return sheet.length(inches, sheet.units.lengthPicture); };
    drawingText(sheet, {1.056, 8.14, 2.316, 7.79}, size(bearing.height), 14.0);
    drawingText(sheet, {6.558, 8.022, 7.818, 7.672}, size(bearing.height), 14.0);
    drawingText(sheet, {3.898, 5.25, 5.578, 4.9}, "Ø " + size(bearing.outsideDiameter), 14.0);
    drawingText(sheet, {5.372, 6.467, 7.052, 6.117}, "Ø " + size(bearing.bore), 14.0);
    drawingText(sheet, {4.808, 9.088, 8.798, 8.738}, "Ø " + size(bearing.pitchDiameter) + " Ref. Pitch",
                14.0);
}

void writeReferences(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    const auto reference = [&](double inches) {
        return "Ø " + sheet.length(inches, kReferencePicture) + " Ref.";
    };
    drawingText(sheet, {4.563, 5.741, 7.083, 5.391}, reference(bearing.referenceDiameter1), 14.0);
    if (sheet.styleIsOneOf("UAT")) {
        drawingText(sheet, {5.313, 9.631, 7.833, 9.281}, reference(bearing.referenceDiameter2), 14.0);
    }
    if (sheet.styleIsOneOf("UATB")) {
        drawingText(sheet, {4.25, 5.47, 6.75, 5.12}, reference(bearing.referenceDiameter3), 14.0);
    }
    if (sheet.styleIsOneOf("CXF")) {
        drawingText(sheet, {4.31, 5.487, 6.83, 5.137}, reference(bearing.referenceDiameter2), 14.0);
    }
}

}  // namespace

void writeSizeTexts(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    const UnitMode& units = sheet.units;
    writeRunouts(sheet);
    writeFillet(sheet);
    writeMainSizes(sheet);
    writeReferences(sheet);
    tolerance(sheet, {5.098, 5.261, 5.833, 5.086}, {5.098, 5.172, 5.833, 4.997}, bearing.odTolerance,
              units.tolerancePicture);
    tolerance(sheet, {6.558, 6.479, 7.293, 6.304}, {6.558, 6.389, 7.293, 6.214}, bearing.boreTolerance,
              units.tolerancePicture);
    tolerance(sheet, {1.824, 8.13, 2.349, 7.955}, {1.824, 8.041, 2.349, 7.866}, bearing.widthTolerance,
              units.filletPicture);
    tolerance(sheet, {7.328, 8.011, 7.853, 7.836}, {7.328, 7.922, 7.853, 7.747}, bearing.widthTolerance,
              units.filletPicture);
}

}  // namespace norlaplan
