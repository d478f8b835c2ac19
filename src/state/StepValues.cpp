#include "state/StepValues.h"

#include <algorithm>

#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "state/SearchQuestion.h"
#include "state/StyleTable.h"

namespace norlaplan {
namespace {

/// The short words of the units, for texts that must be read at a glance.
struct ShortUnits {
    const char *length, *load, *moment;
};

ShortUnits shortUnits(const ProgramState& state) {
    if (state.units.system == "METRIC") return {"mm", "N", "N-m"};
    return {"in", "lb", "in-lb"};
}

/// The value as it was entered, with commas between its thousands.
std::string grouped(Single value) {
    std::string text = plainText(value);
    const std::size_t first = text.front() == '-' ? 1 : 0;
    for (std::size_t place = std::min(text.find('.'), text.size()); place > first + 3;) {
        place -= 3;
        text.insert(place, 1, ',');
    }
    return text;
}

std::string inOneCase(const char* caption) {
    std::string text = lowerCase(caption);
    text.front() = *caption;
    return text;
}

void add(std::string& list, const std::string& part) {
    if (!list.empty()) list += ", ";
    list += part;
}

/// "5 to 9 in", or "13 mm" where both ends are the same.
std::string range(Single from, Single to, const char* unit) {
    const std::string end = plainText(to) + " " + unit;
    return from == to ? end : plainText(from) + " to " + end;
}

std::string styleName(const std::string& letter) {
    if (const StyleRow* const style = styleByLetter(letter)) return inOneCase(style->caption);
    if (letter == "A") return "Angular contact";
    if (letter == "T") return "Tandem pair";
    if (letter == "U") return "Universal ground";
    return "";
}

}  // namespace

std::string styleValue(const ProgramState& state) {
    const StyleRow* const style = styleByCaption(state.style.searchStyleCaption);
    return state.styleChosen && style != nullptr ? inOneCase(style->caption) : "";
}

std::string sizesValue(const ProgramState& state) {
    if (!state.sizesChosen) return "";
    const SearchCriteria& sizes = state.criteria;
    const char* const unit = shortUnits(state).length;
    return range(sizes.minBoreDisplay, sizes.maxOdDisplay, unit) + ", " +
           range(sizes.minHeightDisplay, sizes.maxHeightDisplay, unit) + " high";
}

std::string loadsValue(const ProgramState& state) {
    if (!state.loadsEntered) return "";
    const LoadCase& loads = state.loads;
    const ShortUnits units = shortUnits(state);
    std::string text;
    const auto addLoad = [&](Single load, const char* unit, const char* kind) {
        if (load != 0.0) add(text, grouped(load) + " " + unit + " " + kind);
    };
    addLoad(loads.radialLoadDisplay, units.load, "radial");
    addLoad(loads.axialLoadDisplay, units.load, "axial");
    addLoad(loads.momentLoadDisplay, units.moment, "moment");
    add(text, loads.speed == 0.0 ? "no speed" : grouped(loads.speed) + " rpm");
    return text;
}

std::string resultsValue(const ProgramState& state) {
    const SearchResults& results = state.search;
    if (results.rows.empty() || results.question != searchQuestion(state)) return "";
    const std::size_t found = results.rows.size();
    std::string text = found == 1 ? "1 bearing" : std::to_string(found) + " bearings";
    const bool chosen = std::any_of(results.rows.begin(), results.rows.end(),
                                    [&](const SearchHit& row) { return row.name == results.chosenName; });
    if (chosen) add(text, trimmed(results.chosenName) + " chosen");
    return text;
}

std::string bearingValue(const ProgramState& state) {
    const BearingSpec& bearing = state.bearing;
    if (!state.decoded.holds(bearing, state.units.system)) return "";
    const auto length = [&](Single inches) {
        return FormatNumber(inches * state.units.lengthFactor, state.units.lengthPicture);
    };
    return styleName(bearing.styleLetter) + ", " + length(bearing.bore) + " x " +
           length(bearing.outsideDiameter) + " x " + length(bearing.height) + " " + shortUnits(state).length;
}

std::string unitsValue(const ProgramState& state) {
    const ShortUnits units = shortUnits(state);
    return state.units.system + " units: " + units.length + ", " + units.load + ", " + units.moment;
}

}  // namespace norlaplan
