#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// Reads an RTF document as another program does: by its control words, not by the text that made them.
namespace norlaplan::testing {

struct RtfWord {
    std::string name;
    std::optional<int> number;
};

/// The control words of a piece of RTF in their order.
inline std::vector<RtfWord> wordsOf(const std::string& rtf) {
    std::vector<RtfWord> words;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] != '\\' || ++i >= rtf.size()) continue;
        RtfWord word;
        while (i < rtf.size() && rtf[i] >= 'a' && rtf[i] <= 'z')
            word.name += rtf[i++];
        std::string digits;
        while (i < rtf.size() && ((rtf[i] >= '0' && rtf[i] <= '9') || (digits.empty() && rtf[i] == '-')))
            digits += rtf[i++];
        if (!digits.empty()) word.number = std::stoi(digits);
        if (!word.name.empty()) {
            words.push_back(word);
            --i;
        }
    }
    return words;
}

/// The group that begins with these characters, braces and all; empty when there is none.
inline std::string groupOf(const std::string& rtf, const std::string& start, std::size_t from = 0) {
    const std::size_t first = rtf.find(start, from);
    if (first == std::string::npos) return "";
    int depth = 0;
    for (std::size_t i = first; i < rtf.size(); ++i) {
        if (rtf[i] == '\\') {
            ++i;
        } else if (rtf[i] == '{') {
            ++depth;
        } else if (rtf[i] == '}' && --depth == 0) {
            return rtf.substr(first, i + 1 - first);
        }
    }
    return "";
}

struct RtfColour {
    int red = 0, green = 0, blue = 0;
    bool operator==(const RtfColour&) const = default;
};

/// The colour table; entry 0 is the automatic one.
inline std::vector<RtfColour> colourTableOf(const std::string& rtf) {
    std::vector<RtfColour> table;
    const std::string group = groupOf(rtf, "{\\colortbl");
    std::size_t start = 0;
    for (std::size_t end = group.find(';'); end != std::string::npos; end = group.find(';', start)) {
        RtfColour colour;
        for (const RtfWord& word : wordsOf(group.substr(start, end - start))) {
            if (word.name == "red") colour.red = *word.number;
            if (word.name == "green") colour.green = *word.number;
            if (word.name == "blue") colour.blue = *word.number;
        }
        table.push_back(colour);
        start = end + 1;
    }
    return table;
}

/// The last number that each control word has.
inline std::map<std::string, int> numbersOf(const std::string& rtf) {
    std::map<std::string, int> numbers;
    for (const RtfWord& word : wordsOf(rtf)) {
        if (word.number) numbers[word.name] = *word.number;
    }
    return numbers;
}

/// All numbers of one control word in their order.
inline std::vector<int> numbersOf(const std::string& rtf, const std::string& name) {
    std::vector<int> numbers;
    for (const RtfWord& word : wordsOf(rtf)) {
        if (word.name == name && word.number) numbers.push_back(*word.number);
    }
    return numbers;
}

}  // namespace norlaplan::testing
