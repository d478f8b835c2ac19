#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "fits/FitMaterials.h"
#include "fits/ThermalFits.h"
#include "numbers/Text.h"
#include "state/MenuConditions.h"

namespace norlaplan::cli {
namespace {

/// What stands in the field of a coefficient: the text of the material's, or the number as it was given.
std::string fieldText(const std::string& option, const std::string& given, const UnitMode& units) {
    if (const FitMaterial* const material = fitMaterial(given)) return expansionText(*material, units);
    if (wholeNumberText(given)) return given;
    std::string known;
    for (const FitMaterial& material : kFitMaterials)
        known += std::string(", \"") + material.name + "\"";
    throw CommandError(ErrorKind::Usage, "Unknown material",
                       option + " is a coefficient or one of" + known.substr(1));
}

Json fitsJson(const ThermalFits& fits) {
    return {{"highTemp", toJson(fits.highTemp)},
            {"lowTemp", toJson(fits.lowTemp)},
            {"shaftExpansion", toJson(fits.shaftExpansion)},
            {"housingExpansion", toJson(fits.housingExpansion)},
            {"shaftSize", toJson(fits.shaftSize)},
            {"housingSize", toJson(fits.housingSize)},
            {"shaftLine", fits.shaftLine},
            {"housingLine", fits.housingLine},
            {"comment", fits.comment}};
}

}  // namespace

void calculateFits(Session& session, const PartNumberOption& number, const FitOptions& options) {
    session.decode(number);
    ProgramState& state = session.state();
    refuse(thermalFitsRefusal(state));
    prepareThermalFits(state);
    ThermalFits& fits = state.thermalFits;
    fits.highTempText = shortestText(options.high);
    fits.lowTempText = shortestText(options.low);
    fits.shaftExpansionText = fieldText("--shaft", options.shaft, state.units);
    fits.housingExpansionText = fieldText("--housing", options.housing, state.units);
    refuse(computeThermalFits(state));
}

CommandResult fitsCommand(Session& session, const PartNumberOption& number, const FitOptions& options) {
    calculateFits(session, number, options);
    const ThermalFits& fits = session.state().thermalFits;
    return {fitsJson(fits),
            fits.partNumber + "\n" + fits.shaftLine + "\n" + fits.housingLine + "\n" + fits.comment + "\n"};
}

}  // namespace norlaplan::cli
