#pragma once

#include <span>
#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// What stands behind the value of a field.
enum class FieldUnit { None, Length, Load, Moment, Temperature, Rpm, Hours };

/// A value of the application form. A group of options and the check box are one value, too.
struct ApplicationField {
    const char* control;  ///< "Text8"; of a group its first option, "Option1"
    int tab;              ///< 1 to 12
    int flag;             ///< number of its completeness flag, 0 for none
    const char* label;    ///< before the field
    const char* tip;
    FieldUnit unit;
    std::string ApplicationData::*own;  ///< where it is kept: here, or
    std::string UserInfo::*contact;     ///< with the user information, which has the contact fields, too

    bool isContact() const { return contact != nullptr; }
    bool isText() const { return control[0] == 'T'; }
};

/// All values, in the order in which a data file has them.
std::span<const ApplicationField> applicationFields();
/// The field of a control; the control must be one of the table.
const ApplicationField& applicationField(const std::string& control);

std::string& valueOf(const ApplicationField& field, ApplicationData& data, UserInfo& user);
const std::string& valueOf(const ApplicationField& field, const ApplicationData& data, const UserInfo& user);

struct ApplicationOption {
    const char* control;
    const char* caption;
    const char* value;
};

/// A group of options, of which one is chosen.
struct ApplicationGroup {
    std::string ApplicationData::*value;
    const char* question;  ///< names the group: "Type"
    std::span<const ApplicationOption> options;
};

/// All groups, in the order of their controls.
std::span<const ApplicationGroup> applicationGroups();

constexpr const char* kYes = "YES";
constexpr const char* kNo = "NO";

/// What the form sets by itself when it is shown: the first precision class, and no shock.
void setApplicationDefaults(ApplicationData& data);

/// The tabs of the form are the sections of its document.
constexpr int kApplicationTabs = 12;
const char* applicationTab(int tab);

/// Takes note of what now stands in a field: its completeness flag is 1 with any text, 0 without. With no
/// oscillation its two fields count as filled in.
void noteEntry(ApplicationForm& form, const ApplicationField& field, const std::string& value);
/// The same for all fields, as when a form is read from a file.
void noteAllEntries(ApplicationForm& form, const UserInfo& user);

/// How complete a tab is: nothing, some or all of it.
enum class Light { Red, Yellow, Green };
Light statusLight(const ApplicationForm& form, int tab);

}  // namespace norlaplan
