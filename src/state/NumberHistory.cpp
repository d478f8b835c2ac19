#include "state/NumberHistory.h"

#include <algorithm>
#include <sstream>

#include "numbers/RuntimeError.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr const char* kFile = "part-numbers.txt";

bool looksLikeANumber(const std::string& text) {
    return (text.size() == 9 || text.size() == 10) &&
           std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < '\x7f'; });
}

void addOnce(std::vector<std::string>& numbers, const std::string& number) {
    if (numbers.size() == kKeptNumbers || !looksLikeANumber(number)) return;
    if (std::find(numbers.begin(), numbers.end(), number) == numbers.end()) numbers.push_back(number);
}

}  // namespace

std::vector<std::string> enteredNumbers(UserFilesPort& files) {
    std::vector<std::string> numbers;
    try {
        std::istringstream lines(files.read(kFile));
        for (std::string line; numbers.size() < kKeptNumbers && std::getline(lines, line);)
            addOnce(numbers, upperCase(trimmed(line)));
    } catch (const RuntimeError&) {
        // None was kept, or nobody may read it.
    }
    return numbers;
}

void rememberNumber(UserFilesPort& files, const std::string& number) {
    std::vector<std::string> numbers;
    addOnce(numbers, number);
    // Read anew, so that two programs at a time keep each other's numbers.
    for (const std::string& earlier : enteredNumbers(files))
        addOnce(numbers, earlier);
    std::string lines;
    for (const std::string& kept : numbers)
        lines += kept + "\n";
    try {
        files.write(kFile, lines);
    } catch (const RuntimeError&) {
        // Not kept: it is typed again the next time.
    }
}

}  // namespace norlaplan
