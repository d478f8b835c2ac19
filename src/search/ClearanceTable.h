#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "catalogue/CatalogueTable.h"
#include "catalogue/TableFaults.h"
#include "numbers/Single.h"
#include "search/StopLatch.h"

namespace norlaplan {

/// The radial play of the standard precision by bore, for one search. The table is read as far as a bore
/// needs, and what was read is kept, so that a row costs the same however long the table is.
class ClearanceTable {
  public:
    ClearanceTable(const CatalogueSource& source, StopLatch& watch) : source_(source), watch_(watch) {}

    /// The middle of the play band for a bore in inches; nothing when the table has no line for it. The first
    /// of two lines with the same bore serves. A search that is stopped meanwhile gets nothing. What is no
    /// number in that line is noted, and among the bores where there is no line. Errors as those of the table
    /// (53, 62).
    std::optional<Single> meanFor(Single bore);

  private:
    void readLine();

    struct Line {
        Single mean;
        std::vector<TableFault> faults;
    };

    const CatalogueSource source_;
    StopLatch& watch_;
    std::optional<CatalogueTable> table_;
    std::unordered_map<float, Line> lines_;
    std::vector<TableFault> boreFaults_;
};

}  // namespace norlaplan
