#pragma once

#include <string>
#include <vector>

#include "state/LifeChecks.h"
#include "state/SolverState.h"

namespace norlaplan {

/// What the user must know before trusting the life of the last solve; usually nothing.
///
/// Balance: a force or moment sum that is away from its load by more than 0.1 % of the largest load; moments
/// count as the force at half the pitch diameter, signs as the solver's own. With no load at all there is
/// nothing to compare with. A sum stays away when the iteration ends because its steps no longer change the
/// displacements.
///
/// Rows: the life that is shown is that of row 1 with the outer race turning. Where the second row carries
/// load and its life under the same rotation is shorter, that is told with its revolutions.
LifeChecks lifeChecks(const SolverState& solver);

/// The same, one sentence each.
std::vector<std::string> resultWarnings(const SolverState& solver);

}  // namespace norlaplan
