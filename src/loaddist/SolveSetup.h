#pragma once

#include "loaddist/radlodestar2.h"
#include "numbers/Arithmetic.h"

namespace norlaplan {

/// Puts the arguments that both solvers share into the solver's state.
void takeArguments(SolverState& state, const SolveArguments& arguments);

/// Life, stress and the three out values of a converged solve.
SolveResult outValues(ProgramState& state);

}  // namespace norlaplan
