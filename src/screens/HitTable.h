#pragma once

#include <QTreeView>

#include "state/SearchRecords.h"

namespace norlaplan {

/// The list of search results in columns: the arrow keys choose a row, Ctrl+C and the context menu copy the
/// whole table for a spreadsheet. It shows a model filled by `fillHitModel`.
class HitTable : public QTreeView {
  public:
    explicit HitTable(const char* name);

    /// Shows the columns that there is something in, as wide as their texts. Those of a speed only with one.
    void layOutColumns(bool withSpeed);
    /// Marks the head of the column by which the rows are sorted, if they are.
    void showOrder(const SearchResults& results);
    /// Heads and rows of the columns on show, with tabs between the cells and all digits of every number.
    QString tabSeparated() const;

    QSize sizeHint() const override;

  private:
    void copy() const;
    QList<int> shownColumns() const;
    /// The height with so many rows in sight.
    int heightFor(int rows) const;
};

}  // namespace norlaplan
