#include "deflection/DeflectionTexts.h"

#include <algorithm>
#include <optional>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"
#include "state/DisplayUnits.h"

namespace norlaplan {
namespace {

constexpr const char* kConstantPicture = "0.0000E+00";
constexpr std::size_t kLoadPlaces = 8;
const AxialPointTexts kUnloadedPoint = {"0", "30.0", "0.000000"};

struct Pictures {
    const char* rate;
    const char* load;
};

Pictures picturesOf(const std::string& style) {
    if (style == "X") return {"#.####E+00", "#,###.0"};
    if (style == "C") return {"#,###", "#,###.0"};
    return {"#.##E+00", "#,###"};
}

template <typename Number>
std::string textOf(const std::optional<Number>& value, double factor, const char* picture) {
    return value ? FormatNumber(*value * factor, picture) : "";
}

AxialPointTexts axialPointText(const AxialPoint& row, const UnitMode& units) {
    return {FormatNumber(row.load / units.forceFactor, "#,###"),
            FormatNumber(row.contactAngle * 180.0 / PiValue, "##.0"),
            FormatNumber(row.deflection * units.lengthFactor, "0.000000")};
}

std::string joined(AxialPointTexts texts) {
    texts.load.resize(std::max(texts.load.size(), kLoadPlaces), ' ');
    return texts.load + texts.contactAngle + "     " + texts.deflection;
}

}  // namespace

std::vector<AxialPointTexts> axialPointTexts(const DeflectionResult& result, const UnitMode& units) {
    std::vector<AxialPointTexts> texts;
    texts.reserve(result.axialPoints.size());
    for (const AxialPoint& row : result.axialPoints)
        texts.push_back(texts.empty() ? kUnloadedPoint : axialPointText(row, units));
    return texts;
}

DeflectionUnits deflectionUnits(const UnitMode& units) {
    if (isMetric(units)) return {"N/mm", "N-m/radian", "mm/N^(2/3)", "rad/(N-m)^(2/3)", "rad/(N-m)"};
    return {"pounds/inch", "inch-lbs/radian", "in/lb^(2/3)", "rad/(in-lb)^(2/3)", "rad/(in-lb)"};
}

DeflectionTexts deflectionTexts(const DeflectionResult& result, const UnitMode& units) {
    const Pictures pictures = picturesOf(result.styleLetter);
    const double perForce = divide(1.0, units.forceFactor);
    const double perMoment = divide(1.0, units.momentFactor);
    const double perStiffness = perForce / units.lengthFactor;
    DeflectionTexts texts;
    if (result.input.preload != 0.0) {
        texts.radialSpringRate = textOf(result.radialSpringRate, perStiffness, pictures.rate);
        texts.axialSpringRate = textOf(result.axialSpringRate, perStiffness, pictures.rate);
        texts.momentSpringRate = textOf(result.momentSpringRate, perMoment, pictures.rate);
        texts.radialReliefLoad = textOf(result.radialReliefLoad, perForce, pictures.load);
        texts.axialReliefLoad = textOf(result.axialReliefLoad, perForce, pictures.load);
        texts.momentReliefLoad = textOf(result.momentReliefLoad, perMoment, pictures.load);
    }
    texts.radialConstant = textOf(
        result.radialConstant, units.lengthFactor * power(units.forceFactor, kTwoThirds), kConstantPicture);
    texts.momentConstant1 =
        textOf(result.momentConstant1, power(units.momentFactor, kTwoThirds), kConstantPicture);
    texts.momentConstant2 = textOf(result.momentConstant2, units.momentFactor, kConstantPicture);
    texts.initialTilt = textOf(result.initialTilt, 1.0, kConstantPicture);
    if (result.initialAngle) texts.initialAngle = plainText(*result.initialAngle);
    for (const AxialPointTexts& row : axialPointTexts(result, units))
        texts.axialPoints.push_back(joined(row));
    return texts;
}

}  // namespace norlaplan
