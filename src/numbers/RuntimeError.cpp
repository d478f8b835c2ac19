#include "numbers/RuntimeError.h"

namespace norlaplan {

RuntimeError::RuntimeError(int number) : std::runtime_error(runtimeErrorText(number)), number_(number) {}

RuntimeError::RuntimeError(int number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

std::string runtimeErrorText(int number) {
    switch (number) {
        case fault::kInvalidCall:
            return "Invalid procedure call or argument";
        case fault::kOverflow:
            return "Overflow";
        case fault::kOutOfMemory:
            return "Out of memory";
        case fault::kSubscript:
            return "Subscript out of range";
        case fault::kDivisionByZero:
            return "Division by zero";
        case fault::kTypeMismatch:
            return "Type mismatch";
        case fault::kOutOfStack:
            return "Out of stack space";
        case fault::kBadFileName:
            return "Bad file name or number";
        case fault::kFileNotFound:
            return "File not found";
        case fault::kDeviceIo:
            return "Device I/O error";
        case fault::kDiskFull:
            return "Disk full";
        case fault::kPastEnd:
            return "Input past end of file";
        case fault::kTooManyFiles:
            return "Too many files";
        case fault::kPermissionDenied:
            return "Permission denied";
        case fault::kPathAccess:
            return "Path/File access error";
        case fault::kPathNotFound:
            return "Path not found";
        case fault::kInvalidFormat:
            return "Invalid file format";
        case fault::kNoSuchProgram:
            return "ActiveX component can't create object";
        case fault::kAutomation:
            return "Automation error";
        case fault::kInvalidPicture:
            return "Invalid picture";
        default:
            return "Application-defined or object-defined error";
    }
}

void raise(int number) {
    throw RuntimeError(number);
}

}  // namespace norlaplan
