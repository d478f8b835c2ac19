#pragma once

#include <cstddef>
#include <vector>

#include "numbers/Single.h"

namespace norlaplan {

/// Powers of the loads of one row, for results of 32 bits. The cube roots are worked out side by side to a
/// few units of the last place; where a result rounds alike at both ends of that error it is the one that the
/// library's power gives, and where it doesn't the library decides. Balls count from 1.
class RoundedPowers {
  public:
    /// `loads` are those of the balls 0 to `balls`, and stay where they are.
    RoundedPowers(const double* loads, std::size_t balls);

    /// Q^(1/3) times a factor. Errors, here and below: those of `power`, 6 for what 32 bits don't hold.
    Single rootTimes(int ball, double factor) const;
    /// A sum with Q^3 added.
    Single cubeOnto(double sum, int ball) const;
    /// A sum with Q^(10/3) added.
    Single tenThirdsOnto(double sum, int ball) const;

  private:
    const double* loads_;
    std::vector<double> roots_;
};

}  // namespace norlaplan
