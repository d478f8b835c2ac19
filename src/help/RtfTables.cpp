#include "help/RtfTables.h"

#include <algorithm>

namespace norlaplan {
namespace {

constexpr std::size_t kMostFonts = 256;
constexpr std::size_t kMostColours = 1024;
constexpr std::size_t kLongestName = 100;
constexpr int kSymbolCharacters = 2;

}  // namespace

RtfTables::Font* RtfTables::font() {
    const auto found = fonts_.find(font_);
    if (found != fonts_.end()) return &found->second;
    return fonts_.size() < kMostFonts ? &fonts_[font_] : nullptr;
}

void RtfTables::fontWord(const RtfToken& token) {
    if (token.text == "f") font_ = token.number;
    if (token.text == "fcharset") {
        if (Font* const entry = font()) entry->symbols = token.number == kSymbolCharacters;
    }
}

void RtfTables::fontText(std::string_view bytes) {
    Font* const entry = font();
    if (entry == nullptr) return;
    for (const char c : bytes) {
        if (c == ';') {
            entry->named = true;
        } else if (!entry->named && entry->name.size() < kLongestName) {
            entry->name += utf8OfWestern(static_cast<unsigned char>(c));
        }
    }
}

void RtfTables::colourWord(const RtfToken& token) {
    const auto part = static_cast<Colour>(std::clamp(token.number, 0, 255));
    const Colour before = nextColour_.value_or(0);
    if (token.text == "red") nextColour_ = (before & 0xFFFF00U) | part;
    if (token.text == "green") nextColour_ = (before & 0xFF00FFU) | part << 8U;
    if (token.text == "blue") nextColour_ = (before & 0x00FFFFU) | part << 16U;
}

void RtfTables::colourText(std::string_view bytes) {
    for (const char c : bytes) {
        if (c != ';' || colours_.size() >= kMostColours) continue;
        colours_.push_back(nextColour_);
        nextColour_.reset();
    }
}

std::string RtfTables::fontName(int number) const {
    const auto found = fonts_.find(number);
    return found == fonts_.end() ? "" : found->second.name;
}

bool RtfTables::isSymbolFont(int number) const {
    const auto found = fonts_.find(number);
    return found != fonts_.end() && found->second.symbols;
}

std::optional<Colour> RtfTables::colour(int number) const {
    if (number < 0 || static_cast<std::size_t>(number) >= colours_.size()) return std::nullopt;
    return colours_[static_cast<std::size_t>(number)];
}

}  // namespace norlaplan
