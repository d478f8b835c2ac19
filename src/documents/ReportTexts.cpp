#include "documents/ReportTexts.h"

#include "numbers/FormatNumber.h"

namespace norlaplan {

std::string shownLength(const ProgramState& state, double inches) {
    return FormatNumber(inches * state.units.lengthFactor, state.units.lengthPicture) + " " +
           state.units.lengthUnit;
}

std::string shownLoad(const ProgramState& state, double displayLoad) {
    return FormatNumber(displayLoad, state.units.loadPicture) + " " + state.units.loadUnitWord;
}

std::string shownMoment(const ProgramState& state, double displayMoment) {
    return FormatNumber(displayMoment, state.units.loadPicture) + " " + state.units.momentUnitWord;
}

std::string tabStops(std::initializer_list<int> twips) {
    std::string stops = "\\pard";
    for (const int stop : twips)
        stops += "\\tx" + std::to_string(stop);
    return stops;
}

std::string reportTorque(const ProgramState& state) {
    const double torque = state.life.torqueDisplay;
    return state.life.torqueLabel + FormatNumber(torque, torque < 1.0 ? "0.00" : "#,###.0") + " " +
           state.units.momentUnitWord;
}

}  // namespace norlaplan
