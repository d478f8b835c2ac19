#pragma once

#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

/// The language of the table of controls: what a row says, and the scenes in which it says it.
namespace norlaplan::testing {

/// What is so in a scene: "speed", "FAX COVER", "K19013XP0". Its unit system is one of them.
using Facts = std::set<std::string>;

enum class Units { Us, Metric, Both };
inline constexpr Units kUs = Units::Us, kMetric = Units::Metric, kBoth = Units::Both;

/// Whether the words of a row are laid down with the control or are the program's own, free to be bettered.
enum class Origin { Stated, OwnTip, OwnText, Own };
inline constexpr Origin kStated = Origin::Stated, kOwnTip = Origin::OwnTip, kOwnText = Origin::OwnText,
                        kOwn = Origin::Own;

/// The text of a value that a calculation gives or leaves out.
inline constexpr const char* kAnyText = nullptr;

/// A condition that is met in no scene.
inline constexpr const char* kNever = "never";

/// One control of a form under one condition. A condition names facts that are all to be so: "speed & !C" is
/// a scene with a speed and without C; an empty one is always met. A control with several rows has at most
/// one of them met in a scene; with none met it is hidden.
struct ControlRow {
    const char* form;
    /// The object name. A form's own name stands for its window, "File > Sendto > mail" for an item of a
    /// menu.
    const char* control;
    /// What it shows; '~' stands for a number and '*' for any words that aren't empty.
    const char* text;
    const char* tip = "";
    Units units = kBoth;
    const char* shownWhen = "";
    Origin origin = kStated;
    const char* enabledWhen = "";
    const char* markedWhen = nullptr;  ///< of an option, a check box or a picture that is chosen
};

/// What leads from the start screen to a form, as a user goes.
class Visitor;
struct Scene {
    std::string name;
    const char* form;
    std::vector<std::string> keywords;  ///< lines of Extras.txt; facts of the scene as well
    Facts facts;
    std::function<void(Visitor&)> route;
};

/// The rows and scenes of one form or of a few that belong together.
struct ControlTable {
    std::span<const ControlRow> rows;
    std::vector<Scene> scenes;
};

struct Term {
    std::string fact;
    bool wanted;
};

inline std::vector<Term> termsOf(const std::string& condition) {
    std::vector<Term> terms;
    const std::string between = " & ";
    for (std::size_t from = 0; from < condition.size();) {
        const std::size_t end = std::min(condition.find(between, from), condition.size());
        const bool wanted = condition[from] != '!';
        const std::size_t start = wanted ? from : from + 1;
        terms.push_back({condition.substr(start, end - start), wanted});
        from = end + between.size();
    }
    return terms;
}

inline bool holds(const std::string& condition, const Facts& facts) {
    for (const Term& term : termsOf(condition)) {
        if (facts.contains(term.fact) != term.wanted) return false;
    }
    return true;
}

inline Facts factsOf(const Scene& scene, const std::string& system) {
    Facts facts = scene.facts;
    facts.insert(scene.keywords.begin(), scene.keywords.end());
    facts.insert(system);
    return facts;
}

/// Whether the row is to be seen where these facts are so.
inline bool applies(const ControlRow& row, const Facts& facts) {
    if (row.units != kBoth && !facts.contains(row.units == kUs ? "US" : "METRIC")) return false;
    return holds(row.shownWhen, facts);
}

}  // namespace norlaplan::testing
