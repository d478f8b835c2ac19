#include "catalogue/CodeTexts.h"

#include <algorithm>
#include <iterator>

namespace norlaplan {
namespace {

struct CodeText {
    const char* code;
    const char* text;
};

constexpr CodeText kMaterials[] = {
    {"K", "K = Vacuum Degassed 52100 Steel"},
    {"S", "S = 440C Steel"},
    {"N", "N = Vacuum Degassed 52100 Steel w/ Armorline"},
};
constexpr CodeText kStyles[] = {
    {"A", "A= Angular Contact Ball Radial Bearing"},
    {"B", "B= Back-to-Back Duplexed pair"},
    {"C", "C= Radial Contact Ball Bearing"},
    {"F", "F= Face-to-Face Duplexed pair"},
    {"T", "T= Tandem Pair of Angular Contact Bearings"},
    {"U", "U= Universal Ground Angular Contact Bearing"},
    {"X", "X= 4-Point Contact Ball Radial Bearing"},
};
constexpr CodeText kPrecisions[] = {
    {"0", "0= Precision Class 1"},
    {"1", "1= Precision Class 1 With Class 4 Runouts"},
    {"2", "2= Precision Class 1 With Class 6 Runouts"},
    {"4", "4= Precision Class 4"},
    {"6", "6= Precision Class 6"},
};

template <std::size_t N>
std::string textOf(const CodeText (&table)[N], const std::string& code) {
    const auto* const found = std::find_if(std::begin(table), std::end(table),
                                           [&](const CodeText& row) { return code == row.code; });
    return found == std::end(table) ? std::string() : found->text;
}

template <std::size_t N>
std::string codesOf(const CodeText (&table)[N]) {
    std::string list = table[0].code;
    for (std::size_t i = 1; i < N; ++i)
        list += (i + 1 < N ? ", " : " or ") + std::string(table[i].code);
    return list;
}

}  // namespace

std::string materialTextOf(const std::string& code) {
    return textOf(kMaterials, code);
}
std::string styleTextOf(const std::string& letter) {
    return textOf(kStyles, letter);
}
std::string precisionTextOf(const std::string& code) {
    return textOf(kPrecisions, code);
}

std::string materialCodes() {
    return codesOf(kMaterials);
}
std::string styleLetters() {
    return codesOf(kStyles);
}
std::string precisionCodes() {
    return codesOf(kPrecisions);
}

std::string familyOf(const std::string& styleLetter) {
    if (styleLetter == "C" || styleLetter == "X") return styleLetter;
    return styleTextOf(styleLetter).empty() ? "" : "A";
}

}  // namespace norlaplan
