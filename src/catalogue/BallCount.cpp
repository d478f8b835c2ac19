#include "catalogue/BallCount.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>

#include "numbers/Arithmetic.h"
#include "numbers/FormatNumber.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

/// A separator's constant for the three ball sizes; 0 for another size, which ends as a division by zero.
double spacingFor(double D, const std::array<double, 3>& spacings) {
    if (D == 0.15625) return spacings[0];
    if (D == 0.25) return spacings[1];
    return D == 0.375 ? spacings[2] : 0.0;
}

bool variesWithTheBuild(const std::string& code) {
    constexpr std::string_view kCodes[] = {"W", "F", "M", "ZP", "ZV", "ZS"};
    return std::find(std::begin(kCodes), std::end(kCodes), code) != std::end(kCodes);
}

}  // namespace

void setBallCount(BearingSpec& bearing) {
    const std::string& code = bearing.separatorCode;
    const double P = bearing.pitchDiameter * PiValue;
    const double D = bearing.ballDiameter;
    const auto s = [D](double small, double middle, double large) {
        return spacingFor(D, {small, middle, large});
    };
    if (code == "F") bearing.ballCount = Int(divide(P, D));
    if (code == "M") bearing.ballCount = Int(divide(P, s(0.171, 0.278, 0.413)) + 0.95);
    if (code == "W" && bearing.familyCode == "A") {
        bearing.ballCount = Int(divide(P, s(0.171, 0.2717, 0.362)) + 0.95);
    }
    if (code == "S") bearing.ballCount = Int(divide(P, 2.0 * D) + 1.0);
    if (code == "ZP") bearing.ballCount = 2.0 * Int(divide(P, D + s(0.252, 0.433, 0.624)));
    if (code == "ZV") bearing.ballCount = 2.0 * Int(divide(P, D + s(0.252, 0.42, 0.624)));
    if (code == "ZS") bearing.ballCount = Int(divide(P, D + s(0.15125, 0.2344, 0.3594)));
    if (code == "ZT") bearing.ballCount = Int(divide(P, s(0.329, 0.503, 0.807)));
    if (code == "J") bearing.ballCount = Int(divide(P - D, s(0.228, 0.307, 0.472)));
    if (code == "N") bearing.ballCount = Int(divide(P - D, s(0.311, 0.5, 0.752)));
}

void setBallsText(BearingSpec& bearing, const UnitMode& units, bool set) {
    const std::string diameter = FormatNumber(bearing.ballDiameter * units.lengthFactor, "##.000");
    const std::string text = set ? plainText(2 * bearing.ballCount) + " Balls per Set, Ø"
                                 : plainText(static_cast<int>(bearing.ballCount)) + " Balls, Ø ";
    bearing.ballsText =
        (variesWithTheBuild(bearing.separatorCode) ? "Approximately " : "") + text + diameter + " Nominal";
}

}  // namespace norlaplan
