#include <map>
#include <vector>

#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/TextTable.h"
#include "documents/SearchReport.h"
#include "numbers/Text.h"
#include "search/HitLine.h"
#include "search/HitSort.h"
#include "search/SearchEngine.h"
#include "state/Patience.h"
#include "state/SizeEntry.h"
#include "state/StyleTable.h"

namespace norlaplan::cli {
namespace {

/// A search of the command line runs to its end.
class Uninterrupted : public SearchWatch {
  public:
    bool goOn(double) override { return true; }
};

void takeStyle(ProgramState& state, const std::string& caption) {
    const StyleRow* const style = styleByCaption(upperCase(caption));
    if (style == nullptr) {
        std::string known;
        for (const StyleRow& row : kStyles)
            known += std::string(known.empty() ? "" : ", ") + "\"" + row.caption + "\"";
        throw CommandError(ErrorKind::Usage, "Unknown style", "--style is one of " + known);
    }
    state.style = {style->caption, style->tableLetter};
    state.bearing.styleLetter = style->styleLetter;
}

void takeSizes(Session& session, const SearchOptions& options) {
    EntryTexts& texts = session.state().entries;
    texts.minBore = plainText(options.minBore);
    texts.maxOd = plainText(options.maxOd);
    texts.minHeight = plainText(options.minHeight);
    texts.maxHeight = plainText(options.maxHeight);
    refuse(enterSizes(session.state()));
}

void sort(SearchResults& results, const SearchOptions& options) {
    if (options.sort.empty()) return;
    static const std::map<std::string, int> kColumns = {{"bore", kSortByBore},
                                                        {"od", kSortByOd},
                                                        {"life", kSortByLife},
                                                        {"availability", kSortByAvailability}};
    results.sortColumn = kColumns.at(options.sort);
    results.sortDirection = options.descending ? "DOWN" : "UP";
    sortHits(results);
}

/// The list line of a row; after a sort it carries no over-speed mark.
std::string lineOf(const ProgramState& state, const SearchHit& hit) {
    return FormatHitLine(state, hit, state.search.sorted ? "" : overSpeedMark(state, hit));
}

}  // namespace

void runSearch(Session& session, const SearchOptions& options, const LoadOptions& loads) {
    takeStyle(session.state(), options.style);
    takeSizes(session, options);
    session.enter(loads);
    Uninterrupted watch;
    const SearchEnd end = RunBearingSearch(session.state(), session.folder(), session.messages(), watch);
    if (end == SearchEnd::NoneFound) session.failWithLastMessage();
    sort(session.state().search, options);
}

CommandResult searchCommand(Session& session, const SearchOptions& options, const LoadOptions& loads) {
    runSearch(session, options, loads);
    const ProgramState& state = session.state();
    CommandResult result;
    result.json["hitCount"] = static_cast<int>(state.search.rows.size());
    Json rows = Json::array();
    TextRows table = {{"Bearing", "Speed limit", "L10 (rev)", "L10 (h)", "Bore", "O.D.", "Height", "Stock"}};
    for (const SearchHit& hit : state.search.rows) {
        rows.push_back({{"name", hit.name},
                        {"speedLimit", hit.speedLimit},
                        {"l10Revolutions", hit.l10Revolutions},
                        {"l10Hours", hit.l10Hours},
                        {"boreText", hit.boreText},
                        {"odText", hit.odText},
                        {"heightText", hit.heightText},
                        {"stock", hit.stock},
                        {"line", lineOf(state, hit)},
                        {"checks", checkNames(hit.checks)}});
        table.push_back({hit.name, hit.speedLimit, hit.l10Revolutions, hit.l10Hours, hit.boreText, hit.odText,
                         hit.heightText, trimmed(hit.stock)});
    }
    result.json["rows"] = rows;
    result.text = textTable(table, true);
    for (const std::string& line : checkLines(state.search.rows, nameWithoutSpacers))
        result.text += line + "\n";
    return result;
}

}  // namespace norlaplan::cli
