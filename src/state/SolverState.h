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

/// Everything that the load distribution solver reads and leaves behind: inches, pounds, pound-inches, psi
/// and radians unless a name or a comment says otherwise, whatever the units on the screens are. The side
/// screens read it after a solve, so it lives from one call to the next.
struct SolverState {
    // Inputs of a solve.
    double BallDiameter = 0.0;        ///< D
    Single PitchDiameter;             ///< dm
    Int16 BallCount;                  ///< Z, balls of one row
    double InnerConformityPct = 0.0;  ///< fi: groove radius of the inner race, per cent of the ball diameter
    double OuterConformityPct = 0.0;  ///< fo: the same of the outer race
    Single ContactAngleDeg;           ///< free contact angle, degrees; 0 for a radial bearing
    Single ContactAngle;              ///< alpha: the same in radians
    Single DiametralClearance;        ///< Pd: clearance, negative under preload
    Single GapDistance;               ///< g: gap (or stick-out) between the rings of a pair; else unread
    Single CenterlineSpacing;         ///< s: distance between the ball rows of a pair; else unread
    Single RadialLoad;                ///< Fr
    Single AxialLoad;                 ///< Fa
    Single MomentLoad;                ///< M
    Single InnerModulusMpsi, OuterModulusMpsi;  ///< Young's modulus of the rings, million psi
    Single InnerPoisson, OuterPoisson;          ///< Poisson's ratio of the rings
    Int16 RowCount;  ///< n: rows of contacts, 2 for a pair and for four-point contact
    /// One is set: four-point, back-to-back, face-to-face or radial contact.
    Flag StyleIsX, StyleIsB, StyleIsF, StyleIsC;
    Single RatingFactor;   ///< fc of the dynamic capacity, pounds for inches
    Int16 ForceZeroAngle;  ///< 1: the contact constants are those of contact angle 0

    // Contact constants (Hertz).
    Single ElasticSum;                  ///< sum of (1 - v^2) / E over both bodies, 1/psi
    Single Kn;                          ///< ball between both races: Q = Kn * deflection^1.5, lb/in^1.5
    Single InnerKappa, OuterKappa;      ///< ellipticity a/b of the contact
    Single InnerKappaSq, OuterKappaSq;  ///< its square, 1 / (1 - m) with m the square of the eccentricity
    Single InnerE, OuterE;              ///< complete elliptic integral of the second kind
    Single InnerK, OuterK;              ///< complete elliptic integral of the first kind
    Single InnerCurvatureSum, OuterCurvatureSum;  ///< sum of the four curvatures of the contact, 1/in
    double CiCo = 0.0;                            ///< sum of the races' deflection constants; shown only

    // Unknowns and working values of an iteration.
    double AxialDisp = 0.0;           ///< displacement of the rings along the axis
    double RadialDisp = 0.0;          ///< displacement across the axis
    double Tilt = 0.0;                ///< misalignment of the rings
    double CentreDistance = 0.0;      ///< A0: distance of the race curvature centres with no load
    double A0Cos = 0.0, A0Sin = 0.0;  ///< its radial and its axial part
    Single CentreRadius;              ///< R: radius of the circle of the inner race's curvature centres
    double BallSpacing = 0.0;         ///< w: angle from ball to ball
    double ArmOffset = 0.0;           ///< h: g/2 + s for B, g/2 - s for F, 0 for X
    double ForceAxialSum = 0.0, ForceRadialSum = 0.0;  ///< forces of all balls on the ring
    double MomentSum = 0.0;                            ///< their moment
    Int16 Iteration;                                   ///< passes so far
    Flag SolveAborted;  ///< the user gave up, or the bearing is unstable; stays until the caller looks

    // Which solve the results are of.
    int solveNumber = 0;     ///< solves begun so far
    Int16 solvedBalls;       ///< Z of that solve: `BallCount` may have been edited since
    bool converged = false;  ///< there are results

    // Per ball, [row][ball] from 1.
    BallTable<double> BallX, BallY;  ///< radial and axial part of the curvature centres' distance
    BallTable<double> BallDist;      ///< that distance
    BallTable<double> BallSinAngle, BallCosAngle;       ///< of the working contact angle
    BallTable<double> BallDeflection;                   ///< approach of the races, 0 where the ball is free
    BallTable<double> BallLoad;                         ///< Q, along the contact line
    BallTable<double> BallRadialForce, BallAxialForce;  ///< its part along the radial load and along the axis
    BallTable<std::string> BallAngleText;               ///< working contact angle, degrees, or "  N/A "
    BallTable<Single> InnerSemiMajor, OuterSemiMajor;   ///< a of the contact ellipse
    BallTable<Single> InnerSemiMinor, OuterSemiMinor;   ///< b
    BallTable<Single> InnerStress, OuterStress;         ///< largest Hertz stress

    // Life and stress.
    Single InnerEllipseFactor, OuterEllipseFactor;      ///< a per cube root of the ball load, in/lb^(1/3)
    Single RmcRow1, RmcRow2;                            ///< cube mean of the row's ball loads
    Single RmcRow1Newtons, RmcRow2Newtons;              ///< the same, N
    Single MeanRow1, MeanRow2;                          ///< mean of the row's ball loads with exponent 10/3
    Single DynamicExponent;                             ///< of the ball diameter: 1.8, above 1 inch 1.4
    Single GeometryRatio;                               ///< gamma: D cos(alpha) / dm
    Single InnerDynamicCapacity, OuterDynamicCapacity;  ///< Qc: load for a million revolutions
    Single L10InnerRotationRow1, L10InnerRotationRow2;  ///< L10 of the row, inner ring turning, revolutions
    Single L10OuterRotationRow1, L10OuterRotationRow2;  ///< the same with the outer ring turning
    Single StressLimit;                                 ///< Hertz stress of the static capacity
    Single InnerStaticCapacity, OuterStaticCapacity;    ///< ball load that gives this stress
    Single InnerStaticCapacityNewtons, OuterStaticCapacityNewtons;  ///< the same, N
    Single MaxBallLoad, MaxBallLoadNewtons;                         ///< largest ball load; N
    Int16 MaxBallRow, MaxBallNumber;                                ///< where it is, from 1
    Single SafetyInner, SafetyOuter;                                ///< static capacity / largest ball load
    Single MaxInnerStress, MaxOuterStress;                          ///< largest Hertz stress of that ball
    Single MeanInnerStress, MeanOuterStress;  ///< mean over its ellipse: 2/3 of the largest
    Single MaxInnerStressMpa, MaxOuterStressMpa, MeanInnerStressMpa, MeanOuterStressMpa;  ///< the same, MPa
    Single InnerMajorAxis, OuterMajorAxis;      ///< 2a of that ball's contact ellipses
    Single InnerMinorAxis, OuterMinorAxis;      ///< 2b
    Single InnerMajorAxisMm, OuterMajorAxisMm;  ///< 2a, mm
    Single InnerMinorAxisMm, OuterMinorAxisMm;  ///< 2b, mm
};

}  // namespace norlaplan
