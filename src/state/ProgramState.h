#pragma once

#include <string>

#include "numbers/Int16.h"
#include "state/AnalysisNotes.h"
#include "state/ApplicationData.h"
#include "state/BearingSpec.h"
#include "state/DecodedMark.h"
#include "state/DeflectionResult.h"
#include "state/FitsRecords.h"
#include "state/GraphSettings.h"
#include "state/LifeResult.h"
#include "state/LoadCase.h"
#include "state/SearchRecords.h"
#include "state/SolverState.h"
#include "state/UnitMode.h"

namespace norlaplan {

/// What the option file switches on.
struct Options {
    Flag faxCoverEnabled, deflectionOption, larsHofmannOption, nedGroveOption, ianMorayOption,
        skipIntroOption, ballShowOption, lubeFilmOption, pathStressOption, samLundOption, tempFitsOption;
    Flag qlxOption;  ///< shows the export item of the File menu
    std::string footerText;
};

/// The eight texts about the user, in the order of the settings file.
struct UserInfo {
    std::string userName, userTitle, userCompany, userAddress1, userAddress2, userPhone, userFax,
        userMailSuffix;
};

/// What stands in the fields of the size and load screens, in display units. It lives here and not in the
/// screens, since a change of units converts it and the solver may correct it.
struct EntryTexts {
    std::string minBore, maxOd, minHeight, maxHeight;
    std::string radial, axial, moment, speed;
};

/// The one record of program-wide state. It is made once in `main` and handed down by reference; screens talk
/// to each other only through it.
struct ProgramState {
    Options options;
    UserInfo user;
    std::string unitSystem;  ///< "US" or "METRIC"
    UnitMode units = initialUnits();

    BearingSpec bearing;
    DecodedMark decoded;
    std::string zSeparatorEntered;  ///< as last clicked on the entry screen, for the number that stands there

    BearingStyle style;
    SearchCriteria criteria;
    SearchResults search;
    Flag styleChosen, sizesChosen;
    bool sizeInputPending = false;

    EntryTexts entries;

    LoadCase loads;
    Flag loadsEntered;
    bool knownBearingLoadInput = false;  ///< the load screen serves the known-bearing path

    LifeResult life;
    SolverState solver;
    AnalysisNotes analysis;
    DeflectionFields deflectionFields;
    DeflectionResult deflection;
    DeflectionLoad graphLoad = DeflectionLoad::Radial;  ///< whose curve the deflection graph shows
    GraphSettings graphSettings;

    TorqueCurve torque;
    PlayCurve play;
    ThermalFits thermalFits;

    ApplicationForm application;
    std::string lastSavedFile;

    Int16 helpTopic;                                    ///< the number of the help document to show
    std::string otherBearingText, otherBearingPicture;  ///< what the product page shows
};

}  // namespace norlaplan
