#pragma once

#include "screens/CopyTable.h"
#include "state/SearchRecords.h"

namespace norlaplan {

/// The list of search results in columns. It shows a model filled by `fillHitModel`.
class HitTable : public CopyTable {
  public:
    explicit HitTable(const char* name);

    /// Shows the columns that there is something in, as wide as their texts: those of a speed only with one,
    /// that of the checks only with marks in it.
    void layOutColumns(bool withSpeed, bool withChecks);
    /// Marks the head of the column by which the rows are sorted, if they are.
    void showOrder(const SearchResults& results);

    QSize sizeHint() const override;
};

}  // namespace norlaplan
