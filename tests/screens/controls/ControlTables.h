#pragma once

#include "screens/controls/AnalysisControls.h"
#include "screens/controls/ApplicationControls.h"
#include "screens/controls/ContactControls.h"
#include "screens/controls/CorrespondenceControls.h"
#include "screens/controls/DataSheetControls.h"
#include "screens/controls/DeflectionControls.h"
#include "screens/controls/FitsControls.h"
#include "screens/controls/InformationControls.h"
#include "screens/controls/LifeControls.h"
#include "screens/controls/LoadControls.h"
#include "screens/controls/MainMenuControls.h"
#include "screens/controls/PartNumberControls.h"
#include "screens/controls/ResultsControls.h"
#include "screens/controls/SearchEntryControls.h"
#include "screens/controls/StartControls.h"

namespace norlaplan::testing {

/// Every table of controls; those of a new form are added here.
inline std::vector<ControlTable> controlTables() {
    return {
        {kStartRows, startScenes()},
        {kMainMenuRows, mainMenuScenes()},
        {kPartNumberRows, partNumberScenes()},
        {kSearchEntryRows, searchEntryScenes()},
        {kLoadRows, loadScenes()},
        {kResultsRows, resultsScenes()},
        {kDataSheetRows, dataSheetScenes()},
        {kLifeRows, lifeScenes()},
        {kAnalysisRows, analysisScenes()},
        {kContactRows, contactScenes()},
        {kDeflectionRows, deflectionScenes()},
        {kFitsRows, fitsScenes()},
        {kApplicationRows, applicationScenes()},
        {kCorrespondenceRows, correspondenceScenes()},
        {kInformationRows, informationScenes()},
    };
}

}  // namespace norlaplan::testing
