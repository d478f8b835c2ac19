#include "catalogue/SectionConstants.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "numbers/FormatNumber.h"
#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

constexpr double kMillimetresPerInch = 25.4;

struct Section {
    double code;
    const char* digits;
    double ballDiameter, drawingScale, raceRadius;
    double innerSectionA, outerSectionA;    ///< angular contact rings
    double innerSectionCX, outerSectionCX;  ///< radial and four-point contact rings
};

constexpr Section kSections[] = {
    {8.0, "08", 0.15625, 6.35, 0.0828125, 0.0985, 0.0921, 0.099, 0.0998},
    {13.0, "13", 0.25, 3.91, 0.1325, 0.1647, 0.1523, 0.1656, 0.1656},
    {20.0, "20", 0.375, 2.54, 0.19875, 0.2602, 0.2374, 0.2618, 0.2616},
};

}  // namespace

void setSectionConstants(BearingSpec& bearing, const UnitMode& units) {
    const double code = bearing.crossSectionCode;
    const auto* const section = std::find_if(std::begin(kSections), std::end(kSections),
                                             [&](const Section& row) { return row.code == code; });
    if (section == std::end(kSections)) raise(fault::kSubscript);
    const std::string side =
        FormatNumber(units.lengthFactor * code / kMillimetresPerInch, units.crossSectionPicture);
    bearing.crossSectionText = std::string(section->digits) + " = " + side + " x " + side + " Cross Section";
    bearing.ballDiameter = section->ballDiameter;
    bearing.drawingScale = section->drawingScale;
    bearing.raceRadius = section->raceRadius;
    bearing.innerWidth = code / kMillimetresPerInch;
    bearing.outerWidth = code / kMillimetresPerInch;
    bearing.staticFactor = 1.0;
    const bool angular = bearing.familyCode == "A";
    bearing.innerSection = angular ? section->innerSectionA : section->innerSectionCX;
    bearing.outerSection = angular ? section->outerSectionA : section->outerSectionCX;
}

}  // namespace norlaplan
