#pragma once

#include "state/SearchRecords.h"

namespace norlaplan {

/// The columns that a list can be sorted by, with their numbers in a row.
enum SortColumn { kSortByLife = 3, kSortByBore = 5, kSortByOd = 6, kSortByAvailability = 8 };

/// Sorts the rows by `sortColumn` and `sortDirection` ("UP" or "DOWN") and marks the list as one to be
/// rebuilt from them. Rows with equal values keep their order. A sort by availability puts stock first,
/// "CALL" next and "NO" last when ascending, and leaves the stock texts as "YES ", "CALL " and "NO ".
void sortHits(SearchResults& results);

}  // namespace norlaplan
