#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace norlaplan {

/// The contact lines of one row as functions of the cosine of a ball's place.
struct RowLines {
    double x0, y0;  ///< radial and axial part at the cosine 0, inches
    double m, R;    ///< what the tilt takes from the radial part and adds to the axial one, inches
    double dr, t;   ///< radial displacement, inches; tilt

    double x(double c) const { return (x0 + dr * c) - (m * c) * t; }
    double y(double c) const { return y0 + (R * c) * t; }
};

/// What is the same for all balls of one assembly.
struct ContactRows {
    RowLines one, two;
    double A0;  ///< distance of the groove centres, inches
    double R;   ///< radius of their circle, inches
    double m;   ///< what the tilt's arm loses along the axis, inches
    double h;   ///< axial offset of the row's pressure centre, inches
    double dm;  ///< pitch diameter, inches
    double Kn;  ///< load per deflection to the power 3/2
};

/// The contacts of some neighbouring balls of both rows, those of row 1 first, side by side in columns.
/// Roots, quotients and powers of one contact don't wait for another's, so a column takes half the time of
/// its contacts one by one; only the sums have an order, and they are the caller's.
class ContactBlock {
  public:
    static constexpr std::size_t kBalls = 128;
    /// A few more than two rows take, so that columns don't lie a power of two apart, where the processor's
    /// cache has no place for all of them.
    using Column = std::array<double, 2 * kBalls + 8>;

    /// Finds the contacts among the balls first..last (at most kBalls of them), their loads, forces and
    /// stiffness. `cosines` are those of the balls' places. Errors: 11 for a line without length or axial
    /// part, or a loaded one without radial part; 5 and 6 as the powers raise them.
    void take(const ContactRows& rows, const double* cosines, std::size_t first, std::size_t last);

    /// The two ways of `take`, which differ in speed alone: for any processor, and for one that can take four
    /// numbers at once.
    void takeByTwo(const ContactRows& rows, const double* cosines, std::size_t first, std::size_t last);
    void takeByFour(const ContactRows& rows, const double* cosines, std::size_t first, std::size_t last);
    static bool canTakeByFour();

    /// The contacts of row 1 are those from 0, the ones of row 2 those from `second()`; in each row the balls
    /// go up.
    std::size_t second() const { return second_; }
    std::size_t end() const { return end_; }
    std::size_t ball(std::size_t contact) const { return first_ + places_[contact]; }

    Column Q, radialForce;
    /// What the contact adds to the sums of axial force and moment: row 2 pulls against row 1.
    Column axialForce, moment;
    /// What it adds to the sums of the stiffness; k21 is k12.
    Column k11, k12, k13, k22, k23, k31, k32, k33;

  private:
    void takeInlined(const ContactRows& rows, const double* cosines, std::size_t first, std::size_t last);
    void find(const ContactRows& rows, const double* cosines, std::size_t balls);
    std::size_t findRow(const RowLines& lines, const double* cosines, std::size_t balls, double apart,
                        std::size_t next);
    void measure(const ContactRows& rows);
    void measureRow(const RowLines& lines, std::size_t begin, std::size_t end);
    void pull(const ContactRows& rows, double sign, std::size_t begin, std::size_t end);
    void stiffen(const ContactRows& rows, double sign, std::size_t begin, std::size_t end);

    std::size_t first_ = 0, second_ = 0, end_ = 0;
    std::uint64_t doubts_ = 0;
    std::array<std::size_t, 2 * kBalls + 1> places_;
    Column x_, y_, d_, e_, rootOfE_, c_, cubeOfD_;
};

}  // namespace norlaplan
