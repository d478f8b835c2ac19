#include "documents/LogoMetafile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <vector>

#include "numbers/PiValue.h"

namespace norlaplan {
namespace {

using Words = std::vector<std::uint16_t>;

// Functions of the metafile's records; parameters stand in reverse order.
constexpr std::uint16_t kSetMapMode = 0x0103;
constexpr std::uint16_t kSetBackgroundMode = 0x0102;
constexpr std::uint16_t kSetWindowOrigin = 0x020B;
constexpr std::uint16_t kSetWindowExtent = 0x020C;
constexpr std::uint16_t kCreatePen = 0x02FA;
constexpr std::uint16_t kCreateBrush = 0x02FC;
constexpr std::uint16_t kCreateFont = 0x02FB;
constexpr std::uint16_t kSelectObject = 0x012D;
constexpr std::uint16_t kSetTextColour = 0x0209;
constexpr std::uint16_t kEllipse = 0x0418;
constexpr std::uint16_t kTextOut = 0x0521;

constexpr std::uint16_t kNavyLow = 0x2800;   // red 0, green 40
constexpr std::uint16_t kNavyHigh = 0x006E;  // blue 110

/// A metafile that grows record by record.
class Metafile {
  public:
    void add(std::uint16_t function, const Words& parameters) {
        const auto size = static_cast<std::uint32_t>(parameters.size()) + 3U;
        largest_ = std::max(largest_, size);
        words_.push_back(static_cast<std::uint16_t>(size));
        words_.push_back(0);
        words_.push_back(function);
        words_.insert(words_.end(), parameters.begin(), parameters.end());
    }

    void ellipse(int left, int top, int right, int bottom) {
        add(kEllipse, {word(bottom), word(right), word(top), word(left)});
    }

    /// The whole file: head, records, end.
    Words file(std::uint16_t objects) const {
        const auto size = static_cast<std::uint32_t>(9 + words_.size() + 3);
        Words file = {1,
                      9,
                      0x0300,
                      static_cast<std::uint16_t>(size),
                      static_cast<std::uint16_t>(size >> 16U),
                      objects,
                      static_cast<std::uint16_t>(largest_),
                      0,
                      0};
        file.insert(file.end(), words_.begin(), words_.end());
        file.insert(file.end(), {3, 0, 0});
        return file;
    }

    static std::uint16_t word(int value) { return static_cast<std::uint16_t>(value); }

  private:
    Words words_;
    std::uint32_t largest_ = 3;
};

/// Two characters a word, low byte first, filled up with a zero.
Words textWords(std::string_view text) {
    Words words;
    for (std::size_t at = 0; at < text.size(); at += 2) {
        const unsigned low = static_cast<unsigned char>(text[at]);
        const unsigned high = at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0U;
        words.push_back(static_cast<std::uint16_t>(low | high << 8U));
    }
    return words;
}

void addFont(Metafile& metafile) {
    constexpr std::uint16_t kBold = 700;
    Words font = {Metafile::word(-mark::kNameSize), 0, 0, 0, kBold, 0, 0, 0, 0};
    std::string face = "Arial";
    face.resize(32, '\0');
    const Words name = textWords(face);
    font.insert(font.end(), name.begin(), name.end());
    metafile.add(kCreateFont, font);
}

void addText(Metafile& metafile, std::string_view text, int x, int y) {
    Words parameters = {static_cast<std::uint16_t>(text.size())};
    const Words characters = textWords(text);
    parameters.insert(parameters.end(), characters.begin(), characters.end());
    parameters.push_back(Metafile::word(y));
    parameters.push_back(Metafile::word(x));
    metafile.add(kTextOut, parameters);
}

void addCircle(Metafile& metafile, const MarkCircle& circle) {
    metafile.ellipse(circle.x - circle.radius, circle.y - circle.radius, circle.x + circle.radius,
                     circle.y + circle.radius);
}

std::string hexOf(const Words& words) {
    constexpr char kDigits[] = "0123456789abcdef";
    constexpr std::size_t kWordsInLine = 32;
    std::string hex;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i % kWordsInLine == 0) hex += "\r\n";
        for (const unsigned byte : {words[i] & 0xFFU, static_cast<unsigned>(words[i]) >> 8U}) {
            hex += kDigits[byte >> 4U];
            hex += kDigits[byte & 15U];
        }
    }
    return hex;
}

}  // namespace

std::vector<MarkCircle> markCircles() {
    constexpr int kCentre = 470;
    constexpr int kBalls = 12;
    constexpr double kPitchRadius = 330.0;
    std::vector<MarkCircle> circles = {{kCentre, kCentre, 430}, {kCentre, kCentre, 230}};
    for (int ball = 0; ball < kBalls; ++ball) {
        const double angle = ball * TwoPiValue / kBalls;
        circles.push_back({kCentre + static_cast<int>(std::lround(kPitchRadius * std::cos(angle))),
                           kCentre + static_cast<int>(std::lround(kPitchRadius * std::sin(angle))), 74});
    }
    return circles;
}

std::string logoMetafileHex() {
    Metafile metafile;
    constexpr std::uint16_t kAnisotropic = 8;
    constexpr std::uint16_t kTransparent = 1;
    metafile.add(kSetMapMode, {kAnisotropic});
    metafile.add(kSetWindowOrigin, {0, 0});
    metafile.add(kSetWindowExtent, {Metafile::word(mark::kHeight), Metafile::word(mark::kWidth)});
    metafile.add(kSetBackgroundMode, {kTransparent});
    metafile.add(kCreatePen, {0, mark::kPen, 0, kNavyLow, kNavyHigh});
    metafile.add(kCreateBrush, {0, 0xFFFF, 0x00FF, 0});
    addFont(metafile);
    for (std::uint16_t object = 0; object < 3; ++object)
        metafile.add(kSelectObject, {object});
    metafile.add(kSetTextColour, {kNavyLow, kNavyHigh});
    for (const MarkCircle& circle : markCircles())
        addCircle(metafile, circle);
    addText(metafile, mark::kName, mark::kNameLeft, mark::kNameTop);
    return hexOf(metafile.file(3));
}

}  // namespace norlaplan
