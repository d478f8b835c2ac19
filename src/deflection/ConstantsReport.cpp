#include "deflection/ConstantsReport.h"

#include "deflection/DeflectionFieldEntry.h"
#include "deflection/DeflectionTexts.h"
#include "documents/PrintedPage.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr double kBody = 12.0;
constexpr double kRow = 9.0;
constexpr double kValueEnd = 5.4;  // values end here, and their units begin behind it
constexpr double kUnit = 5.5;
constexpr double kBetweenBlocks = 3.5;

void printHead(PageWriter& page, const DeflectionResult& result, const BearingSpec& bearing,
               const UnitMode& units, Canvas& canvas) {
    const std::string title = "DEFLECTION CONSTANTS FOR : ";
    TextLook look = timesLook(15.0, true);
    page.put(kPageLeft, title, look);
    const double behind = kPageLeft + canvas.textWidth(title, look);
    look.underline = true;
    page.put(behind, result.partNumber, look);
    page.endLine(look.points);
    page.skip(0.2);
    page.line((isPreloadAxial(result.styleLetter) ? "Axial Preload level set at "
                                                  : "Diametral Preload level set at ") +
                  FormatNumber(result.input.preload * units.lengthFactor, "0.000000") + " " +
                  units.lengthUnit,
              timesLook(kBody));
    page.line("Ci + Co = " + plainText(bearing.ciPlusCo), timesLook(kBody));
    page.skip(0.15);
}

void printRow(PageWriter& page, const std::string& name, const std::string& value, const std::string& unit) {
    const TextLook look = timesLook(kBody);
    page.put(kPageLeft, name, look);
    // With no preload there are neither rates nor relief loads.
    page.putRight(kValueEnd, value.empty() ? "none" : value, look);
    if (!value.empty()) page.put(kUnit, unit, look);
    page.endLine(kBody);
}

void printConstants(PageWriter& page, const DeflectionResult& result, const UnitMode& units) {
    const DeflectionTexts texts = deflectionTexts(result, units);
    const DeflectionUnits unit = deflectionUnits(units);
    printRow(page, "Radial Spring Rate =", texts.radialSpringRate, unit.springRate);
    printRow(page, "Radial Relief Load =", texts.radialReliefLoad, units.loadUnitWord);
    printRow(page, "Radial Deflection Constant =", texts.radialConstant, "");
    if (result.styleLetter == "C") return;
    printRow(page, "Moment Spring Rate =", texts.momentSpringRate, unit.momentSpringRate);
    printRow(page, "Moment Relief Load =", texts.momentReliefLoad, units.momentUnitWord);
    printRow(page, "Moment Deflection Constants =", texts.momentConstant1 + " , " + texts.momentConstant2,
             "");
    printRow(page, "Axial Spring Rate =", texts.axialSpringRate, unit.springRate);
    printRow(page, "Axial Relief Load =", texts.axialReliefLoad, units.loadUnitWord);
}

/// The rows in two blocks side by side.
void printAxialPoints(PageWriter& page, const DeflectionResult& result, const UnitMode& units) {
    const std::vector<AxialPointTexts> rows = axialPointTexts(result, units);
    const std::size_t perBlock = (rows.size() + 1) / 2;
    const auto row = [&](double left, const AxialPointTexts& texts, const TextLook& look) {
        page.putRight(left + 0.6, texts.load, look);
        page.putRight(left + 1.65, texts.contactAngle, look);
        page.putRight(left + 2.6, texts.deflection, look);
    };
    const auto heads = [&](const AxialPointTexts& texts, const TextLook& look) {
        for (const double left : {kPageLeft, kPageLeft + kBetweenBlocks})
            row(left, texts, look);
        page.endLine(look.points);
    };
    page.skip(0.2);
    page.line("Non-Linear Axial Deflection Data Points", timesLook(13.0, true));
    page.skip(0.05);
    heads({"Load", "Contact Angle", "Deflection"}, timesLook(kRow, true));
    heads({units.loadUnit, "degrees", units.lengthUnit}, timesLook(kRow - 1.0));
    for (std::size_t i = 0; i < perBlock; ++i) {
        for (const std::size_t block : {std::size_t{0}, std::size_t{1}}) {
            const std::size_t at = block * perBlock + i;
            if (at < rows.size())
                row(kPageLeft + static_cast<double>(block) * kBetweenBlocks, rows[at], timesLook(kRow));
        }
        page.endLine(kRow);
    }
}

}  // namespace

void printDeflectionConstants(const DeflectionResult& result, const BearingSpec& bearing,
                              const UnitMode& units, ClockPort& clock, Canvas& canvas) {
    drawPageFrame(canvas);
    PageWriter page(canvas, 10.0);
    printHead(page, result, bearing, units, canvas);
    printConstants(page, result, units);
    if (!result.axialPoints.empty()) printAxialPoints(page, result, units);
    drawPageFooter(canvas, clock);
}

Document deflectionConstantsDocument(const DeflectionResult& result, const BearingSpec& bearing,
                                     const UnitMode& units, ClockPort& clock) {
    Document document;
    document.title = "Deflection constants for " + result.partNumber;
    document.fileName = result.partNumber + " deflection";
    document.pages.draw = [=, &clock](Canvas& canvas) {
        printDeflectionConstants(result, bearing, units, clock, canvas);
    };
    return document;
}

}  // namespace norlaplan
