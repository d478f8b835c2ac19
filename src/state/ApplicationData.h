#pragma once

#include <array>
#include <string>

#include "numbers/Int16.h"

namespace norlaplan {

/// What a sales engineer needs to propose a bearing, beside the user's own contact texts. Texts are held as
/// entered, without conversion; of each group of options, the text of the chosen one, empty for none.
struct ApplicationData {
    std::string bearingUse, projectName, quantity;
    std::string type, usage;
    std::string staticRadial, staticAxial, staticMoment;
    std::string dynamicRadial, dynamicAxial, dynamicMoment;
    std::string shock, shockDetails, safetyFactor, safetyIncluded;
    std::string maximumSpeed, minimumSpeed;
    std::string oscillation, oscillationAngle, oscillationFrequency;
    std::string precisionClass;
    std::string innerRadialRunout, outerRadialRunout, innerAxialRunout, outerAxialRunout;
    std::string radialPlay, axialPlay;
    std::string minimumLife, averageLife, lifeComments;
    std::string normalTemp, minimumTemp, maximumTemp, tempDifference;
    std::string lubricant, lubricationMethod;
    std::string preferredBore, preferredOd, preferredWidth;
    std::string minimumBore, maximumOd, maximumWidth;
    std::string preferredType, bearingAxis, rotatingRace;
    std::string shaftMaterial, housingMaterial;
    std::string allowableTorque, sealing, coating, otherRequirements;
    std::string remarks;

    bool operator==(const ApplicationData&) const = default;
};

/// How many completeness flags the form has. Flag 22 belongs to no control.
constexpr int kCompletenessFlags = 59;

/// The application form as it stands while the program runs.
struct ApplicationForm {
    ApplicationData data;
    /// 1 for each part that is filled in, else 0, under its number, counted from 1.
    std::array<Int16, kCompletenessFlags + 1> complete;
    bool unsaved = false;  ///< something was entered since it was last saved, read or cleared
};

}  // namespace norlaplan
