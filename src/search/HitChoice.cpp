#include "search/HitChoice.h"

#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr std::size_t kNumberLength = 10;  ///< of a set's part number; its spacers stand behind it

}  // namespace

bool hasSpacers(const std::string& searchStyleCaption) {
    return searchStyleCaption.ends_with("SPACERS");
}

std::optional<ChosenBearing> chosenHit(const ProgramState& state, int entry) {
    if (entry < 1 || static_cast<std::size_t>(entry) > state.search.rows.size()) return std::nullopt;
    const SearchHit& hit = state.search.rows[static_cast<std::size_t>(entry) - 1];
    const std::string unit = " " + state.units.lengthUnit;
    ChosenBearing chosen{trimmed(hit.name),
                         hit.name,
                         "Bore = " + hit.boreText + unit,
                         "O.D. = " + hit.odText + unit,
                         "Height = " + hit.heightText + unit,
                         ""};
    if (hasSpacers(state.style.searchStyleCaption)) {
        chosen.partNumber = hit.name.substr(0, 9) + "A";
        chosen.spacerHint = "   Data Sheet Available for                " + chosen.partNumber +
                            "                      without Spacers Only!";
    }
    return chosen;
}

int entryOf(const SearchResults& results, const std::string& name) {
    const std::string wanted = trimmed(name);
    if (wanted.empty()) return 0;
    const auto bearing = [](const std::string& text) { return trimmed(text.substr(0, kNumberLength)); };
    int same = 0, entry = 0;
    for (const SearchHit& hit : results.rows) {
        ++entry;
        if (trimmed(hit.name) == wanted) return entry;
        if (same == 0 && bearing(hit.name) == bearing(wanted)) same = entry;
    }
    return same;
}

}  // namespace norlaplan
