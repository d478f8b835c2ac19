"""Every style with each separator, precision, material and fit letter: decode and life give every field."""

import math
import unittest

from program import result

BEARING_FIELDS = """
    partNumber materialCode materialText familyCode styleLetter styleText crossSectionCode crossSectionText fitLetter
    fitLow fitHigh clearanceKind fitRangeText precisionCode precisionText separatorCode zSeparatorChoice separatorText
    separatorOverlay limitedFlag bore outsideDiameter filletRadius height referenceDiameter1 referenceDiameter2
    referenceDiameter3 mass stockCode speedIndex ballCount boreTolerance odTolerance innerRadialRunout innerAxialRunout
    outerRadialRunout outerAxialRunout stdClearanceLow stdClearanceHigh widthTolerance availabilityText
    bearingExpansion ballDiameter drawingScale raceRadius staticFactor innerWidth outerWidth innerSection outerSection
    pitchDiameter momentArm contactAngle ciPlusCo dynamicRadial dynamicThrust dynamicMoment staticRadial staticThrust
    staticMoment ballsText fitShaft1 fitShaft2 fitShaft3 fitShaft4 fitHousing1 fitHousing2 fitHousing3 fitHousing4
    preloadBore preloadOd loadPercent speedColumnBase speedFactor meanClearance contactAngleDegrees thrustSpeedGrease
    thrustSpeedOil thrustSpeedMist otherSpeedGrease otherSpeedOil otherSpeedMist tableSpeedGrease tableSpeedOil
    tableSpeedMist limitSpeedGrease limitSpeedOil limitSpeedMist warnings
""".split()
LIFE_FIELDS = """
    partNumber meanClearance contactAngleDegrees torqueCoefficient startingTorque l10Revolutions l10Hours
    staticSafetyFactor torqueDisplay torqueText loadPercent speedFactor speedLimit speedVerdict speedVerdictColor solver
    balls warnings
""".split()
SOLVER_FIELDS = """
    ElasticSum Kn CiCo InnerKappa OuterKappa InnerKappaSq OuterKappaSq InnerE OuterE InnerK OuterK InnerCurvatureSum
    OuterCurvatureSum AxialDisp RadialDisp Tilt ForceAxialSum ForceRadialSum MomentSum Iteration InnerEllipseFactor
    OuterEllipseFactor RmcRow1 RmcRow2 RmcRow1Newtons RmcRow2Newtons MeanRow1 MeanRow2 DynamicExponent GeometryRatio
    InnerDynamicCapacity OuterDynamicCapacity L10InnerRotationRow1 L10InnerRotationRow2 L10OuterRotationRow1
    L10OuterRotationRow2 StressLimit InnerStaticCapacity OuterStaticCapacity InnerStaticCapacityNewtons
    OuterStaticCapacityNewtons MaxBallLoad MaxBallLoadNewtons MaxBallRow MaxBallNumber SafetyInner SafetyOuter
    MaxInnerStress MaxOuterStress MeanInnerStress MeanOuterStress MaxInnerStressMpa MaxOuterStressMpa
    MeanInnerStressMpa MeanOuterStressMpa InnerMajorAxis OuterMajorAxis InnerMinorAxis OuterMinorAxis
    InnerMajorAxisMm OuterMajorAxisMm InnerMinorAxisMm OuterMinorAxisMm
""".split()
BALL_FIELDS = """
    row ball BallDeflection BallLoad BallAngleText InnerStress OuterStress InnerSemiMajor InnerSemiMinor OuterSemiMajor
    OuterSemiMinor
""".split()

LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
#: Style and the fit letter that it needs.
STYLES = {"C": "", "X": "", "B": "A", "F": "A", "A": "", "U": "", "T": ""}
LOADED = "CXBF"


def separators(style):
    """Eighth character and choice of Z separator."""
    choices = "TS" if style in "CX" else "PVS"
    return [(letter, "") for letter in "PRJNMWSF"] + [("Z", choice) for choice in choices]


def numbers():
    """Part number, Z separator."""
    for style, fit in STYLES.items():
        for letter, choice in separators(style):
            yield f"K19013{style}{letter}0{fit}", choice
        for precision in "01246":
            yield f"K19013{style}P{precision}{fit}", ""
        for material in "KSN":
            yield f"{material}19013{style}P0{fit}", ""
        if style in LOADED:
            for letter in LETTERS:
                yield f"K19013{style}P0{letter}", ""


def has_value(value):
    """No number is missing or infinite."""
    return isinstance(value, str) or (isinstance(value, (int, float)) and math.isfinite(value))


class EveryNumber(unittest.TestCase):
    def test_decodes_with_every_field(self):
        for number, choice in numbers():
            with self.subTest(number=number, z=choice):
                status, bearing = result("decode", number, *(("--z-separator", choice) if choice else ()))
                self.assertEqual(status, 0)
                self.assertEqual(sorted(bearing), sorted(BEARING_FIELDS))
                self.assertEqual(bearing["partNumber"], number)
                self.assertEqual(bearing["warnings"], [])
                for name in BEARING_FIELDS[:-1]:
                    self.assertTrue(has_value(bearing[name]), name)
                for name in ("bore", "outsideDiameter", "height", "mass", "ballCount", "dynamicRadial", "staticRadial",
                             "limitSpeedGrease", "speedFactor"):
                    self.assertGreater(bearing[name], 0, name)

    def test_has_a_life_with_every_field(self):
        loads = ("--radial", "300", "--axial", "80", "--moment", "200")
        for number, choice in numbers():
            if number[6] not in LOADED:
                continue
            with self.subTest(number=number, z=choice):
                status, life = result("life", number, *loads, "--speed", "10",
                                      *(("--z-separator", choice) if choice else ()))
                self.assertEqual(status, 0, life)
                self.assertEqual(sorted(life), sorted(LIFE_FIELDS))
                speedless = number[7] == "F"
                for name in ("l10Hours", "loadPercent", "speedFactor", "speedLimit", "speedVerdict"):
                    self.assertEqual(life[name] is None, speedless, name)
                self.assertGreater(life["l10Revolutions"], 0)
                self.assertGreater(life["staticSafetyFactor"], 0)
                self.assertEqual(sorted(life["solver"]), sorted(SOLVER_FIELDS))
                for name, value in life["solver"].items():
                    self.assertTrue(has_value(value), name)
                for ball in life["balls"]:
                    self.assertEqual(sorted(ball), sorted(BALL_FIELDS))

    def test_refuses_the_life_of_styles_that_carry_no_load_alone(self):
        for style in "AUT":
            status, told = result("life", f"K19013{style}P0", "--radial", "5")
            self.assertEqual((status, told["error"]["prompt"]), (1, f"Bearing type {style} Not allowed"))


if __name__ == "__main__":
    unittest.main()
