#include "documents/SheetNames.h"

#include <utility>

#include "documents/Graph.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr SheetColour kColours[] = {{"black", colours::kBlack, 1},
                                    {"blue", colours::kBlue, 2},
                                    {"green", colours::kGreen, 4},
                                    {"purple", colours::kPurple, 5},
                                    {"red", colours::kRed, 6}};
constexpr std::pair<Colour, Colour> kBrighter[] = {{graphcolours::kDarkBlue, colours::kBlue},
                                                   {graphcolours::kDarkGreen, colours::kGreen},
                                                   {graphcolours::kDarkRed, colours::kRed}};

constexpr SheetFont kFonts[] = {{"TNR", Typeface::Times, 0},
                                {"ARIEL", Typeface::Arial, 1},
                                {"Courier New", Typeface::Courier, 2},
                                {"Book Antiqua", Typeface::Antiqua, 3}};

}  // namespace

const SheetColour* sheetColour(std::string_view name) {
    const std::string lower = lowerCase(name);
    for (const SheetColour& entry : kColours) {
        if (lower == entry.name) return &entry;
    }
    return nullptr;
}

const SheetColour& sheetColourNear(Colour colour) {
    for (const auto& [dark, bright] : kBrighter) {
        if (colour == dark) colour = bright;
    }
    for (const SheetColour& entry : kColours) {
        if (colour == entry.colour) return entry;
    }
    return kColours[0];
}

const SheetFont& sheetFont(std::string_view name) {
    for (const SheetFont& entry : kFonts) {
        if (name == entry.name) return entry;
    }
    return kFonts[0];
}

const SheetFont& sheetFont(Typeface typeface) {
    for (const SheetFont& entry : kFonts) {
        if (typeface == entry.typeface) return entry;
    }
    return kFonts[0];
}

}  // namespace norlaplan
