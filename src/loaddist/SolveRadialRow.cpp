#include <cmath>
#include <vector>

#include "loaddist/AssembleRows.h"
#include "loaddist/ContactConstants.h"
#include "loaddist/SolveSetup.h"
#include "loaddist/radlodestar2.h"
#include "numbers/ExactPowers.h"
#include "numbers/PiValue.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

constexpr double kTolerance = 0.000001;

void prepare(SolverState& state, const SolveArguments& arguments) {
    takeArguments(state, arguments);
    state.RatingFactor = 7080.0;
    state.RowCount = 1;
    state.StyleIsX = false;
    state.StyleIsB = false;
    state.StyleIsF = false;
    state.StyleIsC = true;
    state.ContactAngleDeg = 0.0;
    state.ContactAngle = 0.0;
    state.DiametralClearance = arguments.clearance;
    state.AxialLoad = 0.0;
    state.MomentLoad = 0.0;
    ResetAnalysis(state);
    state.ForceZeroAngle = 1;
    ContactConstants(state);
    state.ForceZeroAngle = 0;
}

/// Sum of the balls' radial forces and its derivative at the displacement u.
struct Sums {
    double force = 0.0, derivative = 0.0;
};

Sums loadBalls(SolverState& state, const std::vector<double>& cosines, double u) {
    const double c = state.DiametralClearance;
    Sums sums;
    for (int i = 1; i <= state.BallCount; ++i) {
        const double cosine = cosines[static_cast<std::size_t>(i)];
        double delta = u * cosine - c / 2.0;
        if (delta < 0.0) delta = 0.0;
        state.BallDeflection(1, i) = delta;
        // Most balls of a bearing carry nothing; their terms are zero without the powers.
        const double Q = delta > 0.0 ? powerThreeHalves(delta) * state.Kn : 0.0;
        state.BallLoad(1, i) = Q;
        state.BallRadialForce(1, i) = cosine * Q;
        const double stiffness = (state.Kn * 1.5) * (cosine * cosine) * std::sqrt(delta);
        sums.force = cosine * Q + sums.force;
        sums.derivative = sums.derivative + stiffness;
    }
    checked(sums.force);
    checked(sums.derivative);
    return sums;
}

/// The search for the displacement at which the balls carry the load.
struct RadialSearch {
    double u = 0.0, lower = 0.0, upper = 1.0, previous = 0.0, sign = 0.0;
    bool bisecting = false;
    Single count = 0.0;
};

RadialSearch startSearch(const SolverState& state) {
    const double c = state.DiametralClearance;
    const double F = state.RadialLoad;
    RadialSearch search;
    search.u = power(divide(F * 5.0, state.BallCount * state.Kn), kTwoThirds) / 2.0;
    search.sign = -F;
    if (c > 0.0) {
        search.u = power(divide(F * 5.0, state.BallCount * state.Kn), kTwoThirds) + c / 2.0;
        search.lower = c / 2.0;
    }
    search.previous = search.u + 0.00001;
    if (F == 0.0) search.u = 0.0;
    return search;
}

void bisect(RadialSearch& search, double residual) {
    if (residual * search.sign > 0.0) {
        search.lower = search.u;
    } else {
        search.upper = search.u;
    }
    search.previous = search.u;
    search.u = (search.upper + search.lower) / 2.0;
    search.count = search.count + 1.0;
}

/// One Newton step. False when the step no longer changes the displacement.
bool newtonStep(RadialSearch& search, const Sums& sums, double residual) {
    if (sums.force < 0.0 || search.count > 25.0) {
        search.bisecting = true;
        search.u = search.previous + 0.000001;
        return true;
    }
    search.previous = search.u;
    search.u = search.u - divide(residual, sums.derivative);
    if (search.previous == search.u) return false;
    search.count = search.count + 1.0;
    return true;
}

}  // namespace

SolveResult SolveRadialRow(ProgramState& state, const SolveArguments& arguments, MessagePort& messages) {
    SolverState& solver = state.solver;
    prepare(solver, arguments);
    const double F = solver.RadialLoad;
    solver.BallSpacing = divide(TwoPiValue, solver.BallCount);
    const std::vector<double> cosines = ballCosines(solver.BallCount, solver.BallSpacing);
    RadialSearch search = startSearch(solver);
    Patience patience(messages);
    patience.begin();
    Sums sums;
    for (;;) {
        sums = loadBalls(solver, cosines, search.u);
        const double residual = sums.force - F;
        if (std::fabs(residual) < kTolerance) break;
        if (search.bisecting) {
            bisect(search, residual);
            // The count goes on for ever; what decides the next pass is the bracket alone.
            patience.pass({search.u, search.lower, search.upper});
        } else if (!newtonStep(search, sums, residual)) {
            break;
        }
    }
    solver.Iteration = static_cast<double>(search.count);
    solver.AxialDisp = 0.0;
    solver.RadialDisp = search.u;
    solver.Tilt = 0.0;
    solver.ForceAxialSum = 0.0;
    solver.ForceRadialSum = sums.force;
    solver.MomentSum = 0.0;
    return outValues(state);
}

}  // namespace norlaplan
