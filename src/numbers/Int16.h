#pragma once

#include <cmath>
#include <cstdint>

#include "numbers/RuntimeError.h"

namespace norlaplan {

/// A 16-bit whole number field. Storing rounds to the nearest whole number, halves to the even one
/// (error 6 beyond -32768 to 32767); reading gives an int.
class Int16 {
  public:
    constexpr Int16() = default;
    Int16(int value) : value_(narrow(value)) {}  // NOLINT(google-explicit-constructor): that is its purpose
    explicit Int16(double value) : value_(narrow(std::nearbyint(value))) {}
    Int16& operator=(double value) { return *this = Int16(value); }
    Int16& operator=(int value) { return *this = Int16(value); }
    constexpr operator int() const { return value_; }  // NOLINT(google-explicit-constructor)

  private:
    static std::int16_t narrow(double value) {
        if (!(value >= -32768.0 && value <= 32767.0)) [[unlikely]]
            raise(fault::kOverflow);
        return static_cast<std::int16_t>(value);
    }
    std::int16_t value_ = 0;
};

/// A 16-bit truth value: -1 set, 0 not.
class Flag {
  public:
    constexpr Flag() = default;
    constexpr Flag(bool set) : value_(set ? -1 : 0) {}       // NOLINT(google-explicit-constructor)
    constexpr operator bool() const { return value_ != 0; }  // NOLINT(google-explicit-constructor)
    /// The 16-bit value, as it is written to files and results.
    constexpr int value() const { return value_; }

  private:
    std::int16_t value_ = 0;
};

}  // namespace norlaplan
