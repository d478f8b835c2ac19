#include "search/HitSort.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "numbers/RuntimeError.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

/// The stock texts with the ranks that stand for them during a sort, and the texts that they turn back into.
struct StockRank {
    std::string_view beginning, rank, after;
};
constexpr StockRank kStockRanks[] = {{"YES", "0", "YES "}, {"NO", "2", "NO "}, {"CALL", "1", "CALL "}};

void stockToRanks(SearchResults& results) {
    for (SearchHit& hit : results.rows) {
        for (const StockRank& rank : kStockRanks) {
            if (hit.stock.starts_with(rank.beginning)) {
                hit.stock = rank.rank;
                break;
            }
        }
    }
}

void ranksToStock(SearchResults& results) {
    for (SearchHit& hit : results.rows) {
        for (const StockRank& rank : kStockRanks) {
            if (hit.stock == rank.rank) {
                hit.stock = rank.after;
                break;
            }
        }
    }
}

std::string SearchHit::*columnOf(int number) {
    constexpr std::array kColumns = {
        &SearchHit::name,     &SearchHit::speedLimit, &SearchHit::l10Revolutions, &SearchHit::l10Hours,
        &SearchHit::boreText, &SearchHit::odText,     &SearchHit::heightText,     &SearchHit::stock};
    if (number < kSortByName || number > kSortByAvailability) raise(fault::kSubscript);
    return kColumns[static_cast<std::size_t>(number) - 1];
}

}  // namespace

void sortHits(SearchResults& results) {
    const auto column = columnOf(results.sortColumn);
    const bool byStock = results.sortColumn == kSortByAvailability;
    if (byStock) stockToRanks(results);
    const auto value = [&](const SearchHit& hit) { return Single(leadingNumber(hit.*column)).stored(); };
    const bool byName = results.sortColumn == kSortByName;
    const auto less = [&](const SearchHit& a, const SearchHit& b) {
        return byName ? a.name < b.name : value(a) < value(b);
    };
    const bool up = results.sortDirection == "UP";
    // Exchanging wrong neighbours until none is left is a stable sort; this one gives the same rows sooner.
    std::stable_sort(results.rows.begin(), results.rows.end(),
                     [&](const SearchHit& a, const SearchHit& b) { return up ? less(a, b) : less(b, a); });
    if (byStock) ranksToStock(results);
    results.sorted = true;
    results.listOnlyFlag = true;
}

}  // namespace norlaplan
