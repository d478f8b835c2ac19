#include "search/HitLine.h"

#include "numbers/FormatNumber.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

constexpr const char* kGap = "    ";
constexpr const char* kPicture = "0.00E+00";

/// The stored text in the list's picture, read back as a 32-bit float: the list shows no more than the row
/// holds.
std::string shown(const std::string& text) {
    return FormatNumber(Single(leadingNumber(text)), kPicture);
}

}  // namespace

std::string FormatHitLine(const ProgramState& state, const SearchHit& hit, const std::string& mark) {
    std::string line = hit.name + kGap + shown(hit.l10Revolutions) + " revs.    ";
    if (state.loads.speed == 0.0) return line + "STOCK - " + hit.stock;
    return line + shown(hit.l10Hours) + " hrs.    STOCK - " + hit.stock + mark;
}

std::string overSpeedMark(const ProgramState& state, const SearchHit& hit) {
    return leadingNumber(hit.speedLimit) < state.loads.speed ? "   Over Speed!" : "";
}

}  // namespace norlaplan
