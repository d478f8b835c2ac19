#pragma once

#include "screens/Information.h"
#include "screens/Program.h"
#include "state/LoadEntry.h"
#include "state/SizeEntry.h"

namespace norlaplan::testing {

/// A session in which every form has something to show: every option, a decoded bearing with its loads and
/// their solve, the data of a search, a help topic and a product line.
struct Everything : Program {
    Everything() {
        useUnits("US");
        giveInformation(*this);
        Options& options = state.options;
        options.faxCoverEnabled = options.nedGroveOption = options.tempFitsOption = true;
        options.ballShowOption = options.lubeFilmOption = options.pathStressOption = true;
        options.samLundOption = true;
        enterNumber("K19013XP0");
        state.style = {"4-POINT CONTACT", "X"};
        state.styleChosen = true;
        state.entries = {"5", "9", ".2", "1.2", "500", "200", "100", "400"};
        enterSizes(state);
        enterLoads(state);
        screens.showAlone(forms::kMainMenu);
        screens.show(forms::kLife);
    }
    /// The form over the main menu.
    Form& open(FormName name) {
        screens.showAlone(forms::kMainMenu);
        screens.show(name);
        QApplication::processEvents();
        return *screens.current();
    }
    QLineEdit& field(FormName form, const char* name) { return control<QLineEdit>(form, name); }
};

}  // namespace norlaplan::testing
