#pragma once

#include "screens/CopyTable.h"
#include "state/SearchRecords.h"

namespace norlaplan {

/// The list of search results in columns. It shows a model filled by `fillHitModel`.
class HitTable : public CopyTable {
  public:
    explicit HitTable(const char* name);

    /// Shows the columns that there is something in, as wide as their texts. Those of a speed only with one.
    void layOutColumns(bool withSpeed);
    /// Marks the head of the column by which the rows are sorted, if they are.
    void showOrder(const SearchResults& results);

    QSize sizeHint() const override;
};

}  // namespace norlaplan
