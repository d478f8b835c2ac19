#pragma once

#include "state/SearchRecords.h"

namespace norlaplan {

/// Sorts the rows by `sortColumn` (a `SortColumn`, error 9 for any other number) and `sortDirection` ("UP" or
/// "DOWN") and marks the list as one to be rebuilt from them. Names go by their letters, all else by its
/// value as a 32-bit float; rows with equal values keep their order. A sort by availability puts stock first,
/// "CALL" next and "NO" last when ascending, and leaves the stock texts as "YES ", "CALL " and "NO ".
void sortHits(SearchResults& results);

}  // namespace norlaplan
