#pragma once

#include <QStandardItemModel>

#include "screens/CopyTable.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// The columns of the results model: the whole line for the drop-down list, then what a row says, one by one.
enum HitColumn {
    kLineColumn,
    kNameColumn,
    kBoreColumn,
    kOdColumn,
    kHeightColumn,
    kLifeColumn,
    kHoursColumn,
    kLimitSpeedColumn,
    kStockColumn,
    kMarkColumn,
    kHitColumns
};

/// Fills the model from the rows of the state. Only the lines of freshly computed rows carry their over-speed
/// marks; the column of the marks has them always. With no speed there are no hours and no marks.
void fillHitModel(QStandardItemModel& model, const ProgramState& state, bool fresh);

/// The `SortColumn` that a column of the model shows; 0 for the line and the mark.
int sortColumnOf(int column);
/// The column of the model that shows a `SortColumn`; -1 when there is none.
int columnSortedBy(int sortColumn);

}  // namespace norlaplan
