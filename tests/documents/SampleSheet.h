#pragma once

#include "documents/DataSheet.h"
#include "documents/SheetRecords.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {

/// A four-point bearing by hand, with overlays of one line each.
struct Sheet {
    Sheet() {
        place.write("overlays/X.ovl", "PU0,0;PD10,10;");
        place.write("overlays/RIBBONXC.sep", "PU0,0;PD10,10;");
        BearingSpec& bearing = state.bearing;
        bearing.partNumber = "K19013XP0";
        bearing.materialCode = "K";
        bearing.materialText = "K = Vacuum Degassed 52100 Steel";
        bearing.crossSectionText = "13 = .512 x .512 Cross Section";
        bearing.styleLetter = "X";
        bearing.styleText = "X= 4-Point Contact Ball Radial Bearing";
        bearing.separatorCode = "P";
        bearing.separatorText = "P= Snapover Brass Ribbon";
        bearing.separatorOverlay = "RIBBON";
        bearing.precisionCode = "0";
        bearing.precisionText = "0= Precision Class 1";
        bearing.limitedFlag = "Y";
        bearing.fitLetter = " ";
        bearing.fitRangeText = "Standard .0008-.0019 Clearance";
        bearing.bore = 7.5;
        bearing.outsideDiameter = 8.5;
        bearing.pitchDiameter = 8.0;
        bearing.height = 0.5;
        bearing.boreTolerance = -0.0012;
        bearing.widthTolerance = -0.005;
        bearing.innerRadialRunout = 0.0016;
        bearing.filletRadius = 0.0236;
        bearing.drawingScale = 3.91;
        bearing.ballsText = "81 Balls, Ø .250 Nominal";
        bearing.mass = 1.25;
        bearing.staticRadial = 11542.5;
        bearing.staticMoment = 46124.56;
        bearing.fitShaft1 = 7.5;
        bearing.fitShaft3 = 7.4988;
        bearing.limitSpeedGrease = 900.0;
        bearing.limitSpeedOil = 1200.0;
    }

    RecordingCanvas draw() {
        FixedClock clock;
        files = makeDataSheet(state, ProgramFolder(place.path()), clock);
        RecordingCanvas canvas;
        paintSheet(files.records, canvas);
        return canvas;
    }

    TemporaryFolder place;
    ProgramState state;
    SheetFiles files;
};

}  // namespace norlaplan::testing
