#include "deflection/GraphFields.h"

#include <optional>

#include "numbers/DecimalText.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr double kMostSteps = 100.0;

GraphRefusal refusal(const std::string& more, std::string GraphFields::*field) {
    return {{"data error", "Invalid input" + more, Icon::Critical}, field};
}

struct Number {
    std::string GraphFields::*text;
    double GraphSettings::*value;
};

constexpr Number kXMax = {&GraphFields::xMax, &GraphSettings::xMax};
constexpr Number kXMajor = {&GraphFields::xMajor, &GraphSettings::xMajor};
constexpr Number kYMax = {&GraphFields::yMax, &GraphSettings::yMax};
constexpr Number kYMajor = {&GraphFields::yMajor, &GraphSettings::yMajor};

bool isTooFine(const GraphSettings& settings, const Number& end, const Number& step) {
    return settings.*end.value > settings.*step.value * kMostSteps;
}

}  // namespace

GraphFields graphFields(const GraphSettings& settings) {
    return {fifteenDigits(settings.xMax), fifteenDigits(settings.xMajor), fifteenDigits(settings.yMax),
            fifteenDigits(settings.yMajor)};
}

std::variant<GraphSettings, GraphRefusal> adjustedSettings(GraphSettings settings,
                                                           const GraphFields& fields) {
    for (const Number& number : {kXMax, kXMajor, kYMax, kYMajor}) {
        const std::optional<double> value = wholeNumberText(fields.*number.text);
        if (!value) return refusal("", number.text);
        settings.*number.value = *value;
    }
    for (const Number& number : {kXMax, kXMajor, kYMax, kYMajor}) {
        if (!(settings.*number.value > 0.0))
            return refusal("\n\nMaximum and major unit must be above 0.", number.text);
    }
    for (const auto& [end, step] : {std::pair{kXMax, kXMajor}, std::pair{kYMax, kYMajor}}) {
        if (isTooFine(settings, end, step))
            return refusal("\n\nThe major unit divides the axis into more than 100 steps.", step.text);
    }
    settings.settingsAdjusted = "Y";
    return settings;
}

}  // namespace norlaplan
