#pragma once

#include <QTreeView>

namespace norlaplan {

/// What a cell of a table gives to other programs: a number with all the digits that it has, ungrouped.
constexpr int kPlainTextRole = Qt::UserRole;

/// A table in columns, for looking at: the arrow keys choose a row, Ctrl+C and the context menu copy the
/// whole table for a spreadsheet, as it is sorted.
class CopyTable : public QTreeView {
  public:
    CopyTable(const char* name, const QString& spoken);

    /// Heads and rows of the columns on show, with tabs between the cells and the plain texts of the numbers.
    QString tabSeparated() const;

  protected:
    QList<int> shownColumns() const;
    /// The height with so many rows in sight, under a head of two lines.
    int heightFor(int rows) const;

  private:
    void copy() const;
};

}  // namespace norlaplan
