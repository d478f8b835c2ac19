#include "loaddist/ShowAnalysisResults.h"

#include <utility>

#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

// 1E11 and 1E12 as 32-bit numbers.
constexpr double kHundredBillions = 99999997952.0;
constexpr double kTrillion = 999999995904.0;

/// From `least` on and, unless it is 0, below `most`.
struct Band {
    double least, most;
    const char* picture;
};
constexpr Band kBands[] = {
    {1e6, 1e7, "0.000E+00"},
    {1e9, 1e10, "0.000E+00"},
    {kTrillion, 0.0, "0.000E+00"},
    {1e7, 1e8, "00.00E+00"},
    {1e8, 1e9, "000.0E+00"},
    {1e10, kHundredBillions, "00.00E+00"},
    {kHundredBillions, kTrillion, "000.0E+00"},
    {1e5, 1e6, "000.0E+00"},
    {1e4, 1e5, "00.00E+00"},
};

constexpr std::array<const char*, 10> kFirstHeader = {"Ball",       "Ball",         "Normal", "Contact",
                                                      "Max. Hertz", "Stress (PSI)", "Inner",  "Ellipse (in)",
                                                      "Outer",      "Ellipse (in)"};
constexpr std::array<const char*, 10> kSecondHeader = {"No.",        "Defl. (in)", "Force (lb)", "Angle",
                                                       "Inner Race", "Outer Race", "Major Dia",  "Minor Dia",
                                                       "Major Dia",  "Minor Dia"};

std::array<std::string, 10> header(const std::array<const char*, 10>& words) {
    std::array<std::string, 10> line;
    for (std::size_t column = 0; column < words.size(); ++column)
        line[column] = words[column];
    return line;
}

std::array<std::string, 10> ballLine(const SolverState& solver, int row, int ball) {
    const auto stress = [](double value) { return FormatNumber(value, "#,###,###"); };
    const auto axis = [](double half) { return FormatNumber(2.0 * half, "0.0000"); };
    return {plainText(ball),
            FormatNumber(solver.BallDeflection(row, ball), "#.000000"),
            plainText(solver.BallLoad(row, ball)).substr(0, 5),
            solver.BallAngleText(row, ball),
            stress(solver.InnerStress(row, ball)),
            stress(solver.OuterStress(row, ball)),
            axis(solver.InnerSemiMajor(row, ball)),
            axis(solver.InnerSemiMinor(row, ball)),
            axis(solver.OuterSemiMajor(row, ball)),
            axis(solver.OuterSemiMinor(row, ball))};
}

AnalysisGrid gridOf(const SolverState& solver, int row) {
    AnalysisGrid grid = {header(kFirstHeader), header(kSecondHeader)};
    for (int ball = 1; ball <= solver.solvedBalls; ++ball)
        grid.push_back(ballLine(solver, row, ball));
    return grid;
}

std::vector<AnalysisField> lifeFields(const SolverState& solver) {
    const double life1 = solver.L10InnerRotationRow1;
    const double life2 = solver.L10InnerRotationRow2;
    const char* const picture1 = lifePicture(life1, life1);
    const char* const picture2 = lifePicture(life2, life1);
    return {{"Text25", FormatNumber(life1, picture1)},
            {"Text26", FormatNumber(solver.L10OuterRotationRow1, picture1)},
            {"Text55", FormatNumber(life2, picture2)},
            {"Text56", FormatNumber(solver.L10OuterRotationRow2, picture2)}};
}

std::vector<AnalysisField> englishFields(const SolverState& solver) {
    const auto load = [](double value) { return FormatNumber(value, "####.##"); };
    const auto stress = [](double value) { return FormatNumber(value, "#,###,###"); };
    const auto axis = [](double value) { return FormatNumber(value, "#.0000"); };
    const auto shift = [](double value) { return FormatNumber(value, "#.000000"); };
    const std::string tilt = FormatNumber(solver.Tilt * 180.0 / PiValue, "###.000000").substr(0, 7);
    return {{"Text27", load(solver.RmcRow1)},
            {"Text28", load(solver.RmcRow2)},
            {"Text29", load(solver.MaxBallLoad)},
            {"Text30", load(solver.MaxBallLoad)},
            {"Text31", load(solver.InnerStaticCapacity)},
            {"Text32", load(solver.OuterStaticCapacity)},
            {"Text35", stress(solver.MaxInnerStress)},
            {"Text36", stress(solver.MaxOuterStress)},
            {"Text37", stress(solver.MeanInnerStress)},
            {"Text38", stress(solver.MeanOuterStress)},
            {"Text39", axis(solver.InnerMajorAxis)},
            {"Text40", axis(solver.OuterMajorAxis)},
            {"Text41", axis(solver.InnerMinorAxis)},
            {"Text42", axis(solver.OuterMinorAxis)},
            {"Text52", shift(solver.RadialDisp)},
            {"Text53", shift(solver.AxialDisp)},
            {"Text54", tilt}};
}

std::vector<AnalysisField> metricFields(const SolverState& solver) {
    const auto load = [](double value) { return FormatNumber(value, "####.#"); };
    const auto capacity = [](double value) { return FormatNumber(value, "####"); };
    const auto stress = [](double value) { return FormatNumber(value, "######"); };
    const auto axis = [](double value) { return FormatNumber(value, "0.0000"); };
    const auto shift = [](double inches) { return FormatNumber(inches * 25.4, "#.000000"); };
    return {{"Text27", load(solver.RmcRow1Newtons)},
            {"Text28", solver.RowCount == 1 ? "N/A" : load(solver.RmcRow2Newtons)},
            {"Text29", load(solver.MaxBallLoadNewtons)},
            {"Text30", load(solver.MaxBallLoadNewtons)},
            {"Text31", capacity(solver.InnerStaticCapacityNewtons)},
            {"Text32", capacity(solver.OuterStaticCapacityNewtons)},
            {"Text35", stress(solver.MaxInnerStressMpa)},
            {"Text36", stress(solver.MaxOuterStressMpa)},
            {"Text37", stress(solver.MeanInnerStressMpa)},
            {"Text38", stress(solver.MeanOuterStressMpa)},
            {"Text39", axis(solver.InnerMajorAxisMm)},
            {"Text40", axis(solver.OuterMajorAxisMm)},
            {"Text41", axis(solver.InnerMinorAxisMm)},
            {"Text42", axis(solver.OuterMinorAxisMm)},
            {"Text52", shift(solver.RadialDisp)},
            {"Text53", shift(solver.AxialDisp)},
            {"Text54", FormatNumber(solver.Tilt, "##.000000").substr(0, 7)}};
}

std::vector<AnalysisField> fieldsOf(const SolverState& solver, AnalysisUnits units) {
    std::vector<AnalysisField> fields = lifeFields(solver);
    for (AnalysisField& field : units == AnalysisUnits::Metric ? metricFields(solver) : englishFields(solver))
        fields.push_back(std::move(field));
    fields.push_back({"Text33", FormatNumber(solver.SafetyInner, "####.00")});
    fields.push_back({"Text34", FormatNumber(solver.SafetyOuter, "####.00")});
    return fields;
}

/// The sums of the last pass, as they stand.
std::vector<AnalysisField> checksOf(const SolverState& solver) {
    return {{"Text57", plainText(solver.ForceRadialSum)}, {"Text58", plainText(solver.ForceAxialSum)},
            {"Text59", plainText(solver.MomentSum)},      {"Text60", plainText(solver.Kn)},
            {"Text61", plainText(solver.CiCo)},           {"Text62", plainText(int{solver.Iteration})}};
}

}  // namespace

const char* lifePicture(double lower, double upper) {
    for (const Band& band : kBands) {
        if (lower >= band.least && (band.most == 0.0 || upper < band.most)) return band.picture;
    }
    return "####";
}

AnalysisCaptions analysisCaptions(AnalysisUnits units) {
    if (units == AnalysisUnits::Metric) {
        return {"Max. Ball Load (N)", "Hertz Stress (MPa)", "Contact Ellipse (mm)", "Radial (mm)",
                "Axial (mm)",         "Tilt (radians)",     "RMC loads (N)"};
    }
    return {"Max. Ball Load (lbs.)", "Hertz Stress (PSI)", "Contact Ellipse (in.)", "Radial (in.)",
            "Axial (in.)",           "Tilt (degrees)",     "RMC Loads (Lbs)"};
}

AnalysisResults ShowAnalysisResults(const SolverState& solver, AnalysisUnits units) {
    return {fieldsOf(solver, units), checksOf(solver), gridOf(solver, 1), gridOf(solver, 2)};
}

}  // namespace norlaplan
