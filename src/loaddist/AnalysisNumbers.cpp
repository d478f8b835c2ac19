#include "loaddist/AnalysisNumbers.h"

#include <cmath>
#include <limits>

#include "loaddist/AnalysisEntry.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

enum class Unit { Own, Millimetres, Newtons, NewtonMetres, Gigapascals };

constexpr double factorOf(Unit unit) {
    switch (unit) {
        case Unit::Millimetres:
            return companion::kMillimetres;
        case Unit::Newtons:
            return companion::kNewtons;
        case Unit::NewtonMetres:
            return companion::kNewtonMetres;
        case Unit::Gigapascals:
            return companion::kGigapascals;
        default:
            return 1.0;
    }
}

template <typename Value>
Value& in(ProgramState& state, Value SolverState::*field) {
    return state.solver.*field;
}
template <typename Value>
Value& in(ProgramState& state, Value AnalysisNotes::*field) {
    return state.analysis.*field;
}
template <typename Value>
const Value& in(const ProgramState& state, Value SolverState::*field) {
    return state.solver.*field;
}
template <typename Value>
const Value& in(const ProgramState& state, Value AnalysisNotes::*field) {
    return state.analysis.*field;
}

/// A number that its field alone is about.
template <auto Field, Unit unit = Unit::Own>
constexpr AnalysisNumber plain(const char* control) {
    return {control, [](const ProgramState& state) { return in(state, Field) * factorOf(unit); },
            [](ProgramState& state, double number) {
                // What is kept in 64 bits keeps to the range of the others: it shows in their fields.
                const double value = number / factorOf(unit);
                static_cast<void>(Single(value));
                in(state, Field) = value;
            },
            nullptr, unit == Unit::Own};
}

template <Unit unit = Unit::Own>
constexpr AnalysisNumber clearance(const char* control) {
    return {control,
            [](const ProgramState& state) { return state.solver.DiametralClearance * factorOf(unit); },
            [](ProgramState& state, double number) {
                editDiametralClearance(state.solver, number / factorOf(unit));
            },
            kClearancePicture, unit == Unit::Own};
}

template <Unit unit = Unit::Own>
constexpr AnalysisNumber spacing(const char* control) {
    return {control,
            [](const ProgramState& state) { return state.solver.CenterlineSpacing * factorOf(unit); },
            [](ProgramState& state, double number) {
                editCenterlineSpacing(state.solver, number / factorOf(unit), state.analysis.spacingNegative);
            },
            nullptr, unit == Unit::Own};
}

using Solver = SolverState;
using Notes = AnalysisNotes;

constexpr AnalysisNumber kNumbers[] = {
    plain<&Solver::BallDiameter>("Text1"),
    plain<&Solver::BallDiameter, Unit::Millimetres>("Text15"),
    plain<&Solver::PitchDiameter>("Text2"),
    plain<&Solver::PitchDiameter, Unit::Millimetres>("Text16"),
    {"Text3", [](const ProgramState& state) { return static_cast<double>(state.solver.BallCount); },
     [](ProgramState& state, double number) { editBallCount(state.solver, number); }, nullptr, true},
    {"Text4", [](const ProgramState& state) { return double{state.solver.ContactAngleDeg}; },
     [](ProgramState& state, double number) { editContactAngleDegrees(state.solver, number); }, kAnglePicture,
     true},
    {"Text17", [](const ProgramState& state) { return double{state.solver.ContactAngle}; },
     [](ProgramState& state, double number) { editContactAngleRadians(state.solver, number); }, kAnglePicture,
     false},
    plain<&Solver::InnerConformityPct>("Text5"),
    plain<&Solver::OuterConformityPct>("Text6"),
    clearance("Text43"),
    clearance<Unit::Millimetres>("Text44"),
    plain<&Solver::GapDistance>("Text13"),
    plain<&Solver::GapDistance, Unit::Millimetres>("Text45"),
    spacing("Text66"),
    spacing<Unit::Millimetres>("Text65"),
    plain<&Solver::RadialLoad>("Text14"),
    plain<&Solver::RadialLoad, Unit::Newtons>("Text20"),
    plain<&Solver::AxialLoad>("Text48"),
    plain<&Solver::AxialLoad, Unit::Newtons>("Text50"),
    plain<&Solver::MomentLoad>("Text49"),
    plain<&Solver::MomentLoad, Unit::NewtonMetres>("Text51"),
    plain<&Solver::InnerModulusMpsi>("Text8"),
    plain<&Solver::InnerModulusMpsi, Unit::Gigapascals>("Text18"),
    plain<&Solver::InnerPoisson>("Text9"),
    plain<&Solver::OuterModulusMpsi>("Text11"),
    plain<&Solver::OuterModulusMpsi, Unit::Gigapascals>("Text19"),
    plain<&Solver::OuterPoisson>("Text12"),
    plain<&Notes::startingFriction>("Text63"),
    plain<&Notes::runningFriction>("Text64"),
};

constexpr AnalysisText kTexts[] = {
    {"Text22", &Notes::partNumber},
    {"Text24", &Notes::date},
    {"Text7", &Notes::ballMaterial},
    {"Text10", &Notes::raceMaterial},
};

}  // namespace

std::span<const AnalysisNumber> analysisNumbers() {
    return kNumbers;
}

std::span<const AnalysisText> analysisTexts() {
    return kTexts;
}

std::string analysisText(const AnalysisNumber& number, const ProgramState& state, bool asGiven) {
    const double value = number.value(state);
    if (!asGiven && number.picture != nullptr) return FormatNumber(value, number.picture);
    const bool fits = std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max());
    return fits ? plainText(Single(value)) : plainText(value);
}

}  // namespace norlaplan
