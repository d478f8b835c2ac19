#pragma once

#include <string>
#include <vector>

#include "state/Ports.h"

namespace norlaplan {

/// How many part numbers are kept.
constexpr std::size_t kKeptNumbers = 20;

/// The part numbers that were entered last, the latest first, each once. What is no part number by its length
/// and letters is passed over, and a file that can't be read holds none: nobody's work depends on it.
std::vector<std::string> enteredNumbers(UserFilesPort& files);

/// Puts a part number in front of the others. Where it can't be kept, the file stays as it was.
void rememberNumber(UserFilesPort& files, const std::string& number);

}  // namespace norlaplan
