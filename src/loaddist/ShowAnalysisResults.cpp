#include "loaddist/ShowAnalysisResults.h"

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
    for (int ball = 1; ball <= solver.BallCount; ++ball)
        grid.push_back(ballLine(solver, row, ball));
    return grid;
}

std::vector<AnalysisField> fieldsOf(const SolverState& solver) {
    const auto load = [](double value) { return FormatNumber(value, "####.##"); };
    const auto safety = [](double value) { return FormatNumber(value, "####.00"); };
    const auto stress = [](double value) { return FormatNumber(value, "#,###,###"); };
    const auto axis = [](double value) { return FormatNumber(value, "#.0000"); };
    const auto shift = [](double value) { return FormatNumber(value, "#.000000"); };
    const double life1 = solver.L10InnerRotationRow1;
    const double life2 = solver.L10InnerRotationRow2;
    const char* const picture1 = lifePicture(life1, life1);
    const char* const picture2 = lifePicture(life2, life1);
    const std::string tilt = FormatNumber(solver.Tilt * 180.0 / PiValue, "###.000000").substr(0, 7);
    return {{"Text25", FormatNumber(life1, picture1)},
            {"Text26", FormatNumber(solver.L10OuterRotationRow1, picture1)},
            {"Text55", FormatNumber(life2, picture2)},
            {"Text56", FormatNumber(solver.L10OuterRotationRow2, picture2)},
            {"Text27", load(solver.RmcRow1)},
            {"Text28", load(solver.RmcRow2)},
            {"Text29", load(solver.MaxBallLoad)},
            {"Text30", load(solver.MaxBallLoad)},
            {"Text31", load(solver.InnerStaticCapacity)},
            {"Text32", load(solver.OuterStaticCapacity)},
            {"Text33", safety(solver.SafetyInner)},
            {"Text34", safety(solver.SafetyOuter)},
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

}  // namespace

const char* lifePicture(double lower, double upper) {
    for (const Band& band : kBands) {
        if (lower >= band.least && (band.most == 0.0 || upper < band.most)) return band.picture;
    }
    return "####";
}

AnalysisResults ShowAnalysisResults(const SolverState& solver) {
    return {fieldsOf(solver), gridOf(solver, 1), gridOf(solver, 2)};
}

}  // namespace norlaplan
