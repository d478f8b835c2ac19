#pragma once

/// Places on the cover sheet in twips, from the upper left corner of the paper.
namespace norlaplan::faxpage {

constexpr double kTwipsPerInch = 1440.0;
constexpr double kTabWidth = 96.0;  ///< of a column, in type of 12 points

/// Where a tab's column begins; tabs count from 1.
constexpr double tab(int column) {
    return (column - 1) * kTabWidth;
}

constexpr double inches(double twips) {
    return twips / kTwipsPerInch;
}

}  // namespace norlaplan::faxpage
