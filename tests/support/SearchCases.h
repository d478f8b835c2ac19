#pragma once

#include "search/SearchEngine.h"
#include "state/LoadEntry.h"
#include "support/PlainSearch.h"

/// A search of the whole sample catalogue, for the program and for the plain search.
namespace norlaplan::testing {

class NeverStops : public SearchWatch {
  public:
    bool goOn(double) override { return true; }
};

struct SearchCase {
    const char* test;
    const char* caption;
    const char* letter;
};

inline constexpr SearchCase kSearchCases[] = {
    {"Radial", "RADIAL CONTACT", "C"},       {"FourPoint", "4-POINT CONTACT", "X"},
    {"BackToBack", "BACK-TO-BACK SET", "A"}, {"BackToBackWithSpacers", "BACK-TO-BACK SET WITH SPACERS", "A"},
    {"FaceToFace", "FACE-TO-FACE SET", "A"}, {"FaceToFaceWithSpacers", "FACE-TO-FACE SET WITH SPACERS", "A"}};

/// Every row of the catalogue is inside, its widest sets with next to no room for spacers.
inline constexpr plain::Envelope kWideEnvelope = {0.5F, 30.0F, 0.1F, 1.6F};

/// A load that every style carries: thrust is not for the radial one.
inline plain::SearchLoads searchLoads(const SearchCase& style) {
    return {500.0F, style.letter[0] == 'C' ? 0.0F : 100.0F, 200.0F};
}

inline ProgramState searchState(const SearchCase& style) {
    ProgramState state;
    state.style = {style.caption, style.letter};
    const auto& [minBore, maxOd, minHeight, maxHeight] = kWideEnvelope;
    state.criteria = {minBore, maxOd, minHeight, maxHeight, minBore, maxOd, minHeight, maxHeight};
    const plain::SearchLoads loads = searchLoads(style);
    state.loads.radialLoadDisplay = loads.radial;
    state.loads.axialLoadDisplay = loads.axial;
    state.loads.speed = loads.speed;
    convertLoads(state);
    return state;
}

}  // namespace norlaplan::testing
