#include "fits/FitMaterials.h"

#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "state/DisplayUnits.h"

namespace norlaplan {

const FitMaterial* fitMaterial(std::string_view name) {
    for (const FitMaterial& material : kFitMaterials) {
        if (upperCase(material.name) == upperCase(name)) return &material;
    }
    return nullptr;
}

std::string expansionText(const FitMaterial& material, const UnitMode& units) {
    return FormatNumber(isMetric(units) ? material.perCelsius : material.perFahrenheit, "0.00E+00");
}

}  // namespace norlaplan
