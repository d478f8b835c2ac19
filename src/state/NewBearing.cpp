#include "state/NewBearing.h"

namespace norlaplan {

void clearBearingAndLoads(ProgramState& state) {
    BearingSpec& bearing = state.bearing;
    bearing.partNumber.clear();
    bearing.styleLetter.clear();
    bearing.separatorCode.clear();
    bearing.fitLetter.clear();
    for (Single BearingSpec::*const size :
         {&BearingSpec::outsideDiameter, &BearingSpec::bore, &BearingSpec::height,
          &BearingSpec::pitchDiameter, &BearingSpec::momentArm, &BearingSpec::ballDiameter,
          &BearingSpec::raceRadius, &BearingSpec::stdClearanceLow, &BearingSpec::stdClearanceHigh})
        bearing.*size = 0.0;
    bearing.ballCount = 0;
    state.decoded.takeOff();
    state.life = {};
    state.deflectionFields = {};
    state.deflection = {};

    state.loads = {};
    state.loadsEntered = false;
    state.styleChosen = false;
    state.sizesChosen = false;
    state.criteria = {};
    state.search = {};
    state.entries = {};
    state.application = {};
}

}  // namespace norlaplan
