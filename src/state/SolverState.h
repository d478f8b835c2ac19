#pragma once

#include <array>
#include <string>
#include <vector>

#include "numbers/Int16.h"
#include "numbers/Single.h"

namespace norlaplan {

/// A table of one value a ball, indexed (row 0..2, ball 0..N); row 0 and ball 0 stay empty, so that the
/// numbers are those that people count with.
template <typename Value>
class BallTable {
  public:
    void resize(int balls) {
        for (auto& row : rows_)
            row.assign(static_cast<std::size_t>(balls) + 1, Value{});
    }
    /// Sizes the table but keeps what it held: for the tables that outlive a reset.
    void resizeKeeping(int balls) {
        for (auto& row : rows_)
            row.resize(static_cast<std::size_t>(balls) + 1);
    }
    Value& operator()(int row, int ball) {
        return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(ball)];
    }
    const Value& operator()(int row, int ball) const {
        return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(ball)];
    }
    /// One row from ball 0 on, for loops that run over it.
    Value* row(int row) { return rows_[static_cast<std::size_t>(row)].data(); }
    const Value* row(int row) const { return rows_[static_cast<std::size_t>(row)].data(); }

  private:
    std::array<std::vector<Value>, 3> rows_;
};

/// Everything that the load distribution solver reads and leaves behind, in inches, pounds, psi and radians.
/// The side screens read it after a solve, so it lives from one call to the next.
struct SolverState {
    // Inputs of a solve.
    double BallDiameter = 0.0;
    Single PitchDiameter;
    Int16 BallCount;
    double InnerConformityPct = 0.0, OuterConformityPct = 0.0;
    Single ContactAngleDeg, ContactAngle;
    Single DiametralClearance;
    Single GapDistance, CenterlineSpacing;
    Single RadialLoad, AxialLoad, MomentLoad;
    Single InnerModulusMpsi, OuterModulusMpsi, InnerPoisson, OuterPoisson;
    Int16 RowCount;
    Flag StyleIsX, StyleIsB, StyleIsF, StyleIsC;
    Single RatingFactor;
    Int16 ForceZeroAngle;

    // Contact constants.
    Single ElasticSum, Kn;
    Single InnerKappa, OuterKappa, InnerKappaSq, OuterKappaSq;
    Single InnerE, OuterE, InnerK, OuterK;
    Single InnerCurvatureSum, OuterCurvatureSum;
    double CiCo = 0.0;

    // Unknowns and working values of an iteration.
    double AxialDisp = 0.0, RadialDisp = 0.0, Tilt = 0.0;
    double CentreDistance = 0.0, A0Cos = 0.0, A0Sin = 0.0;
    Single CentreRadius;
    double BallSpacing = 0.0, ArmOffset = 0.0;
    double ForceAxialSum = 0.0, ForceRadialSum = 0.0, MomentSum = 0.0;
    Int16 Iteration;
    Flag SolveAborted;

    // Per ball.
    BallTable<double> BallX, BallY, BallDist, BallSinAngle, BallCosAngle;
    BallTable<double> BallDeflection, BallLoad, BallRadialForce, BallAxialForce;
    BallTable<std::string> BallAngleText;
    BallTable<Single> InnerSemiMajor, InnerSemiMinor, OuterSemiMajor, OuterSemiMinor;
    BallTable<Single> InnerStress, OuterStress;

    // Life and stress.
    Single InnerEllipseFactor, OuterEllipseFactor;
    Single RmcRow1, RmcRow2, RmcRow1Newtons, RmcRow2Newtons, MeanRow1, MeanRow2;
    Single DynamicExponent, GeometryRatio;
    Single InnerDynamicCapacity, OuterDynamicCapacity;
    Single L10InnerRotationRow1, L10InnerRotationRow2, L10OuterRotationRow1, L10OuterRotationRow2;
    Single StressLimit;
    Single InnerStaticCapacity, OuterStaticCapacity, InnerStaticCapacityNewtons, OuterStaticCapacityNewtons;
    Single MaxBallLoad, MaxBallLoadNewtons;
    Int16 MaxBallRow, MaxBallNumber;
    Single SafetyInner, SafetyOuter;
    Single MaxInnerStress, MaxOuterStress, MeanInnerStress, MeanOuterStress;
    Single MaxInnerStressMpa, MaxOuterStressMpa, MeanInnerStressMpa, MeanOuterStressMpa;
    Single InnerMajorAxis, OuterMajorAxis, InnerMinorAxis, OuterMinorAxis;
    Single InnerMajorAxisMm, OuterMajorAxisMm, InnerMinorAxisMm, OuterMinorAxisMm;
};

}  // namespace norlaplan
