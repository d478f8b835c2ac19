#pragma once

#include <optional>
#include <unordered_map>

#include "catalogue/CatalogueTable.h"
#include "numbers/Single.h"
#include "search/StopLatch.h"
#include "state/ProgramFolder.h"

namespace norlaplan {

/// The radial play of the standard precision by bore, for one search. The table is read as far as a bore
/// needs, and what was read is kept, so that a row costs the same however long the table is.
class ClearanceTable {
  public:
    ClearanceTable(const ProgramFolder& folder, StopLatch& watch) : folder_(folder), watch_(watch) {}

    /// The middle of the play band for a bore in inches; nothing when the table has no line for it. The first
    /// of two lines with the same bore serves. A search that is stopped meanwhile gets nothing. Errors as
    /// those of the table (53, 62).
    std::optional<Single> meanFor(Single bore);

  private:
    const ProgramFolder& folder_;
    StopLatch& watch_;
    std::optional<CatalogueTable> table_;
    std::unordered_map<float, Single> means_;
};

}  // namespace norlaplan
