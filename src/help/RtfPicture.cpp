#include "help/RtfPicture.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace norlaplan {
namespace {

constexpr std::size_t kMostBytes = 16U << 20U;
constexpr double kMostTwips = 20000.0;

std::uint32_t littleEndian(const std::string& bytes, std::size_t at, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i) {
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8U * i);
    }
    return value;
}

void append(std::string& bytes, std::uint32_t value) {
    for (unsigned i = 0; i < 4; ++i)
        bytes += static_cast<char>(static_cast<unsigned char>(value >> (8U * i)));
}

int shownTwips(double goal, double scale) {
    return static_cast<int>(std::clamp(goal * scale / 100.0, 0.0, kMostTwips));
}

/// The bitmap that a Windows metafile draws, as a device independent one: so older programs keep pictures.
/// Empty when it draws none.
std::string dibOf(const std::string& metafile) {
    constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7U;
    constexpr std::size_t kPlaceableHead = 22, kHead = 18, kRecordHead = 6;
    constexpr std::uint32_t kStretchDib = 0x0F43, kDibStretchBlt = 0x0B41;
    if (metafile.size() < kHead) return {};
    std::size_t at = kHead + (littleEndian(metafile, 0, 4) == kPlaceableKey ? kPlaceableHead : 0);
    while (at + kRecordHead <= metafile.size()) {
        const std::size_t length = std::size_t{2} * littleEndian(metafile, at, 4);
        if (length < kRecordHead || length > metafile.size() - at) return {};
        const std::uint32_t function = littleEndian(metafile, at + 4, 2);
        const std::size_t bitmap = function == kStretchDib ? 28 : function == kDibStretchBlt ? 26 : length;
        if (bitmap < length) return metafile.substr(at + bitmap, length - bitmap);
        at += length;
    }
    return {};
}

}  // namespace

void RtfPicture::word(const RtfToken& token) {
    const std::string_view name = token.text;
    if (name == "pngblip") kind_ = Kind::Png;
    if (name == "jpegblip") kind_ = Kind::Jpeg;
    if (name == "dibitmap") kind_ = Kind::Dib;
    if (name == "wmetafile") kind_ = Kind::Metafile;
    if (name == "picwgoal") width_ = token.number;
    if (name == "pichgoal") height_ = token.number;
    if (name == "picscalex") scaleX_ = token.number;
    if (name == "picscaley") scaleY_ = token.number;
}

void RtfPicture::hex(std::string_view digits) {
    for (const char c : digits) {
        const int digit = hexDigit(c);
        if (digit < 0 || bytes_.size() >= kMostBytes) continue;
        if (pendingDigit_ < 0) {
            pendingDigit_ = digit;
        } else {
            bytes_ += static_cast<char>(static_cast<unsigned char>(pendingDigit_ * 16 + digit));
            pendingDigit_ = -1;
        }
    }
}

void RtfPicture::binary(std::string_view bytes) {
    bytes_ += bytes.substr(0, kMostBytes - bytes_.size());
}

std::optional<PictureRun> RtfPicture::take() {
    PictureRun picture;
    picture.width = shownTwips(width_, scaleX_);
    picture.height = shownTwips(height_, scaleY_);
    picture.format = kind_ == Kind::Png ? "png" : kind_ == Kind::Jpeg ? "jpg" : "bmp";
    if (kind_ == Kind::Unknown) return std::nullopt;
    if (kind_ == Kind::Metafile) bytes_ = dibOf(bytes_);
    const bool isDib = kind_ == Kind::Dib || kind_ == Kind::Metafile;
    picture.bytes = isDib ? bitmapFileOf(bytes_) : std::move(bytes_);
    if (picture.bytes.empty()) return std::nullopt;
    return picture;
}

std::string bitmapFileOf(const std::string& dib) {
    constexpr std::size_t kHead = 40;
    constexpr std::uint32_t kFileHead = 14, kBitFields = 3, kMasks = 12;
    if (dib.size() < kHead) return {};
    const std::uint32_t headSize = littleEndian(dib, 0, 4);
    const std::uint32_t bits = littleEndian(dib, 14, 2);
    const bool hasMasks = headSize == kHead && littleEndian(dib, 16, 4) == kBitFields;
    std::uint32_t colours = littleEndian(dib, 32, 4);
    if (headSize < kHead || headSize > dib.size() || colours > 256) return {};
    if (colours == 0 && bits <= 8) colours = 1U << bits;
    std::string file = "BM";
    append(file, kFileHead + static_cast<std::uint32_t>(dib.size()));
    append(file, 0);
    append(file, kFileHead + headSize + (hasMasks ? kMasks : 0U) + colours * 4U);
    return file + dib;
}

}  // namespace norlaplan
