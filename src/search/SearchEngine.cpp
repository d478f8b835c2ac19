#include "search/SearchEngine.h"

#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "capacity/SolveAdvice.h"
#include "capacity/SpeedLimits.h"
#include "catalogue/CatalogueTable.h"
#include "catalogue/CodeTexts.h"
#include "catalogue/SpeedTables.h"
#include "catalogue/TableFaults.h"
#include "loaddist/ResultWarnings.h"
#include "loaddist/radlodestar2.h"
#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "search/ClearanceTable.h"
#include "search/HitChoice.h"
#include "search/SearchMessages.h"
#include "state/Patience.h"
#include "state/SearchQuestion.h"

namespace norlaplan {
namespace {

constexpr double kMillimetresPerInch = 25.4;
/// The tangent of 30 degrees, as it stands in the arm of a set.
constexpr double kTangent = 0.57735027;
/// The radial play that every set of angular contact bearings is taken with, inches.
constexpr double kSetClearance = 0.0005 / 2.0;

/// A cross-section of the catalogue.
struct Section {
    const char* prefix;
    double ballDiameter, raceRadius;
};
constexpr std::array<Section, 3> kSections = {
    {{"8-", 0.15625, 0.0828125}, {"13-", 0.25, 0.1325}, {"20-", 0.375, 0.19875}}};

/// A bearing's row in a section table.
struct SectionRow {
    std::string name;
    Int16 stockCode, speedIndex, ballCount;
    Single bore, outsideDiameter;
    std::vector<TableFault> faults;  ///< in what only a row that fits is used for
};

/// What a search works on: the style, sizes, loads and units of the program, and a bearing, a solver and a
/// life of its own. The bearing in hand and its results stay what they are, however the search ends.
ProgramState workingState(const ProgramState& state) {
    ProgramState work;
    work.unitSystem = state.unitSystem;
    work.units = state.units;
    work.style = state.style;
    work.criteria = state.criteria;
    work.loads = state.loads;
    work.life.l10Hours = state.search.lastHours;
    return work;
}

/// One search: what stays the same from row to row, and the row in hand.
class Search {
  public:
    Search(const ProgramState& state, const ProgramFolder& folder, MessagePort& messages, SearchWatch& watch)
        : state_(workingState(state)),
          tables_{folder, faults_},
          watch_(watch),
          messages_(messages, watch_),
          clearances_(tables_, watch_),
          letter_(state.style.searchStyleLetter),
          caption_(state.style.searchStyleCaption),
          entered_(state.loads) {}

    /// False when the watch has stopped it.
    bool run() {
        readSpeedNumbers();
        for (std::size_t pass = 0; pass < kSections.size(); ++pass) {
            if (!walk(pass)) return false;
        }
        return true;
    }

    std::vector<SearchHit> takeRows() { return std::move(rows_); }
    Single lastHours() const { return state_.life.l10Hours; }
    int givenUp() const { return givenUp_; }
    /// What is wrong in the tables as far as they were read.
    TableFaults& faults() { return faults_; }

  private:
    void readSpeedNumbers() {
        CatalogueTable table(tables_.folder, "SPEED" + letter_ + ".csv");
        const std::string key = letter_ == "A" ? "R" : "P";
        while (readSpeedLine(table, letter_, speeds_) != key)
            table.takeFaults();
        faults_.add(table.takeFaults());
    }

    bool walk(std::size_t pass) {
        const Section& section = kSections[pass];
        state_.bearing.ballDiameter = section.ballDiameter;
        state_.bearing.raceRadius = section.raceRadius;
        const std::string name = section.prefix + letter_ + ".CSV";
        CatalogueTable table(tables_.folder, name);
        table.skipFields(10);
        Single height;
        table.NextFields(height);
        faults_.add(table.takeFaults());
        table.skipFields(9);
        rowHeight_ = height / kMillimetresPerInch;
        while (!table.AtEnd()) {
            const int number = table.row();
            const SectionRow row = readRow(table);
            watch_.setDone((static_cast<double>(pass) + table.partRead()) / kSections.size());
            if (!watch_.goOn()) return false;
            if (!fits(row)) continue;
            if (!isNamedForItsTable(row.name)) {
                faults_.add({name, number, 1, row.name, "names no bearing of this table and is left out"});
                continue;
            }
            faults_.add(row.faults);
            takeRow(row);
            if (watch_.stopped()) return false;
        }
        return true;
    }

    SectionRow readRow(CatalogueTable& table) {
        SectionRow row;
        Single bore, outsideDiameter;
        table.NextFields(row.name, row.stockCode);
        row.faults = table.takeFaults();
        table.NextFields(bore, outsideDiameter);
        // Whether a row fits is asked of every row.
        faults_.add(table.takeFaults());
        table.skipFields(4);
        table.NextFields(row.speedIndex, row.ballCount);
        const std::vector<TableFault> ofRest = table.takeFaults();
        row.faults.insert(row.faults.end(), ofRest.begin(), ofRest.end());
        row.bore = bore / kMillimetresPerInch;
        row.outsideDiameter = outsideDiameter / kMillimetresPerInch;
        return row;
    }

    /// Whether the seventh character is a style that the table is for.
    bool isNamedForItsTable(const std::string& name) const {
        constexpr std::size_t kStylePlace = 6;
        return name.size() > kStylePlace && familyOf(name.substr(kStylePlace, 1)) == letter_;
    }

    bool fits(const SectionRow& row) const {
        const SearchCriteria& sizes = state_.criteria;
        if (row.bore < sizes.minBore || row.outsideDiameter > sizes.maxOd) return false;
        if (letter_ != "A") return rowHeight_ >= sizes.minHeight && rowHeight_ <= sizes.maxHeight;
        // Two rows must fit in the band; spacers take up what is left of it.
        const bool lowEnough = rowHeight_ <= sizes.maxHeight / 2.0;
        return hasSpacers(caption_) ? lowEnough : lowEnough && rowHeight_ >= sizes.minHeight / 2.0;
    }

    void takeRow(const SectionRow& row) {
        BearingSpec& bearing = state_.bearing;
        bearing.bore = row.bore;
        bearing.outsideDiameter = row.outsideDiameter;
        bearing.pitchDiameter = Single(row.outsideDiameter + row.bore) / 2.0;
        bearing.ballCount = row.ballCount;
        if (rows_.size() >= static_cast<std::size_t>(kMostHits)) raise(fault::kSubscript);

        SearchHit hit;
        describe(row, hit);
        const Single spacing = letter_ == "A" ? prepareSet(row, hit) : prepareSingle(row, hit);
        hit.checks = solve(hit.name, spacing);
        rate(row, hit);
        rows_.push_back(hit);
    }

    void describe(const SectionRow& row, SearchHit& hit) const {
        const UnitMode& units = state_.units;
        hit.boreText = FormatNumber(row.bore * units.lengthFactor, units.lengthPicture);
        hit.odText = FormatNumber(row.outsideDiameter * units.lengthFactor, units.lengthPicture);
        switch (row.stockCode) {
            case 0:
                hit.stock = "NO  ";
                break;
            case 1:
                hit.stock = "YES ";
                break;
            case 2:
                hit.stock = "CALL";
                break;
            default:
                break;
        }
    }

    /// Gives the spacing.
    Single prepareSingle(const SectionRow& row, SearchHit& hit) {
        const UnitMode& units = state_.units;
        hit.name = row.name;
        hit.heightText = FormatNumber(rowHeight_ * units.lengthFactor, units.lengthPicture);
        state_.bearing.momentArm = state_.bearing.pitchDiameter;
        if (const auto mean = clearances_.meanFor(row.bore)) state_.bearing.meanClearance = *mean;
        return 0.0;
    }

    /// Gives the spacing of the two rows.
    Single prepareSet(const SectionRow& row, SearchHit& hit) {
        const UnitMode& units = state_.units;
        const bool spacers = hasSpacers(caption_);
        const bool backToBack = caption_.starts_with("BACK");
        const double height = rowHeight_;
        const Single spacerSpan = spacers ? state_.criteria.maxHeight - height : height;
        const double shownHeight =
            spacers ? double{state_.criteria.maxHeightDisplay} : 2.0 * height * units.lengthFactor;
        hit.heightText = FormatNumber(shownHeight, units.lengthPicture);
        hit.name = row.name.substr(0, 6) + (backToBack ? "BR0A" : "FR0A");
        if (spacers) {
            const double width = (spacerSpan - rowHeight_) * units.lengthFactor;
            hit.name += " W/ " + FormatNumber(width, units.lengthPicture) + " spacers";
        }
        const double offset = spacerSpan / kTangent;
        const double pitch = state_.bearing.pitchDiameter;
        if (backToBack) {
            state_.bearing.momentArm = pitch + offset;
        } else if (pitch != offset) {
            state_.bearing.momentArm = std::fabs(pitch - offset);
        }
        state_.bearing.meanClearance = kSetClearance;
        return std::fabs(spacerSpan);
    }

    /// Each row is a solve of its own: one that is given up or unstable has the life 0 and leaves the loads
    /// alone. Gives how far the life is to be trusted.
    LifeChecks solve(const std::string& name, Single spacing) {
        const BearingSpec& bearing = state_.bearing;
        const SolveArguments arguments{letter_ == "A" ? name.substr(0, 10) : name,
                                       bearing.pitchDiameter,
                                       bearing.ballDiameter,
                                       bearing.ballCount,
                                       bearing.raceRadius,
                                       spacing,
                                       bearing.meanClearance,
                                       30.0,
                                       state_.loads.radialLoad,
                                       state_.loads.axialLoad,
                                       state_.loads.momentLoad};
        state_.solver.SolveAborted = false;
        const int refusals = messages_.refusals();
        bool ended = false;
        LifeChecks checks;
        state_.life.l10Revolutions = 0.0;
        try {
            const auto result =
                solveWithAdvice(letter_ == "C", entered_, [&]() -> std::optional<SolveResult> {
                    if (letter_ == "C") return SolveRadialRow(state_, arguments, messages_);
                    return SolveCoupledRows(state_, arguments, messages_);
                });
            if (result) {
                state_.life.l10Revolutions = result->lifeRevolutions;
                checks = lifeChecks(state_.solver);
            }
        } catch (const NotConverging&) {
            ended = true;
            state_.solver.SolveAborted = true;
        }
        if (ended || messages_.refusals() > refusals) ++givenUp_;
        state_.loads = entered_;
        return checks;
    }

    void rate(const SectionRow& row, SearchHit& hit) {
        LifeResult& life = state_.life;
        const bool noLife = state_.solver.SolveAborted || (letter_ == "A" && life.l10Revolutions == 0.0);
        if (!noLife) {
            state_.bearing.loadPercent = divide(100.0, power(life.l10Revolutions / 1000000.0, kOneThird));
        }
        if (state_.loads.speed > 0.0) life.l10Hours = life.l10Revolutions / (state_.loads.speed * 60.0);
        state_.bearing.speedFactor = loadLevelFactor(state_.bearing.loadPercent);
        const double number = speedNumber(row.speedIndex);
        hit.speedLimit =
            plainText(Int(divide(state_.bearing.speedFactor * number * 1000.0, state_.bearing.bore)));
        hit.l10Revolutions = plainText(Single(Int(life.l10Revolutions)));
        hit.l10Hours = plainText(Single(Int(life.l10Hours)));
    }

    double speedNumber(int column) const {
        // The first four numbers: grease, standard precision.
        if (column < 1 || column > 4) raise(fault::kSubscript);
        const LoadCase& loads = state_.loads;
        const bool pureThrust = loads.axialLoad != 0.0 && loads.radialLoad == 0.0 && loads.momentLoad == 0.0;
        const auto& numbers = letter_ == "X" && pureThrust ? speeds_.thrust : speeds_.other;
        return numbers[static_cast<std::size_t>(column) - 1];
    }

    ProgramState state_;
    TableFaults faults_;
    const CatalogueSource tables_;
    StopLatch watch_;
    SearchMessages messages_;
    ClearanceTable clearances_;
    const std::string letter_, caption_;
    const LoadCase entered_;
    SpeedLine speeds_;
    Single rowHeight_;
    std::vector<SearchHit> rows_;
    int givenUp_ = 0;
};

void forgetRows(SearchResults& results) {
    results.rows.clear();
    results.hitCount = 1;
    results.sorted = false;
}

Message givenUpMessage(int rows) {
    const std::string which = rows == 1 ? "1 bearing was" : std::to_string(rows) + " bearings were";
    return {NotConverging::title(), which + " given up and stand in the list with the life 0."};
}

}  // namespace

SearchEnd RunBearingSearch(ProgramState& state, const ProgramFolder& folder, MessagePort& messages,
                           SearchWatch& watch) {
    forgetRows(state.search);
    Search search(state, folder, messages, watch);
    try {
        if (!search.run()) return SearchEnd::Stopped;
    } catch (...) {
        search.faults().tell(messages);
        throw;
    }
    search.faults().tell(messages);
    state.search.rows = search.takeRows();
    state.search.hitCount = static_cast<int>(state.search.rows.size()) + 1;
    state.search.lastHours = search.lastHours();
    state.search.question = searchQuestion(state);
    if (search.givenUp() > 0) messages.show(givenUpMessage(search.givenUp()));
    if (!state.search.rows.empty()) return SearchEnd::Found;
    messages.show({"SEARCH PARAMETERS OUTSIDE OF SIZE RANGE",
                   "SORRY, NO BEARINGS WERE FOUND WHICH MET THE SIZE REQUIREMENTS"});
    state.search.noResultFlag = true;
    state.sizesChosen = false;
    return SearchEnd::NoneFound;
}

}  // namespace norlaplan
