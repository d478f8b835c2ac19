#include "loaddist/ResultWarnings.h"

#include <algorithm>
#include <cmath>

#include "numbers/Arithmetic.h"

namespace norlaplan {
namespace {

constexpr double kAllowedShare = 0.001;

bool isBalanced(const SolverState& solver) {
    const double arm = solver.PitchDiameter / 2.0;
    const double largest = std::max({std::fabs(solver.RadialLoad), std::fabs(solver.AxialLoad),
                                     divide(std::fabs(solver.MomentLoad), arm)});
    if (largest == 0.0) return true;
    const double away = std::max({std::fabs(solver.ForceRadialSum - solver.RadialLoad),
                                  std::fabs(solver.ForceAxialSum - solver.AxialLoad),
                                  divide(std::fabs(solver.MomentSum - solver.MomentLoad), arm)});
    return away <= kAllowedShare * largest;
}

bool secondRowIsShorter(const SolverState& solver) {
    // A second row without load keeps the life of an earlier solve.
    if (solver.RowCount == 1 || solver.RmcRow2 == 0.0) return false;
    return solver.L10OuterRotationRow2 < solver.L10OuterRotationRow1;
}

}  // namespace

LifeChecks lifeChecks(const SolverState& solver) {
    LifeChecks checks;
    checks.unbalanced = !isBalanced(solver);
    if (secondRowIsShorter(solver)) checks.shorterRowLife = solver.L10OuterRotationRow2;
    return checks;
}

std::vector<std::string> resultWarnings(const SolverState& solver) {
    return checkSentences(lifeChecks(solver));
}

}  // namespace norlaplan
