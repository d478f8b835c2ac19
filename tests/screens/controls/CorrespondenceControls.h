#pragma once

#include "screens/controls/ControlRow.h"
#include "screens/controls/Visitor.h"

/// The user's own texts and the fax cover sheet.
namespace norlaplan::testing {

inline constexpr ControlRow kCorrespondenceRows[] = {
    {"Form11", "Form11", "User Information"},
    {"Form11", "Label1", "Name"},
    {"Form11", "Text1", kAnyText, "Your Name"},
    {"Form11", "Label2", "Company"},
    {"Form11", "Text2", kAnyText, "Company Name"},
    {"Form11", "Label3", "Address line 1"},
    {"Form11", "Text3", kAnyText, "Company Address"},
    {"Form11", "Label4", "Address line 2"},
    {"Form11", "Text4", kAnyText, "Company Address"},
    {"Form11", "Label5", "Title"},
    {"Form11", "Text5", kAnyText, "Job Title"},
    {"Form11", "Label6", "Phone #"},
    {"Form11", "Text6", kAnyText, "Phone Number with Country Code"},
    {"Form11", "Label7", "Fax #"},
    {"Form11", "Text7", kAnyText, "Fax number with Country Code"},
    {"Form11", "Label8", "Email Subject suffix"},
    {"Form11", "Text8", kAnyText, "Automatically created Email Subject Line for \"Send to\" option"},
    {"Form11", "Command1", "Save Data and Exit"},

    {"Form28", "Form28", "Fax Cover Sheet"},
    {"Form28", "Label1", "To:"},
    {"Form28", "Text1", ""},
    {"Form28", "Label2", "FAX:"},
    {"Form28", "Text2", ""},
    {"Form28", "Label3", "Subject:"},
    {"Form28", "Text3", ""},
    {"Form28", "Label4", "# pages"},
    {"Form28", "Text4", ""},
    {"Form28", "Label6", "Message:"},
    {"Form28", "Text5", ""},
    {"Form28", "Label5", "(including cover page)"},
    {"Form28", "Command1", "Print", "Print Cover Sheet to Printer"},
    {"Form28", "Command2", "Return", "Close Cover Sheet"},
};

inline std::vector<Scene> correspondenceScenes() {
    return {
        {"user information", "Form11", {}, {}, [](Visitor& go) { go.pickItem("userinfo"); }},
        {"fax cover", "Form28", {"FAX COVER"}, {}, [](Visitor& go) { go.press("Command16"); }},
    };
}

}  // namespace norlaplan::testing
