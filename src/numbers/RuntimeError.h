#pragma once

#include <stdexcept>
#include <string>

namespace norlaplan {

/// A fault that ends the running action: the platform's classic number and its text.
/// It never ends the program; the screen's action boundary or the command line shows it.
class RuntimeError : public std::runtime_error {
  public:
    explicit RuntimeError(int number);
    /// For a fault whose text says more than the classic one, such as the file's name.
    RuntimeError(int number, const std::string& description);

    int number() const { return number_; }

  private:
    int number_;
};

namespace fault {
constexpr int kInvalidCall = 5;  ///< root, logarithm or fractional power of a negative number
constexpr int kOverflow = 6;
constexpr int kOutOfMemory = 7;
constexpr int kSubscript = 9;
constexpr int kDivisionByZero = 11;
constexpr int kTypeMismatch = 13;
constexpr int kOutOfStack = 28;
constexpr int kBadFileName = 52;
constexpr int kFileNotFound = 53;
constexpr int kDeviceIo = 57;
constexpr int kDiskFull = 61;
constexpr int kPastEnd = 62;
constexpr int kTooManyFiles = 67;
constexpr int kPermissionDenied = 70;
constexpr int kPathAccess = 75;
constexpr int kPathNotFound = 76;
constexpr int kInvalidFormat = 321;  ///< a file that can't be one of its kind, by its size
constexpr int kNoSuchProgram = 429;  ///< another program that is to work for this one can't be reached
constexpr int kAutomation = 440;     ///< it was reached and failed
constexpr int kInvalidPicture = 481;
}  // namespace fault

/// The classic text of a fault number, for example "Division by zero" for 11.
std::string runtimeErrorText(int number);

/// Raises the fault; out of line so that the hot paths that may raise it stay small.
[[noreturn]] void raise(int number);

}  // namespace norlaplan
