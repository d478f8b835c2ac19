#pragma once

#include "capacity/LoadLife.h"
#include "cli/Session.h"

namespace norlaplan::cli {

/// Decodes the number, enters the loads and runs the load-life calculation, as the screens do one after the
/// other. The reasons not to trust the result become warnings of the session. Errors: `CommandError` with the
/// program's message; run-time errors of the calculation.
void calculateLife(Session& session, const PartNumberOption& number, const LoadOptions& loads);

/// The same for the bearing that is decoded already.
void calculateLifeOfDecoded(Session& session, const LoadOptions& loads,
                            BallAngles angles = BallAngles::Written);

}  // namespace norlaplan::cli
