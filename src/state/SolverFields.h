#pragma once

#include "state/SolverState.h"

namespace norlaplan {

/// Calls `visit(name, value)` for the solver's state that a result shows, in the order of the calculation.
template <typename Visit>
void visitSolver(const SolverState& solver, Visit visit) {
#define NORLAPLAN_FIELD(name) visit(#name, solver.name)
    NORLAPLAN_FIELD(ElasticSum);
    NORLAPLAN_FIELD(Kn);
    NORLAPLAN_FIELD(CiCo);
    NORLAPLAN_FIELD(InnerKappa);
    NORLAPLAN_FIELD(OuterKappa);
    NORLAPLAN_FIELD(InnerKappaSq);
    NORLAPLAN_FIELD(OuterKappaSq);
    NORLAPLAN_FIELD(InnerE);
    NORLAPLAN_FIELD(OuterE);
    NORLAPLAN_FIELD(InnerK);
    NORLAPLAN_FIELD(OuterK);
    NORLAPLAN_FIELD(InnerCurvatureSum);
    NORLAPLAN_FIELD(OuterCurvatureSum);
    NORLAPLAN_FIELD(AxialDisp);
    NORLAPLAN_FIELD(RadialDisp);
    NORLAPLAN_FIELD(Tilt);
    NORLAPLAN_FIELD(ForceAxialSum);
    NORLAPLAN_FIELD(ForceRadialSum);
    NORLAPLAN_FIELD(MomentSum);
    NORLAPLAN_FIELD(Iteration);
    NORLAPLAN_FIELD(InnerEllipseFactor);
    NORLAPLAN_FIELD(OuterEllipseFactor);
    NORLAPLAN_FIELD(RmcRow1);
    NORLAPLAN_FIELD(RmcRow2);
    NORLAPLAN_FIELD(RmcRow1Newtons);
    NORLAPLAN_FIELD(RmcRow2Newtons);
    NORLAPLAN_FIELD(MeanRow1);
    NORLAPLAN_FIELD(MeanRow2);
    NORLAPLAN_FIELD(DynamicExponent);
    NORLAPLAN_FIELD(GeometryRatio);
    NORLAPLAN_FIELD(InnerDynamicCapacity);
    NORLAPLAN_FIELD(OuterDynamicCapacity);
    NORLAPLAN_FIELD(L10InnerRotationRow1);
    NORLAPLAN_FIELD(L10InnerRotationRow2);
    NORLAPLAN_FIELD(L10OuterRotationRow1);
    NORLAPLAN_FIELD(L10OuterRotationRow2);
    NORLAPLAN_FIELD(StressLimit);
    NORLAPLAN_FIELD(InnerStaticCapacity);
    NORLAPLAN_FIELD(OuterStaticCapacity);
    NORLAPLAN_FIELD(InnerStaticCapacityNewtons);
    NORLAPLAN_FIELD(OuterStaticCapacityNewtons);
    NORLAPLAN_FIELD(MaxBallLoad);
    NORLAPLAN_FIELD(MaxBallLoadNewtons);
    NORLAPLAN_FIELD(MaxBallRow);
    NORLAPLAN_FIELD(MaxBallNumber);
    NORLAPLAN_FIELD(SafetyInner);
    NORLAPLAN_FIELD(SafetyOuter);
    NORLAPLAN_FIELD(MaxInnerStress);
    NORLAPLAN_FIELD(MaxOuterStress);
    NORLAPLAN_FIELD(MeanInnerStress);
    NORLAPLAN_FIELD(MeanOuterStress);
    NORLAPLAN_FIELD(MaxInnerStressMpa);
    NORLAPLAN_FIELD(MaxOuterStressMpa);
    NORLAPLAN_FIELD(MeanInnerStressMpa);
    NORLAPLAN_FIELD(MeanOuterStressMpa);
    NORLAPLAN_FIELD(InnerMajorAxis);
    NORLAPLAN_FIELD(OuterMajorAxis);
    NORLAPLAN_FIELD(InnerMinorAxis);
    NORLAPLAN_FIELD(OuterMinorAxis);
    NORLAPLAN_FIELD(InnerMajorAxisMm);
    NORLAPLAN_FIELD(OuterMajorAxisMm);
    NORLAPLAN_FIELD(InnerMinorAxisMm);
    NORLAPLAN_FIELD(OuterMinorAxisMm);
#undef NORLAPLAN_FIELD
}

/// The same for one ball of one row.
template <typename Visit>
void visitBall(const SolverState& solver, int row, int ball, Visit visit) {
#define NORLAPLAN_FIELD(name) visit(#name, solver.name(row, ball))
    NORLAPLAN_FIELD(BallDeflection);
    NORLAPLAN_FIELD(BallLoad);
    NORLAPLAN_FIELD(BallAngleText);
    NORLAPLAN_FIELD(InnerStress);
    NORLAPLAN_FIELD(OuterStress);
    NORLAPLAN_FIELD(InnerSemiMajor);
    NORLAPLAN_FIELD(InnerSemiMinor);
    NORLAPLAN_FIELD(OuterSemiMajor);
    NORLAPLAN_FIELD(OuterSemiMinor);
#undef NORLAPLAN_FIELD
}

}  // namespace norlaplan
