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
    kCheckColumn,
    kHitColumns
};

/// Fills the model from the rows of the state. Only the lines of freshly computed rows carry their over-speed
/// marks; the column of the marks has them always. With no speed there are no hours and no marks. Rows whose
/// life is not to be trusted blindly are marked by a sign before it and in the column of the checks, with the
/// sentences as tip.
void fillHitModel(QStandardItemModel& model, const ProgramState& state, bool fresh);

/// The sentences on how far the life of a row is to be trusted, one a line; empty as a rule.
QString checkSentencesOf(const SearchHit& hit);
/// Whether a row of the state has any.
bool hasChecks(const ProgramState& state);

/// The `SortColumn` that a column of the model shows; 0 for the line, the mark and the check.
int sortColumnOf(int column);
/// The column of the model that shows a `SortColumn`; -1 when there is none.
int columnSortedBy(int sortColumn);

}  // namespace norlaplan
