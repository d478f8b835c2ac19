#pragma once

#include <array>
#include <string>
#include <string_view>

#include "state/UnitMode.h"

namespace norlaplan {

/// A material of shaft or housing.
struct FitMaterial {
    const char* name;
    double perFahrenheit, perCelsius;  ///< thermal expansion per degree
};

/// The materials to choose from, in the order of the lists on the screen.
inline constexpr std::array<FitMaterial, 5> kFitMaterials = {{
    {"52100 Steel", 7e-06, 1.26e-05},
    {"440C steel", 5.6e-06, 1.008e-05},
    {"6061 Aluminum", 1.3e-05, 2.34e-05},
    {"7075 Aluminum", 1.31e-05, 2.358e-05},
    {"Ti6Al4V", 5.3e-06, 9.54e-06},
}};
/// The last row of the lists: the user types the coefficient.
constexpr const char* kOtherMaterial = "Other";

/// The material of a name, whatever its case; null when there is none.
const FitMaterial* fitMaterial(std::string_view name);

/// What a choice of the material puts into the field of the coefficient. It is rounded to three digits, and
/// the calculation reads it back: "1.01E-05".
std::string expansionText(const FitMaterial& material, const UnitMode& units);

}  // namespace norlaplan
