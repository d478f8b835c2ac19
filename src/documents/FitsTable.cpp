#include <array>

#include "documents/SheetWriter.h"

namespace norlaplan {
namespace {

constexpr double kLeft = 4.125;
constexpr double kRight = 7.9;
constexpr double kTop = 4.31;
constexpr double kBelowHeading = 4.1;
constexpr double kRow = 0.175;
constexpr const char* kShaft = "Ø Shaft";
constexpr const char* kHousing = "Ø Housing";

std::string heading(const BearingSpec& bearing) {
    const std::string& letter = bearing.fitLetter;
    if (letter == "Z") return "'Z - Special Fitup' - Recommended Fits";
    if (letter >= "A" && letter <= "J") return "'" + letter + " - Clearance' Recommended Fits";
    if (letter >= "K" && letter <= "Y") return "'" + letter + " - Preload' Recommended Fits";
    return "Standard Recommended Fits";
}

/// A row of grey cells of equal width from `left` to `right`; rows count from 0 below the heading.
template <std::size_t N>
void cells(const SheetWriter& sheet, int row, double left, double right,
           const std::array<std::string, N>& texts) {
    const double width = (right - left) / N;
    const double top = kBelowHeading - kRow * row;
    for (std::size_t i = 0; i < N; ++i) {
        const double x = left + width * static_cast<double>(i);
        sheet.box({x, top, x + width, top - kRow}, texts[i], kGreyFill, {9.0});
    }
}

void writeOnePair(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    constexpr double kSplit = 5.875;
    const auto size = [&](double inches) { return sheet.length(inches, sheet.units.lengthPicture); };
    cells<2>(sheet, 0, kLeft, kSplit, {kShaft, kHousing});
    cells<2>(sheet, 1, kLeft, kSplit, {size(bearing.fitShaft1), size(bearing.fitHousing1)});
    cells<2>(sheet, 2, kLeft, kSplit, {size(bearing.fitShaft2), size(bearing.fitHousing2)});
    sheet.box({kSplit, kBelowHeading, kRight, kBelowHeading - 3.0 * kRow}, "", kGreyFill, {8.0});
    using Note = std::array<const char*, 4>;
    const Note note =
        bearing.fitLetter == "Z"
            ? Note{"  Note: Precise fits cannot be determined", "  with an unspecified 'Z' internal fit up.",
                   "  These suggested sizes are based on ", "  clearance being present in the bearing."}
            : Note{"  Note: Both the shaft and housing fits are",
                   "  loose.  This is done to prevent any change",
                   "  in the factory-set internal fitup.  This will", "  also permit easier installation."};
    constexpr double kLine = 0.125;
    double y = kBelowHeading - 0.01;
    for (const char* const words : note) {
        sheet.text({kSplit, y, kRight, y - kLine - 0.02}, words, {8.0});
        y -= kLine;
    }
}

void writeTwoPairs(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    const bool single = sheet.styleIsOneOf("UAT");
    const auto size = [&](double inches) { return sheet.length(inches, sheet.units.lengthPicture); };
    cells<2>(sheet, 0, kLeft, kRight,
             {single ? "If Rotating Shaft" : "If Used Face-to-Face",
              single ? "If Stationary Shaft" : "If Used Back-to-Back"});
    cells<4>(sheet, 1, kLeft, kRight, {kShaft, kHousing, kShaft, kHousing});
    cells<4>(sheet, 2, kLeft, kRight,
             {size(bearing.fitShaft1), size(bearing.fitHousing1), size(bearing.fitShaft3),
              size(bearing.fitHousing3)});
    cells<4>(sheet, 3, kLeft, kRight,
             {size(bearing.fitShaft2), size(bearing.fitHousing2), size(bearing.fitShaft4),
              size(bearing.fitHousing4)});
}

}  // namespace

void writeFits(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    sheet.box({kLeft, kTop, kRight, kBelowHeading}, heading(bearing), kHeadingFill, {11.0});
    const bool secondColumn = bearing.fitShaft3 != 0.0 || bearing.fitShaft4 != 0.0 ||
                              bearing.fitHousing3 != 0.0 || bearing.fitHousing4 != 0.0;
    if (secondColumn) {
        writeTwoPairs(sheet);
    } else {
        writeOnePair(sheet);
    }
}

}  // namespace norlaplan
