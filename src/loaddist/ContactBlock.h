#pragma once

#include <array>
#include <cstddef>

namespace norlaplan {

/// The contact lines of one row, from ball 0 on: radial and axial part and length, inches.
struct ContactLines {
    double *x, *y, *length;
};

/// What is the same for all balls of one row in one assembly.
struct RowConstants {
    double A0;  ///< distance of the groove centres, inches
    double R;   ///< radius of their circle, inches
    double m;   ///< what the tilt's arm loses along the axis, inches
    double h;   ///< axial offset of the row's pressure centre, inches
    double dm;  ///< pitch diameter, inches
    double Kn;  ///< load per deflection to the power 3/2
    bool second;
};

/// The touching balls among some neighbours of one row, side by side in columns. Roots, quotients and powers
/// of one ball don't wait for another's, so a column takes half the time of its balls one by one; only the
/// sums have an order, and they are the caller's.
class ContactBlock {
  public:
    static constexpr std::size_t kBalls = 64;
    using Column = std::array<double, kBalls + 1>;

    /// The balls first..last (at most kBalls of them), their loads and forces. `cosines` are those of the
    /// balls' places. Errors: 11 for a line without length or axial part, or a loaded one without radial
    /// part; 5 and 6 as the powers raise them.
    ContactBlock(const ContactLines& lines, const double* cosines, std::size_t first, std::size_t last,
                 const RowConstants& row);

    /// The terms of the balls' stiffness. Errors: 5 and 6 as the powers raise them.
    void stiffen();

    /// Where ball `first + i` stands in the columns; 0, whose terms are zero, when it is out of touch.
    std::size_t slot(std::size_t i) const { return slots_[i]; }

    Column Q, axialForce, radialForce, moment;
    Column k11, k12, k13, k22, k23;  ///< after `stiffen`; k21 is k12

  private:
    void collect(const ContactLines& lines, const double* cosines, std::size_t first, std::size_t last);
    void load();

    RowConstants row_;
    std::array<std::size_t, kBalls> slots_;
    std::size_t count_ = 0;
    Column x_, y_, d_, e_, rootOfE_, c_;
};

}  // namespace norlaplan
