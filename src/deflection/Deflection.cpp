#include "deflection/Deflection.h"

#include "deflection/DeflectionCurves.h"
#include "deflection/DeflectionModel.h"
#include "deflection/NonLinearConstants.h"
#include "deflection/SpringRates.h"

namespace norlaplan {
namespace {

constexpr double kProposedShare = 0.2;

void solveRates(const DeflectionModel& model, DeflectionResult& result, const Patience& patience) {
    if (result.input.preload == 0.0) {
        result.radialReliefLoad = result.axialReliefLoad = result.momentReliefLoad = Single(-1.0);
    } else if (result.styleLetter == "X") {
        solveFourPointRates(model, result, patience);
    } else if (result.styleLetter == "C") {
        solveRadialContactRates(model, result);
    } else {
        solvePairRates(model, result, patience);
    }
}

}  // namespace

DeflectionResult computeDeflection(const BearingSpec& bearing, const DeflectionInput& input,
                                   const Patience& patience) {
    const DeflectionModel model(bearing);
    DeflectionResult result;
    result.partNumber = bearing.partNumber;
    result.zSeparatorChoice = bearing.zSeparatorChoice;
    result.styleLetter = bearing.styleLetter;
    result.input = input;
    solveRates(model, result, patience);
    solveNonLinearConstants(model, result);
    if (result.styleLetter != "C") solveAxialPoints(model, result, patience);
    computeCurves(result);
    return result;
}

DeflectionEntry proposedDeflectionEntry(const BearingSpec& bearing, const UnitMode& units) {
    const auto fifth = [](double rating, double factor) {
        return Int(divide(rating * kProposedShare, factor));
    };
    return {0.0, fifth(bearing.dynamicRadial, units.forceFactor),
            fifth(bearing.dynamicThrust, units.forceFactor),
            fifth(bearing.dynamicMoment, units.momentFactor)};
}

DeflectionInput deflectionInput(const DeflectionEntry& entry, const UnitMode& units) {
    return {divide(entry.preload, units.lengthFactor), entry.maxRadialLoad * units.forceFactor,
            entry.maxAxialLoad * units.forceFactor, entry.maxMomentLoad * units.momentFactor};
}

}  // namespace norlaplan
