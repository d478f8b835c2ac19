#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "help/RichDocument.h"
#include "help/RtfTokens.h"

namespace norlaplan {

/// Gathers the words and bytes of a picture group.
class RtfPicture {
  public:
    /// A word of the group, such as "pngblip" or "picwgoal".
    void word(const RtfToken& token);
    /// Hexadecimal digits.
    void hex(std::string_view digits);
    void binary(std::string_view bytes);

    /// The picture; nothing for a kind that the viewer doesn't show or an empty one.
    std::optional<PictureRun> take();

  private:
    enum class Kind { Unknown, Png, Jpeg, Dib, Metafile };
    Kind kind_ = Kind::Unknown;
    std::string bytes_;
    int pendingDigit_ = -1;
    double width_ = 0.0, height_ = 0.0, scaleX_ = 100.0, scaleY_ = 100.0;
};

/// The bitmap file of a device independent bitmap; empty when its head makes no sense.
std::string bitmapFileOf(const std::string& dib);

}  // namespace norlaplan
