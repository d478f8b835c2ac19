#pragma once

#include <array>
#include <string>

namespace norlaplan {

/// What a choice on the style screen sets, and the pictures that go with it.
struct StyleRow {
    const char* label;        ///< under the picture
    const char* caption;      ///< `searchStyleCaption`
    const char* tableLetter;  ///< `searchStyleLetter`
    const char* styleLetter;  ///< as in a part number
    const char* description;
    const char* pictureStem;  ///< "X" in "\bkground\X-L.BMP"
};

/// The six styles of the search path, in the order of the style screen's pictures.
constexpr std::array<StyleRow, 6> kStyles = {{
    {"BACK-TO-BACK", "BACK-TO-BACK SET", "A", "B", "Angular Contact Bearings Duplexed Back-to-Back", "DB"},
    {"4-POINT CONTACT", "4-POINT CONTACT", "X", "X", "4-Point Contact Bearing", "X"},
    {"FACE-TO-FACE", "FACE-TO-FACE SET", "A", "F", "Angular Contact Bearings Duplexed Face-to-Face", "DF"},
    {"BACK-TO-BACK W/ SPACERS", "BACK-TO-BACK SET WITH SPACERS", "A", "B",
     "Angular Contact Bearings Duplexed Back-to-Back with Spacers", "DBWS"},
    {"RADIAL CONTACT", "RADIAL CONTACT", "C", "C", "Radial Contact Bearing", "C"},
    {"FACE-TO FACE W/ SPACERS", "FACE-TO-FACE SET WITH SPACERS", "A", "F",
     "Angular Contact Bearings Duplexed Face-to-Face with Spacers", "DFWS"},
}};

/// The row with that caption; none for another text.
constexpr const StyleRow* styleByCaption(const std::string& caption) {
    for (const StyleRow& row : kStyles) {
        if (caption == row.caption) return &row;
    }
    return nullptr;
}

/// The row that shows a known bearing's style letter ("B", "C", "F", "X"); none for the others.
constexpr const StyleRow* styleByLetter(const std::string& letter) {
    for (const StyleRow& row : kStyles) {
        if (letter == row.styleLetter) return &row;
    }
    return nullptr;
}

/// The picture files: kind is "T" (small picture), "L" (loads) or "S" (sizes).
inline std::string stylePicture(const StyleRow& row, char kind) {
    const std::string stem = row.pictureStem;
    return kind == 'T' ? "\\bkground\\T-" + stem + ".BMP" : "\\bkground\\" + stem + "-" + kind + ".BMP";
}

}  // namespace norlaplan
