#include <utility>

#include <gtest/gtest.h>

#include "state/ProgramState.h"

namespace norlaplan {
namespace {

/// The bits that a field keeps of a tenth: it is exact in none of the widths, and another number in each.
template <typename Field>
int bitsOf(Field field) {
    field = 0.1;
    const double kept = static_cast<double>(field);
    return kept == 0.1 ? 64 : kept == static_cast<double>(0.1F) ? 32 : 16;
}

template <typename... Fields>
void expectBits(int bits, const Fields&... fields) {
    int position = 0;
    for (const int found : {bitsOf(fields)...})
        EXPECT_EQ(found, bits) << "field " << ++position << " of the row";
}

TEST(Widths, OfTheEntriesAndFactorsAreThirtyTwoBits) {
    const ProgramState state;
    const SearchCriteria& c = state.criteria;
    expectBits(32, c.minBoreDisplay, c.maxOdDisplay, c.minHeightDisplay, c.maxHeightDisplay);
    expectBits(32, c.minBore, c.maxOd, c.minHeight, c.maxHeight);
    const LoadCase& l = state.loads;
    expectBits(32, l.radialLoadDisplay, l.axialLoadDisplay, l.momentLoadDisplay, l.speed);
    expectBits(32, l.radialLoad, l.axialLoad, l.momentLoad);
    const UnitMode& u = state.units;
    expectBits(32, u.forceFactor, u.lengthFactor, u.momentFactor, u.massFactor);
}

TEST(Widths, OfTheBearingAreThirtyTwoBits) {
    const BearingSpec b;
    expectBits(32, b.crossSectionCode, b.fitLow, b.fitHigh);
    expectBits(32, b.bore, b.outsideDiameter, b.height, b.filletRadius);
    expectBits(32, b.referenceDiameter1, b.referenceDiameter2, b.referenceDiameter3, b.mass);
    expectBits(32, b.boreTolerance, b.odTolerance, b.widthTolerance, b.bearingExpansion);
    expectBits(32, b.innerRadialRunout, b.innerAxialRunout, b.outerRadialRunout, b.outerAxialRunout);
    expectBits(32, b.stdClearanceLow, b.stdClearanceHigh);
    expectBits(32, b.ballDiameter, b.raceRadius, b.drawingScale, b.staticFactor);
    expectBits(32, b.innerWidth, b.outerWidth, b.innerSection, b.outerSection);
    expectBits(16, b.ballCount, b.stockCode, b.speedIndex);
    expectBits(64, b.contactAngle);
}

TEST(Widths, OfTheSolversInputsAreTheStatedOnes) {
    const SolverState s;
    expectBits(64, s.BallDiameter, s.InnerConformityPct, s.OuterConformityPct);
    expectBits(32, s.PitchDiameter, s.ContactAngleDeg, s.ContactAngle, s.DiametralClearance);
    expectBits(32, s.GapDistance, s.CenterlineSpacing, s.RadialLoad, s.AxialLoad, s.MomentLoad);
    expectBits(32, s.InnerModulusMpsi, s.OuterModulusMpsi, s.InnerPoisson, s.OuterPoisson, s.RatingFactor);
    expectBits(16, s.BallCount, s.RowCount, s.ForceZeroAngle);
    expectBits(32, s.ElasticSum, s.Kn, s.InnerKappa, s.OuterKappa, s.InnerKappaSq, s.OuterKappaSq);
    expectBits(32, s.InnerE, s.OuterE, s.InnerK, s.OuterK, s.InnerCurvatureSum, s.OuterCurvatureSum);
}

TEST(Widths, OfTheSolversWorkingValuesAreTheStatedOnes) {
    const SolverState s;
    expectBits(64, s.AxialDisp, s.RadialDisp, s.Tilt, s.CentreDistance, s.A0Cos, s.A0Sin);
    expectBits(64, s.BallSpacing, s.ArmOffset, s.ForceAxialSum, s.ForceRadialSum, s.MomentSum);
    expectBits(32, s.CentreRadius);
    expectBits(16, s.Iteration);
}

TEST(Widths, OfTheRestOfTheBearingAreThirtyTwoBits) {
    const BearingSpec b;
    expectBits(32, b.pitchDiameter, b.momentArm, b.ciPlusCo);
    expectBits(32, b.dynamicRadial, b.dynamicThrust, b.dynamicMoment);
    expectBits(32, b.staticRadial, b.staticThrust, b.staticMoment);
    expectBits(32, b.fitShaft1, b.fitShaft2, b.fitShaft3, b.fitShaft4);
    expectBits(32, b.fitHousing1, b.fitHousing2, b.fitHousing3, b.fitHousing4);
    expectBits(32, b.preloadBore, b.preloadOd, b.meanClearance, b.contactAngleDegrees);
    expectBits(32, b.loadPercent, b.speedColumnBase, b.speedFactor);
    expectBits(32, b.limitSpeedGrease, b.limitSpeedOil, b.limitSpeedMist);
}

TEST(Widths, OfTheSolversResultsAreThirtyTwoBits) {
    const SolverState s;
    expectBits(32, s.InnerEllipseFactor, s.OuterEllipseFactor, s.RmcRow1, s.RmcRow2);
    expectBits(32, s.RmcRow1Newtons, s.RmcRow2Newtons, s.MeanRow1, s.MeanRow2);
    expectBits(32, s.DynamicExponent, s.GeometryRatio, s.InnerDynamicCapacity, s.OuterDynamicCapacity);
    expectBits(32, s.L10InnerRotationRow1, s.L10InnerRotationRow2);
    expectBits(32, s.L10OuterRotationRow1, s.L10OuterRotationRow2);
    expectBits(32, s.StressLimit, s.InnerStaticCapacity, s.OuterStaticCapacity);
    expectBits(32, s.InnerStaticCapacityNewtons, s.OuterStaticCapacityNewtons);
    expectBits(32, s.MaxBallLoad, s.MaxBallLoadNewtons, s.SafetyInner, s.SafetyOuter);
    expectBits(16, s.MaxBallRow, s.MaxBallNumber);
    expectBits(32, s.MaxInnerStress, s.MaxOuterStress, s.MeanInnerStress, s.MeanOuterStress);
    expectBits(32, s.MaxInnerStressMpa, s.MaxOuterStressMpa, s.MeanInnerStressMpa, s.MeanOuterStressMpa);
    expectBits(32, s.InnerMajorAxis, s.OuterMajorAxis, s.InnerMinorAxis, s.OuterMinorAxis);
    expectBits(32, s.InnerMajorAxisMm, s.OuterMajorAxisMm, s.InnerMinorAxisMm, s.OuterMinorAxisMm);
}

TEST(Widths, OfALifeAndOfTheSearchAreThirtyTwoBits) {
    const LifeResult l;
    expectBits(32, l.torqueCoefficient, l.startingTorque, l.l10Revolutions, l.l10Hours);
    expectBits(32, l.staticSafetyFactor, l.torqueDisplay, l.loadPercent, l.speedLimit);
    expectBits(16, l.speedVerdictColor);
    const SearchResults r;
    expectBits(32, r.lastHours);
    expectBits(16, r.hitCount, r.sortColumn);
}

TEST(Widths, OfADeflectionAreSixtyFourBitsButThoseOfTheReliefs) {
    const DeflectionInput i;
    expectBits(64, i.preload, i.maxRadialLoad, i.maxAxialLoad, i.maxMomentLoad);
    const AxialPoint a;
    expectBits(64, a.load, a.contactAngle, a.deflection);
    const CurvePoint c;
    expectBits(64, c.load, c.deflection);
    DeflectionResult d;
    expectBits(32, d.curveOffset, d.radialReliefLoad.emplace(), d.axialReliefLoad.emplace(),
               d.momentReliefLoad.emplace());
    expectBits(64, d.radialSpringRate.emplace(), d.axialSpringRate.emplace(), d.momentSpringRate.emplace());
    expectBits(64, d.radialConstant.emplace(), d.momentConstant1.emplace(), d.momentConstant2.emplace());
    expectBits(64, d.initialTilt.emplace(), d.initialAngle.emplace());
}

TEST(Widths, OfTorquesPlaysAndThermalFitsAreThirtyTwoBits) {
    const TorquePoint t;
    expectBits(32, t.preload, t.torque);
    const PlayPoint q;
    expectBits(32, q.clearance, q.axialPlay, q.tilt);
    const PlayCurve p;
    expectBits(32, p.clearanceLow, p.clearanceHigh, p.curveClearanceMax);
    expectBits(32, p.playAtLow, p.playAtHigh, p.tiltAtLow, p.tiltAtHigh);
    const ThermalFits f;
    expectBits(32, f.highTemp, f.lowTemp, f.shaftExpansion, f.housingExpansion, f.shaftSize, f.housingSize);
}

template <typename Value>
int bitsOfEach(BallTable<Value> table) {
    table.resize(1);
    return bitsOf(table(1, 1));
}

TEST(Widths, OfTheBallsAreSixtyFourBitsAndThoseOfTheirEllipsesThirtyTwo) {
    const SolverState s;
    for (const int bits :
         {bitsOfEach(s.BallX), bitsOfEach(s.BallY), bitsOfEach(s.BallDist), bitsOfEach(s.BallSinAngle),
          bitsOfEach(s.BallCosAngle), bitsOfEach(s.BallDeflection), bitsOfEach(s.BallLoad),
          bitsOfEach(s.BallRadialForce), bitsOfEach(s.BallAxialForce)})
        EXPECT_EQ(bits, 64);
    for (const int bits :
         {bitsOfEach(s.InnerSemiMajor), bitsOfEach(s.InnerSemiMinor), bitsOfEach(s.OuterSemiMajor),
          bitsOfEach(s.OuterSemiMinor), bitsOfEach(s.InnerStress), bitsOfEach(s.OuterStress)})
        EXPECT_EQ(bits, 32);
}

TEST(BallTables, HaveThreeRowsFromBallZeroOnAndEmptyAtAReset) {
    BallTable<double> table;
    table.resize(5);
    table(1, 5) = 7.0;
    table(2, 1) = 3.0;
    EXPECT_EQ(table(0, 0), 0.0);
    EXPECT_EQ(table.row(1)[5], 7.0);
    EXPECT_EQ(std::as_const(table)(2, 1), 3.0);
    EXPECT_EQ(std::as_const(table).row(2)[1], 3.0);
    table.resizeKeeping(8);
    EXPECT_EQ(table(1, 5), 7.0) << "it outlives a reset";
    EXPECT_EQ(table(1, 8), 0.0);
    table.resize(8);
    EXPECT_EQ(table(1, 5), 0.0);
    EXPECT_EQ(table(2, 1), 0.0);
}

}  // namespace
}  // namespace norlaplan
