#include "catalogue/MountedFits.h"

namespace norlaplan {
namespace {

void clearSecondColumn(BearingSpec& bearing) {
    bearing.fitShaft3 = 0.0;
    bearing.fitShaft4 = 0.0;
    bearing.fitHousing3 = 0.0;
    bearing.fitHousing4 = 0.0;
}

}  // namespace

void setStandardFits(BearingSpec& bearing) {
    bearing.fitShaft1 = bearing.bore;
    bearing.fitShaft2 = bearing.bore - bearing.boreTolerance;
    bearing.fitHousing1 = bearing.outsideDiameter;
    bearing.fitHousing2 = bearing.outsideDiameter - bearing.odTolerance;
    bearing.fitShaft3 = bearing.bore + bearing.boreTolerance;
    bearing.fitShaft4 = bearing.bore + 2.0 * bearing.boreTolerance;
    bearing.fitHousing3 = bearing.odTolerance + bearing.outsideDiameter;
    bearing.fitHousing4 = bearing.outsideDiameter + 2.0 * bearing.odTolerance;
}

void setClearanceFits(BearingSpec& bearing) {
    bearing.fitShaft1 = bearing.bore + bearing.boreTolerance;
    bearing.fitShaft2 = bearing.bore + 2.0 * bearing.boreTolerance;
    bearing.fitHousing1 = bearing.outsideDiameter;
    bearing.fitHousing2 = bearing.outsideDiameter - bearing.odTolerance;
    clearSecondColumn(bearing);
}

void setPreloadFits(BearingSpec& bearing) {
    bearing.fitShaft1 = bearing.boreTolerance + bearing.preloadBore;
    bearing.fitShaft2 = 2.0 * bearing.boreTolerance + bearing.preloadBore;
    bearing.fitHousing1 = bearing.preloadOd;
    bearing.fitHousing2 = bearing.preloadOd - bearing.odTolerance;
    clearSecondColumn(bearing);
}

}  // namespace norlaplan
