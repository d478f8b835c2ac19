#include "documents/SheetWriter.h"
#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

constexpr double kLeft = 0.4;
constexpr double kFirstColumn = 1.2;
constexpr double kSecondColumn = 2.3;
constexpr double kRight = 3.4;
constexpr double kTop = 2.75;
constexpr double kRow = 0.21;

std::string cell(double value, double factor, const std::string& picture, const std::string& unit) {
    return " " + FormatNumber(value / factor, picture) + " " + unit + ".";
}

void row(const SheetWriter& sheet, int number, const std::string& name, const std::string& fixed,
         const std::string& turning) {
    const double top = kTop - kRow * number;
    const double bottom = top - kRow;
    const SheetStyle style{10.0};
    sheet.box({kLeft, top, kFirstColumn, bottom}, name, kGreyFill, style);
    sheet.box({kFirstColumn, top, kSecondColumn, bottom}, fixed, kGreyFill, style);
    sheet.box({kSecondColumn, top, kRight, bottom}, turning, kGreyFill, style);
}

}  // namespace

void writeRatings(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    const UnitMode& units = sheet.units;
    const auto load = [&](double value) {
        return cell(value, units.forceFactor, units.loadPicture, units.loadUnit);
    };
    const auto moment = [&](double value) {
        return cell(value, units.momentFactor, units.loadPicture, units.momentUnit);
    };
    sheet.box({kLeft, kTop, kRight, kTop - kRow}, "Static and Dynamic Ratings", kHeadingFill, {11.0});
    row(sheet, 1, "", "Static", "Dynamic");
    row(sheet, 2, "Radial", load(bearing.staticRadial), load(bearing.dynamicRadial));
    row(sheet, 3, "Axial", load(bearing.staticThrust), load(bearing.dynamicThrust));
    row(sheet, 4, "Moment", moment(bearing.staticMoment), moment(bearing.dynamicMoment));

    sheet.document.TINTEDTTEXTBOX({kLeft, 1.7, kRight, 1.08}, kTintFore, kTintBack);
    // The longest line just fits: it begins so that its blank stands on the frame and both ends are free.
    constexpr double kNoteLeft = kLeft - 0.008;
    constexpr double kLine = 0.14;
    double y = 1.67;
    for (const std::string& words :
         {std::string(" Capacities do not apply simultaneously, and are based on"),
          "   the '" + bearing.separatorCode + "' separator.  The Static ratings are based on the",
          std::string("   onset of permanent non-detrimental deformation.  The "),
          std::string(" Dynamic rating is based on 1,000,000 revolutions L10 life.")}) {
        sheet.text({kNoteLeft, y, kRight, y - kLine}, words);
        y -= kLine;
    }
}

}  // namespace norlaplan
