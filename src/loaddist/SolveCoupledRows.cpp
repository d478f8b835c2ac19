#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "loaddist/AssembleRows.h"
#include "loaddist/ContactConstants.h"
#include "loaddist/Matrix3.h"
#include "loaddist/SolveSetup.h"
#include "loaddist/radlodestar2.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"
#include "state/LoadEntry.h"
#include "state/Patience.h"

namespace norlaplan {
namespace {

constexpr double kTolerance = 0.00000001;
constexpr int kPassesBeforeTheQuestion = 10000;

void takeStyle(SolverState& state, const SolveArguments& arguments) {
    const char style = arguments.partNumber.size() > 6 ? arguments.partNumber[6] : ' ';
    state.StyleIsC = false;
    state.StyleIsX = style == 'X';
    state.StyleIsB = style == 'B';
    state.StyleIsF = style == 'F';
    state.ContactAngleDeg = arguments.contactAngleDegrees;
    state.ContactAngle = state.ContactAngleDeg * PiValue / 180.0;
    state.RowCount = 2;
    if (state.StyleIsX) {
        state.DiametralClearance = arguments.clearance;
        state.RatingFactor = 7080.0;
        return;
    }
    const double D = state.BallDiameter;
    const double conformities = state.OuterConformityPct + state.InnerConformityPct;
    state.GapDistance = arguments.clearance;
    if (state.ContactAngleDeg > 0.0) {
        state.DiametralClearance =
            ((1.0 - std::cos(state.ContactAngle)) * ((D + D) * (conformities - 100.0))) / 100.0;
    }
    state.RatingFactor = 6700.0;
    state.CenterlineSpacing = arguments.spacing;
}

/// The displacements from which the iteration starts.
void startIteration(SolverState& state) {
    const double alpha = state.ContactAngle;
    const double D = state.BallDiameter;
    const double Z = state.BallCount;
    const double Pd = state.DiametralClearance;
    const double Fr = state.RadialLoad;
    const double A0 = (((state.OuterConformityPct + state.InnerConformityPct) - 100.0) * D) / 100.0;
    state.BallSpacing = divide(TwoPiValue, Z);
    state.CentreDistance = A0;
    state.CentreRadius =
        (((state.InnerConformityPct - 50.0) / 100.0) * D) * std::cos(alpha) + state.PitchDiameter / 2.0;
    const double P = divide((A0 + A0) - Pd, A0 + A0);
    state.A0Cos = std::cos(alpha) * A0;
    state.A0Sin = std::sin(alpha) * A0;

    const double length = power(divide(state.AxialLoad, (Z * state.Kn) * std::sin(alpha)), kTwoThirds) + A0;
    state.AxialDisp = squareRoot(length * length - state.A0Cos * state.A0Cos) - state.A0Sin;
    if (state.GapDistance > 0.0 && (state.StyleIsB || state.StyleIsF)) {
        state.AxialDisp = state.GapDistance + state.AxialDisp;
    }
    double dr =
        power(divide(std::fabs(Fr) * 5.0, (P * P) * (Z * state.Kn)), kTwoThirds) * (1.0 / state.RowCount);
    if (Fr < 0.0) dr = -dr;
    if (Pd > 0.0) dr = Pd / 2.0 + dr;
    if (dr == 0.0) dr = 0.0001;
    state.RadialDisp = dr;
    state.Tilt = 0.0;
    state.Iteration = 1;
}

/// One Newton-Raphson step from the present displacements. True when it has converged: the present ones then
/// stay.
bool step(SolverState& state, const Assembly& assembly) {
    const Matrix3 inverse = InvertMatrix3(assembly.stiffness);
    const double axial = state.ForceAxialSum - state.AxialLoad;
    const double radial = state.ForceRadialSum - state.RadialLoad;
    const double moment = state.MomentSum - state.MomentLoad;
    // The moment's row is scaled by the arm that the last ball has left behind.
    const Vector3 b = {0.0, divide(axial, state.Kn), divide(radial, state.Kn),
                       divide(moment, (state.Kn * assembly.lastArm1) / 2.0)};
    const Vector3 c = MatrixVector3(inverse, b);
    const double da = checked(state.AxialDisp - c[1]);
    const double dr = checked(state.RadialDisp - c[2]);
    const double t = checked(state.Tilt - c[3]);
    int converged = 0;
    if (std::fabs(axial) < kTolerance || da == state.AxialDisp) ++converged;
    if (std::fabs(radial) < kTolerance || dr == state.RadialDisp) ++converged;
    if (std::fabs(moment) < kTolerance || t == state.Tilt) ++converged;
    if (converged >= 3) return true;
    state.AxialDisp = da;
    state.RadialDisp = dr;
    state.Tilt = t;
    return false;
}

/// Sees that an iteration goes round. Most of those that never converge come back to displacements that they
/// had before, to the bit, within a few thousand passes; as a pass depends on nothing else, they then go
/// round for ever.
class Rounds {
  public:
    /// The passes of a round that this pass has closed; 0 as long as none is known.
    int closedBy(const SolverState& state) {
        const std::array now = {std::bit_cast<std::uint64_t>(state.AxialDisp),
                                std::bit_cast<std::uint64_t>(state.RadialDisp),
                                std::bit_cast<std::uint64_t>(state.Tilt)};
        ++passes_;
        if (now == mark_) return passes_ - marked_;
        // The mark moves at powers of two (Brent's way), so a round of any length is met.
        if ((passes_ & (passes_ - 1)) == 0) {
            mark_ = now;
            marked_ = passes_;
        }
        return 0;
    }

  private:
    std::array<std::uint64_t, 3> mark_{};
    int passes_ = 0, marked_ = 0;
};

/// Leaves out the whole rounds that are still to go before the question: it is asked at the same count, on
/// the same displacements.
void skipRounds(SolverState& state, int round) {
    if (round == 0) return;
    const int left = kPassesBeforeTheQuestion - state.Iteration;
    state.Iteration = state.Iteration + left / round * round;
}

Message unstableMessage(const SolverState& state) {
    const char* title = "Please try a different bearing style";
    if (state.StyleIsF || state.StyleIsX) title = "Please try a Back-to-Back set";
    if (state.StyleIsB) title = "Please try a Four-Point Contact";
    return {title, "Unstable Bearing Configuration"};
}

/// A load of exactly 0 may be what makes the configuration unstable, so each becomes 1 for the next attempt.
void replaceZeroLoads(ProgramState& state) {
    const auto replace = [](Single& load, std::string& text) {
        if (load == 0.0) load = 1.0;
        text = plainText(load);
    };
    replace(state.loads.radialLoadDisplay, state.entries.radial);
    replace(state.loads.axialLoadDisplay, state.entries.axial);
    replace(state.loads.momentLoadDisplay, state.entries.moment);
    convertLoads(state);
}

/// The assembly under its trap; nothing for an unstable configuration.
std::optional<Assembly> tryAssembly(ProgramState& state, CoupledRows& rows, MessagePort& messages) {
    try {
        return AssembleRows(state.solver, rows);
    } catch (const RuntimeError& error) {
        if (error.number() != fault::kDivisionByZero) throw;
    }
    messages.show(unstableMessage(state.solver));
    state.solver.SolveAborted = true;
    replaceZeroLoads(state);
    return std::nullopt;
}

/// Asked at the ten thousandth pass. False when the user gives up.
bool goesOn(SolverState& state, MessagePort& messages) {
    const Message question{"Difficulty in solving this load case", "Do you want to keep trying?",
                           Icon::Question};
    if (messages.ask(question, Buttons::YesNo) != Answer::Yes) {
        state.SolveAborted = true;
        return false;
    }
    state.Iteration = 0;
    return true;
}

}  // namespace

std::optional<SolveResult> SolveCoupledRows(ProgramState& state, const SolveArguments& arguments,
                                            MessagePort& messages) {
    SolverState& solver = state.solver;
    takeArguments(solver, arguments);
    takeStyle(solver, arguments);
    ResetAnalysis(solver);
    solver.ForceZeroAngle = 0;
    ContactConstants(solver);
    startIteration(solver);
    CoupledRows rows(solver);
    Rounds rounds;
    Patience patience(messages);
    for (;;) {
        const std::optional<Assembly> assembly = tryAssembly(state, rows, messages);
        if (!assembly || solver.SolveAborted) return std::nullopt;
        // With tens of thousands of balls ten thousand passes take far longer than anybody waits.
        if (!patience.worked(solver.BallCount)) {
            solver.SolveAborted = true;
            return std::nullopt;
        }
        if (step(solver, *assembly)) break;
        solver.Iteration = solver.Iteration + 1;
        skipRounds(solver, rounds.closedBy(solver));
        if (solver.Iteration == kPassesBeforeTheQuestion && !goesOn(solver, messages)) return std::nullopt;
    }
    writeBallTables(solver, rows);
    return outValues(state);
}

}  // namespace norlaplan
