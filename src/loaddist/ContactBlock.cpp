#include "loaddist/ContactBlock.h"

#include <cmath>

#include "numbers/Arithmetic.h"
#include "numbers/ExactPowers.h"

namespace norlaplan {

namespace {

/// Raises what is wrong with the first line that can't be: without a finite length, or without a part that
/// something divides by (the moment's arm by y, the angle's text by x).
void raiseFault(const ContactLines& lines, std::size_t first, std::size_t last, double A0) {
    for (std::size_t ball = first; ball <= last; ++ball) {
        const double e = checked(lines.length[ball] - A0);
        const bool touches = !(e < 0.0);
        if (lines.y[ball] == 0.0 || lines.length[ball] == 0.0 || (touches && lines.x[ball] == 0.0))
            raise(fault::kDivisionByZero);
    }
}

}  // namespace

ContactBlock::ContactBlock(const ContactLines& lines, const double* cosines, std::size_t first,
                           std::size_t last, const RowConstants& row)
    : row_(row) {
    collect(lines, cosines, first, last);
    load();
    for (Column* column : {&Q, &axialForce, &radialForce, &moment})
        column->front() = 0.0;
}

void ContactBlock::collect(const ContactLines& lines, const double* cosines, std::size_t first,
                           std::size_t last) {
    // Each ball is put in the next free place, which a ball out of touch doesn't take: so nothing has to be
    // guessed on the way.
    bool faulty = false;
    std::size_t count = 0;
    for (std::size_t ball = first; ball <= last; ++ball) {
        const double x = lines.x[ball];
        const double y = lines.y[ball];
        const double d = lines.length[ball];
        const double e = d - row_.A0;
        const bool touches = !(e < 0.0);
        const std::size_t place = count + 1;
        faulty |= !std::isfinite(e) | (y == 0.0) | (d == 0.0) | (touches & (x == 0.0));
        x_[place] = x;
        y_[place] = y;
        d_[place] = d;
        e_[place] = e;
        c_[place] = cosines[ball];
        slots_[ball - first] = touches ? place : 0;
        count += touches ? 1 : 0;
    }
    if (faulty) [[unlikely]]
        raiseFault(lines, first, last, row_.A0);
    count_ = count;
}

void ContactBlock::load() {
    const RowConstants& row = row_;
    for (std::size_t i = 1; i <= count_; ++i)
        rootOfE_[i] = std::sqrt(e_[i]);
    powersThreeHalves(e_.data() + 1, rootOfE_.data() + 1, Q.data() + 1, count_);
    for (std::size_t i = 1; i <= count_; ++i) {
        const double sine = y_[i] / d_[i];
        const double cosine = x_[i] / d_[i];
        const double arm = (row.h * x_[i]) / y_[i] + row.dm;
        Q[i] = Q[i] * row.Kn;
        axialForce[i] = Q[i] * sine;
        radialForce[i] = (c_[i] * Q[i]) * cosine;
        moment[i] = ((sine * Q[i] * c_[i]) * arm) / 2.0;
    }
}

void ContactBlock::stiffen() {
    for (Column* column : {&k11, &k12, &k13, &k22, &k23})
        column->front() = 0.0;
    const RowConstants& row = row_;
    Column cubes;
    cubesOf(d_.data() + 1, cubes.data() + 1, count_);
    const double A0 = row.A0;
    const double R = row.R;
    const double m = row.m;
    for (std::size_t i = 1; i <= count_; ++i) {
        const double x = x_[i];
        const double y = y_[i];
        const double d = d_[i];
        const double e = e_[i];
        const double c = c_[i];
        const double S = rootOfE_[i] / cubes[i];
        const double T = A0 + d / 2.0;
        k11[i] = S * (d * (1.5 * (y * y) + x * x) - A0 * (x * x));
        k12[i] = ((c * x) * y) * S * T;
        k22[i] = ((c * c) * S) * ((d * d) * e + (x * x) * T);
        // The tilt moves the second row's centres the other way.
        const double tilted = row.second ? m * x - R * y : R * y - m * x;
        const double along = row.second ? -((R * (d * d)) * e) : (R * (d * d)) * e;
        const double across = row.second ? -((m * (d * d)) * e) : (m * (d * d)) * e;
        k13[i] = (S * c) * (along + (y * T) * tilted);
        k23[i] = ((c * c) * S) * ((x * T) * tilted - across);
    }
}

}  // namespace norlaplan
