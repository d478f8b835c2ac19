#pragma once

#include <memory>
#include <vector>

#include "loaddist/ContactBlock.h"
#include "loaddist/Matrix3.h"
#include "state/SolverState.h"

namespace norlaplan {

/// What one assembly gives beyond the sums in the state.
struct Assembly {
    Matrix3 stiffness{};    ///< derivative of the three sums over (axial, radial, tilt), divided by Kn
    double lastArm1 = 0.0;  ///< moment arm of row 1 at the last ball, inches
};

/// cos((i - 1) * spacing) for the balls i = 1..balls; index 0 stays empty.
std::vector<double> ballCosines(int balls, double spacing);

/// Two rows of balls through the passes of one solve: what displacements don't change, and the contacts of
/// the last assembly.
class CoupledRows {
  public:
    /// The balls and grooves of the state, whose `A0Cos`, `A0Sin` and `ArmOffset` it sets.
    explicit CoupledRows(SolverState& state);

    std::size_t balls() const { return cosines_.size() - 1; }
    const std::vector<double>& cosines() const { return cosines_; }
    /// The rows at the state's displacements.
    ContactRows at(const SolverState& state) const;
    /// So many that all balls have their place.
    std::size_t blockCount() const { return (balls() + ContactBlock::kBalls - 1) / ContactBlock::kBalls; }
    ContactBlock& block(std::size_t i) { return blocks_[i]; }

  private:
    std::vector<double> cosines_;
    ContactRows rest_;
    double y1_ = 0.0, y2_ = 0.0;
    std::unique_ptr<ContactBlock[]> blocks_;
};

/// For the present axial and radial displacement and tilt: the contacts of all balls in two rows, the three
/// force sums and the stiffness. Errors: 11 for an unstable configuration (a contact line without length or
/// axial part), 5 and 6 as the powers raise them.
Assembly AssembleRows(SolverState& state, CoupledRows& rows);

/// Contact lines, angles, deflections, loads and forces of every ball as the last assembly left them. A pass
/// needs only the balls that touch, a result all of them.
void writeBallTables(SolverState& state, CoupledRows& rows);

/// The contact angles of the last assembly as texts, "  N/A " for a ball that is out of touch. They are for
/// showing a result; a search that solves hundreds of rows goes without.
void writeBallAngles(SolverState& state);

}  // namespace norlaplan
