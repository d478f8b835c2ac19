#pragma once

#include "screens/CopyTable.h"

class QStandardItemModel;

namespace norlaplan {

struct SolverState;

/// The balls of one row with what the last solve found of each. A click on a head sorts by its column and
/// turns the order on a second one; the keyboard does it by the space bar on a cell.
class BallGrid : public CopyTable {
  public:
    BallGrid(const char* name, const QString& spoken);

    /// Shows the balls of row 1 or 2 in their order. Nothing but the heads when no solve has converged.
    void showBalls(const SolverState& solver, int row);

    QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void addSortAction();
    void shareWidth();

    QStandardItemModel* model_;
};

}  // namespace norlaplan
