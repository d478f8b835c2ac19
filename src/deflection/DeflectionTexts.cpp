#include "deflection/DeflectionTexts.h"

#include <algorithm>
#include <optional>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr const char* kConstantPicture = "0.0000E+00";
constexpr std::size_t kLoadPlaces = 8;
constexpr const char* kUnloadedPoint = "0       30.0     0.000000";

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

std::string axialPointText(const AxialPoint& row, const UnitMode& units) {
    std::string load = FormatNumber(row.load / units.forceFactor, "#,###");
    load.resize(std::max(load.size(), kLoadPlaces), ' ');
    return load + FormatNumber(row.contactAngle * 180.0 / PiValue, "##.0") + "     " +
           FormatNumber(row.deflection * units.lengthFactor, "0.000000");
}

}  // namespace

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
    for (const AxialPoint& row : result.axialPoints) {
        const bool unloaded = texts.axialPoints.empty();
        texts.axialPoints.push_back(unloaded ? kUnloadedPoint : axialPointText(row, units));
    }
    return texts;
}

}  // namespace norlaplan
