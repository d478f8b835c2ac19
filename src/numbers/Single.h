#pragma once

#include <cmath>
#include <compare>

#include "numbers/RuntimeError.h"

namespace norlaplan {

/// A 32-bit float field. Storing rounds the 64-bit value (error 6 when it does not fit), reading gives
/// the 64-bit value of what was stored, so that arithmetic between fields is 64-bit by itself.
class Single {
  public:
    constexpr Single() = default;
    Single(double value)
        : value_(narrow(value)) {}  // NOLINT(google-explicit-constructor): that is its purpose
    operator double() const { return static_cast<double>(value_); }  // NOLINT(google-explicit-constructor)

    /// The stored 32-bit value itself, for texts that need its own digits.
    float stored() const { return value_; }

    Single& operator+=(double other) { return *this = Single(*this + other); }
    Single& operator-=(double other) { return *this = Single(*this - other); }
    Single& operator*=(double other) { return *this = Single(*this * other); }

  private:
    static float narrow(double value) {
        const float narrowed = static_cast<float>(value);
        if (!std::isfinite(narrowed)) [[unlikely]]
            raise(fault::kOverflow);
        return narrowed;
    }
    float value_ = 0.0F;
};

}  // namespace norlaplan
