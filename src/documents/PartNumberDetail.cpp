#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "documents/SheetWriter.h"
#include "documents/WrappedText.h"

namespace norlaplan {
namespace {

constexpr double kLeft = 0.5;
constexpr double kRight = 3.4;
constexpr double kSize = 8.0;
constexpr double kLine = 0.117;
/// Boxes are higher than the line's step: word processors cut what hangs below a box.
constexpr double kBoxHeight = 0.16;
constexpr double kStackLine = 0.1;
constexpr double kBlank = 0.25 * kSize / 72.0;  ///< width of a blank of Times

std::string without(std::string_view text, std::size_t characters) {
    for (; characters > 0 && !text.empty(); --characters)
        text.remove_prefix(characterLength(text));
    return std::string(text);
}

/// Widths of Times from the blank to the tilde, in thousandths of its size.
constexpr int kWidths[] = {250, 333, 408, 500, 500, 833, 778, 180, 333, 333, 500, 564, 250, 333, 250, 278,
                           500, 500, 500, 500, 500, 500, 500, 500, 500, 500, 278, 278, 564, 564, 564, 444,
                           921, 722, 667, 667, 722, 611, 556, 722, 722, 333, 389, 722, 611, 889, 722, 722,
                           556, 722, 667, 556, 611, 722, 722, 944, 722, 722, 611, 333, 278, 333, 469, 500,
                           333, 444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500, 278, 778, 500, 500,
                           500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444, 480, 200, 480, 541};
static_assert(std::size(kWidths) == '~' - ' ' + 1);

/// How wide a character is, in parts of its size; one beyond ASCII is taken as a wide one.
double widthOf(std::string_view character) {
    const char c = character.front();
    return c < ' ' || c > '~' ? 1.0 : kWidths[c - ' '] / 1000.0;
}

/// A text of a table that ends in a point of omission where it would run out of the frame.
std::string cutToFrame(std::string_view text, double inches) {
    const double room = inches * 72.0 / kSize;
    double used = 0.0;
    std::size_t end = 0;     // of what fits
    std::size_t cutEnd = 0;  // of what fits with the sign behind it
    while (end < text.size()) {
        const std::size_t length = characterLength(text.substr(end));
        used += widthOf(text.substr(end, length));
        if (used > room) return std::string(text.substr(0, cutEnd)) + "\u2026";
        end += length;
        if (used + 1.0 <= room) cutEnd = end;
    }
    return std::string(text);
}

/// The lines of the detail, one below the other.
class DetailWriter {
  public:
    explicit DetailWriter(const SheetWriter& sheet) : sheet_(sheet) {}

    /// A code with its meaning behind it.
    void line(const std::string& code, const std::string& meaning) {
        const double codeWidth = 0.085 * static_cast<double>(std::max<std::size_t>(code.size(), 1));
        sheet_.text({kLeft, y_, kLeft + codeWidth + 0.1, y_ - kBoxHeight}, code, {kSize, "BLUE", true});
        const std::string gap = meaning.starts_with(" ") ? "" : " ";
        sheet_.text({kLeft + codeWidth, y_, kRight, y_ - kBoxHeight},
                    cutToFrame(gap + meaning, kRight - kLeft - codeWidth), {kSize});
        y_ -= kLine;
    }

    void plain(const std::string& words, double left = kLeft) {
        sheet_.text({left, y_, kRight, y_ - kBoxHeight}, cutToFrame(words, kRight - left), {kSize});
        y_ -= kLine;
    }

    /// Digits one below the other, joined by a bracket of the given size with their meaning behind it.
    void stack(const std::string& digits, double bracketSize, const std::string& meaning) {
        const double height = kStackLine * static_cast<double>(digits.size());
        const double middle = y_ - height / 2.0;
        const double bracket = bracketSize / 72.0;
        sheet_.text({kLeft + 0.08, middle + 0.6 * bracket, kLeft + 0.25, middle - 0.6 * bracket}, "]",
                    {bracketSize});
        // The sign of equality stands in line whether a blank is in front of it or not.
        const double left = kLeft + (meaning.starts_with(" ") ? 0.2 - kBlank : 0.2);
        sheet_.text({left, middle + 0.07, kRight, middle + 0.07 - kBoxHeight}, meaning, {kSize});
        for (const char digit : digits) {
            sheet_.text({kLeft, y_, kLeft + 0.15, y_ - kBoxHeight}, std::string(1, digit),
                        {kSize, "BLUE", true});
            y_ -= kStackLine;
        }
        y_ -= 0.02;
    }

  private:
    const SheetWriter& sheet_;
    double y_ = 4.09;
};

std::string fitMeaning(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    if (bearing.fitLetter == "Z") return "= Special Internal Fitup";
    const std::string& picture = sheet.units.clearancePicture;
    return "= " + sheet.length(bearing.fitLow, picture) + " - " + sheet.length(bearing.fitHigh, picture) +
           " " + bearing.clearanceKind;
}

}  // namespace

void writePartNumberDetail(const SheetWriter& sheet) {
    const BearingSpec& bearing = sheet.bearing;
    sheet.document.TINTEDTTEXTBOX({0.4, 4.31, kRight, 2.82}, kTintFore, kTintBack);
    sheet.box({0.4, 4.31, kRight, 4.1}, "Part Number Detail", kHeadingFill, {11.0});

    DetailWriter detail(sheet);
    detail.line(bearing.materialCode, without(bearing.materialText, 1));
    if (bearing.materialCode != "K") detail.plain("< 440C Balls >", kLeft + 0.2);
    detail.stack(bearing.partNumber.substr(1, 3), 20.0, "= Bore Size in mm");
    detail.stack(bearing.partNumber.substr(4, 2), 12.0, without(bearing.crossSectionText, 2));
    detail.line(bearing.styleLetter, without(bearing.styleText, 1));
    const std::string limited = bearing.limitedFlag == "Y" ? ", limited availability!" : "";
    detail.line(bearing.separatorCode, without(bearing.separatorText, 1) + limited);
    detail.line(bearing.precisionCode, without(bearing.precisionText, 1));
    if (bearing.fitLetter == " ") {
        detail.plain(bearing.fitRangeText);
    } else if (!sheet.styleIsOneOf("AUT")) {
        detail.line(bearing.fitLetter, fitMeaning(sheet));
    }
}

}  // namespace norlaplan
