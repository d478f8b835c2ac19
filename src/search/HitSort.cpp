#include "search/HitSort.h"

#include <algorithm>
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
    switch (number) {
        case kSortByLife:
            return &SearchHit::l10Revolutions;
        case kSortByBore:
            return &SearchHit::boreText;
        case kSortByOd:
            return &SearchHit::odText;
        case kSortByAvailability:
            return &SearchHit::stock;
        default:
            raise(fault::kSubscript);
    }
}

}  // namespace

void sortHits(SearchResults& results) {
    const auto column = columnOf(results.sortColumn);
    const bool byStock = results.sortColumn == kSortByAvailability;
    if (byStock) stockToRanks(results);
    const auto value = [&](const SearchHit& hit) { return Single(leadingNumber(hit.*column)).stored(); };
    const bool up = results.sortDirection == "UP";
    // Exchanging wrong neighbours until none is left is a stable sort; this one gives the same rows sooner.
    std::stable_sort(results.rows.begin(), results.rows.end(), [&](const SearchHit& a, const SearchHit& b) {
        return up ? value(a) < value(b) : value(a) > value(b);
    });
    if (byStock) ranksToStock(results);
    results.sorted = true;
    results.listOnlyFlag = true;
}

}  // namespace norlaplan
