#include "loaddist/ContactSection.h"

#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/DecimalText.h"
#include "numbers/PiValue.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

/// By the arc tangent; the sine goes through its text, and so keeps 15 digits.
double arcsine(double sine) {
    const double q = leadingNumber(fifteenDigits(sine));
    return std::atan(divide(q, squareRoot(1.0 - q * q)));
}

double cornerRadius(double crossSection) {
    if (crossSection == 8.0) return 0.009;
    return crossSection == 13.0 ? 0.01 : 0.012;
}

PagePoint onCircle(PagePoint centre, double radius, double angle) {
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

}  // namespace

double ContactSection::land() const {
    const double dx = edge.x - p2.x;
    const double dy = edge.y - p2.y;
    return squareRoot(dx * dx + dy * dy);
}

bool ContactSection::overruns() const {
    // Seen from the groove's centre, both lie on its circle.
    const auto angleOf = [this](PagePoint end) {
        return std::atan2(end.y - upperGroove.y, upperGroove.x - end.x);
    };
    return angleOf(p2) > angleOf(edge);
}

ContactSection contactSection(const BearingSpec& bearing, const ContactCheck& check) {
    ContactSection s;
    s.D = bearing.ballDiameter;
    s.dm = bearing.pitchDiameter;
    s.r = bearing.raceRadius;
    s.shoulder = bearing.referenceDiameter1 / 2.0;
    s.k = cornerRadius(bearing.crossSectionCode);
    s.e = check.EllipseAngle;
    s.B = check.EllipseMinor;
    const double a = bearing.contactAngle;
    const double offset = s.r - s.D / 2.0;
    s.upperGroove = {offset * std::cos(a) + s.dm / 2.0, -(offset * std::sin(a))};
    // Built with an angle of 0, whatever the bearing's.
    s.lowerGroove = {offset + s.dm / 2.0, 0.0};
    s.t1 = arcsine(divide(s.upperGroove.x - s.shoulder + s.k, s.r + s.k));
    s.t2 = arcsine(divide(offset * std::sin(a), s.r));
    s.t4 = arcsine(divide(s.lowerGroove.x - s.shoulder + s.k, s.r + s.k));
    s.upperCorner = {s.shoulder - s.k, s.upperGroove.y + (s.r + s.k) * std::cos(s.t1)};
    s.lowerCorner = {s.shoulder - s.k, -(s.r + s.k) * std::cos(s.t4)};
    s.edge = onCircle(s.upperGroove, s.r, PiValue / 2.0 + s.t1);
    const double h = divide(check.EllipseMajor, s.r);
    const auto onGroove = [&](double angle) {
        return PagePoint{s.upperGroove.x - s.r * std::cos(angle), s.upperGroove.y + s.r * std::sin(angle)};
    };
    s.p1 = onGroove(s.e - h);
    s.p2 = onGroove(s.e + h);
    return s;
}

}  // namespace norlaplan
