#pragma once

#include <functional>
#include <optional>

#include "loaddist/BallLoadGraph.h"
#include "screens/DrawingPane.h"

namespace norlaplan {

/// The graph of the ball loads. The ball under the pointer, or the one that the arrow keys have come to, is
/// marked and told.
class BallLoadPicture : public DrawingPane {
  public:
    using Told = std::function<void(const std::optional<ShownBall>&)>;

    BallLoadPicture(const char* name, const QString& tip, const SolverState& solver, Told told);

    /// Draws the loads anew, with no ball told. Errors as those of `drawBallLoads`; the graph is blank then.
    void showLoads(const BallLoadView& view);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void tell(const std::optional<ShownBall>& ball);
    /// The next ball of the row, or the same of the other row.
    void step(int balls, int row);

    const SolverState& solver_;
    Told told_;
    std::optional<BallLoadView> view_;  ///< none: there is nothing to show
    std::optional<ShownBall> ball_;
};

}  // namespace norlaplan
