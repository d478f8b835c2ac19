#pragma once

#include "screens/Program.h"

namespace norlaplan::testing {

/// The steps of a search, through the real forms.
struct SearchingUser : Program {
    using Program::Program;

    /// By its picture, counted from 1.
    void chooseStyle(int picture) {
        screens.showAlone(forms::kMainMenu);
        click(forms::kMainMenu, "Command4");
        click(forms::kStyle, qPrintable(QString("Image%1").arg(picture)));
        click(forms::kStyle, "Command1");
    }
    void enterSizes(const char* bore, const char* od, const char* low, const char* high) {
        type(forms::kSizes, "Text1", bore);
        type(forms::kSizes, "Text2", od);
        type(forms::kSizes, "Text3", low);
        type(forms::kSizes, "Text4", high);
        click(forms::kSizes, "Command2");
    }
    void typeLoads(const char* radial, const char* speed = "") {
        type(forms::kLoads, "Text1", radial);
        type(forms::kLoads, "Text4", speed);
    }
    void enterLoads(const char* radial, const char* speed = "") {
        typeLoads(radial, speed);
        click(forms::kLoads, "Command1");
    }
};

}  // namespace norlaplan::testing
