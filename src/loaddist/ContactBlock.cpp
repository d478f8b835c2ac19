#include "loaddist/ContactBlock.h"

#include <cmath>
#include <limits>

#include "numbers/Arithmetic.h"
#include "numbers/ExactPowers.h"

// The columns are worked on by the same source, compiled twice: for any processor, which takes two numbers at
// once, and for one with AVX2, which takes four, so that the whole solve takes seven tenths of the time.
// Every number has the same bits in both, as each operation is rounded by itself: AVX2 alone has none that
// fuses two (those are of FMA, which isn't named here). What is to run on four is inlined into the function
// that says so; nothing else is compiled for it, so that no other processor can meet it.
#define NORLAPLAN_INLINED [[gnu::always_inline]] inline
#if defined(__x86_64__)
#define NORLAPLAN_BY_FOUR [[gnu::target("avx2")]]
#else
#define NORLAPLAN_BY_FOUR
#endif

namespace norlaplan {

namespace {

constexpr std::uint64_t kNone = 0;
constexpr std::uint64_t kOne = 1;

/// Raises what is wrong with a line that can't be: without a finite length, or without a part that something
/// divides by (the moment's arm by y, the angle's text by x).
void checkLine(const RowLines& lines, double c, double A0) {
    const double x = lines.x(c);
    const double y = lines.y(c);
    const double d = std::sqrt(x * x + y * y);
    const bool touches = !(checked(d - A0) < 0.0);
    if (y == 0.0 || d == 0.0 || (touches && x == 0.0)) raise(fault::kDivisionByZero);
}

void checkLines(const ContactRows& rows, const double* cosines, std::size_t balls) {
    for (std::size_t i = 0; i < balls; ++i) {
        checkLine(rows.one, cosines[i], rows.A0);
        checkLine(rows.two, cosines[i], rows.A0);
    }
}

/// A line whose square is below this is shorter than A0 whatever its root rounds to: squares and root err by
/// a few 2^-53 of themselves. Zero, which nothing is below, where squares lose more digits.
double surelyApartBelow(double A0) {
    return A0 > 1e-100 && A0 < 1e100 ? (A0 * A0) * (1.0 - 1e-14) : 0.0;
}

}  // namespace

NORLAPLAN_INLINED void ContactBlock::find(const ContactRows& rows, const double* cosines, std::size_t balls) {
    const double apart = surelyApartBelow(rows.A0);
    doubts_ = std::isfinite(rows.A0) ? 0 : 1;
    second_ = findRow(rows.one, cosines, balls, apart, 0);
    end_ = findRow(rows.two, cosines, balls, apart, second_);
    for (std::size_t i = 0; i < end_; ++i)
        c_[i] = cosines[places_[i]];
}

/// Finds the row's contacts and gives the place behind them. Most balls are out of touch, and the square of
/// their line tells it without a root.
NORLAPLAN_INLINED std::size_t ContactBlock::findRow(const RowLines& lines, const double* cosines,
                                                    std::size_t balls, double apart, std::size_t next) {
    std::array<double, kBalls> squares;
    std::uint64_t doubts = 0;
    for (std::size_t i = 0; i < balls; ++i) {
        const double x = lines.x(cosines[i]);
        const double y = lines.y(cosines[i]);
        squares[i] = x * x + y * y;
        doubts += y == 0.0 ? kOne : kNone;
        doubts += squares[i] > 0.0 ? kNone : kOne;
        doubts += squares[i] <= std::numeric_limits<double>::max() ? kNone : kOne;
    }
    doubts_ += doubts;
    // Each ball is put in the next free place, which a ball out of touch doesn't take: so nothing has to be
    // guessed on the way.
    for (std::size_t i = 0; i < balls; ++i) {
        places_[next] = i;
        next += squares[i] < apart ? 0U : 1U;
    }
    return next;
}

/// Lines and deflections of the contacts. A ball that is out of touch by less than its square tells gets the
/// deflection 0, with which its load and all its terms are zero and add nothing.
NORLAPLAN_INLINED void ContactBlock::measure(const ContactRows& rows) {
    measureRow(rows.one, 0, second_);
    measureRow(rows.two, second_, end_);
    const double A0 = rows.A0;
    std::uint64_t doubts = 0;
    for (std::size_t i = 0; i < end_; ++i) {
        d_[i] = std::sqrt(x_[i] * x_[i] + y_[i] * y_[i]);
        const double e = d_[i] - A0;
        e_[i] = e > 0.0 ? e : 0.0;
        rootOfE_[i] = std::sqrt(e_[i]);
        doubts += x_[i] == 0.0 ? kOne : kNone;
    }
    doubts_ += doubts;
}

NORLAPLAN_INLINED void ContactBlock::measureRow(const RowLines& lines, std::size_t begin, std::size_t end) {
    for (std::size_t i = begin; i < end; ++i) {
        x_[i] = lines.x(c_[i]);
        y_[i] = lines.y(c_[i]);
    }
}

NORLAPLAN_INLINED void ContactBlock::pull(const ContactRows& rows, double sign, std::size_t begin,
                                          std::size_t end) {
    for (std::size_t i = begin; i < end; ++i) {
        const double sine = y_[i] / d_[i];
        const double cosine = x_[i] / d_[i];
        const double arm = (rows.h * x_[i]) / y_[i] + rows.dm;
        Q[i] = Q[i] * rows.Kn;
        axialForce[i] = (Q[i] * sine) * sign;
        radialForce[i] = (c_[i] * Q[i]) * cosine;
        moment[i] = ((sine * Q[i] * c_[i]) * arm) * (sign / 2.0);
    }
}

/// The terms of row 1, and with the sign -1 what those of row 2 add: its formulas have m x - R y and -R where
/// row 1 has R y - m x and R, and three of its terms count negative. A result turns its sign with its terms,
/// bit for bit, so k13 is the same for both, and the others need the sign alone.
NORLAPLAN_INLINED void ContactBlock::stiffen(const ContactRows& rows, double sign, std::size_t begin,
                                             std::size_t end) {
    const double A0 = rows.A0;
    const double R = rows.R;
    const double m = rows.m;
    for (std::size_t i = begin; i < end; ++i) {
        const double x = x_[i];
        const double y = y_[i];
        const double d = d_[i];
        const double e = e_[i];
        const double c = c_[i];
        const double S = rootOfE_[i] / cubeOfD_[i];
        const double T = A0 + d / 2.0;
        const double tilted = R * y - m * x;
        k11[i] = S * (d * (1.5 * (y * y) + x * x) - A0 * (x * x));
        k12[i] = (((c * x) * y) * S * T) * sign;
        k13[i] = (S * c) * ((R * (d * d)) * e + (y * T) * tilted);
        k22[i] = ((c * c) * S) * ((d * d) * e + (x * x) * T);
        k23[i] = (((c * c) * S) * ((x * T) * tilted - (m * (d * d)) * e)) * sign;
        k31[i] = c * k11[i];
        k32[i] = c * k12[i];
        k33[i] = c * k13[i];
    }
}

NORLAPLAN_INLINED void ContactBlock::takeInlined(const ContactRows& rows, const double* cosines,
                                                 std::size_t first, std::size_t last) {
    first_ = first;
    const double* const here = cosines + first;
    const std::size_t balls = last - first + 1;
    find(rows, here, balls);
    measure(rows);
    if (doubts_ != 0) [[unlikely]]
        checkLines(rows, here, balls);
    powersThreeHalves(e_.data(), rootOfE_.data(), Q.data(), end_);
    cubesOf(d_.data(), cubeOfD_.data(), end_);
    pull(rows, 1.0, 0, second_);
    pull(rows, -1.0, second_, end_);
    stiffen(rows, 1.0, 0, second_);
    stiffen(rows, -1.0, second_, end_);
}

void ContactBlock::takeByTwo(const ContactRows& rows, const double* cosines, std::size_t first,
                             std::size_t last) {
    takeInlined(rows, cosines, first, last);
}

NORLAPLAN_BY_FOUR void ContactBlock::takeByFour(const ContactRows& rows, const double* cosines,
                                                std::size_t first, std::size_t last) {
    takeInlined(rows, cosines, first, last);
}

bool ContactBlock::canTakeByFour() {
#if defined(__x86_64__)
    return __builtin_cpu_supports("avx2") != 0;
#else
    return false;
#endif
}

void ContactBlock::take(const ContactRows& rows, const double* cosines, std::size_t first, std::size_t last) {
    static const bool kByFour = canTakeByFour();
    kByFour ? takeByFour(rows, cosines, first, last) : takeByTwo(rows, cosines, first, last);
}

}  // namespace norlaplan
