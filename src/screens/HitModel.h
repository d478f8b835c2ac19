#pragma once

#include <QStandardItemModel>

#include "state/ProgramState.h"

class QTreeView;

namespace norlaplan {

/// The columns of the results model: the whole line for the drop-down list, then its parts.
enum HitColumn { kLineColumn, kNameColumn, kLifeColumn, kHoursColumn, kStockColumn, kMarkColumn };

/// Fills the model from the rows of the state. Only freshly computed rows carry their over-speed marks.
void fillHitModel(QStandardItemModel& model, const ProgramState& state, bool fresh);

/// Shows the model's parts as columns that stand in line.
void layOutHitTable(QTreeView& table, const ProgramState& state);

}  // namespace norlaplan
