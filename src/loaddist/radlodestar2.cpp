#include "loaddist/radlodestar2.h"

#include "loaddist/LifeAndStress.h"
#include "loaddist/SolveSetup.h"

namespace norlaplan {
namespace {

constexpr double kYoungMpsi = 29000000.0 / 1000000.0;
constexpr double kPoisson = 0.25;

}  // namespace

void ResetAnalysis(SolverState& state) {
    const int balls = state.BallCount;
    // A damaged table can count less than nothing.
    if (balls < 0) raise(fault::kSubscript);
    ++state.solveNumber;
    state.converged = false;
    state.solvedBalls = balls;
    for (BallTable<double>* const table :
         {&state.BallX, &state.BallY, &state.BallDist, &state.BallSinAngle, &state.BallCosAngle,
          &state.BallDeflection, &state.BallLoad, &state.BallRadialForce, &state.BallAxialForce}) {
        table->resize(balls);
    }
    state.BallAngleText.resize(balls);
    state.InnerStress.resize(balls);
    state.OuterStress.resize(balls);
    for (BallTable<Single>* const table :
         {&state.InnerSemiMajor, &state.InnerSemiMinor, &state.OuterSemiMajor, &state.OuterSemiMinor}) {
        table->resizeKeeping(balls);
    }
}

void takeArguments(SolverState& state, const SolveArguments& arguments) {
    state.BallDiameter = arguments.ballDiameter;
    state.PitchDiameter = arguments.pitchDiameter;
    state.BallCount = arguments.ballCount;
    const double conformity = divide(100.0 * arguments.grooveRadius, state.BallDiameter);
    state.InnerConformityPct = conformity;
    state.OuterConformityPct = conformity;
    state.RadialLoad = arguments.radialLoad;
    state.AxialLoad = arguments.axialLoad;
    state.MomentLoad = arguments.momentLoad;
    state.InnerModulusMpsi = kYoungMpsi;
    state.OuterModulusMpsi = kYoungMpsi;
    state.InnerPoisson = kPoisson;
    state.OuterPoisson = kPoisson;
}

SolveResult outValues(ProgramState& state) {
    SolverState& solver = state.solver;
    LifeAndStress(solver);
    solver.converged = true;
    double sum = 0.0;
    for (int row = 1; row <= solver.RowCount; ++row) {
        for (int ball = 1; ball <= solver.BallCount; ++ball)
            sum = sum + solver.BallLoad(row, ball);
    }
    SolveResult result;
    result.lifeRevolutions = solver.L10OuterRotationRow1;
    result.safetyFactor = solver.SafetyOuter < solver.SafetyInner ? solver.SafetyOuter : solver.SafetyInner;
    result.torque = ((sum * state.bearing.pitchDiameter) / 2.0) * state.life.torqueCoefficient;
    return result;
}

}  // namespace norlaplan
