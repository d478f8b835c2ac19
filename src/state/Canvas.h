#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace norlaplan {

/// A 24-bit colour: red in the low byte, then green, then blue.
using Colour = std::uint32_t;

constexpr Colour rgb(unsigned red, unsigned green, unsigned blue) {
    return red | green << 8U | blue << 16U;
}

namespace colours {
constexpr Colour kBlack = rgb(0, 0, 0);
constexpr Colour kWhite = rgb(255, 255, 255);
constexpr Colour kRed = rgb(255, 0, 0);
constexpr Colour kGreen = rgb(0, 255, 0);
constexpr Colour kBlue = rgb(0, 0, 255);
constexpr Colour kPurple = rgb(255, 0, 255);
}  // namespace colours

/// A place on the page in inches from its lower left corner, y upward.
struct PagePoint {
    double x = 0.0, y = 0.0;
};

/// A box on the page; `top` is above `bottom`.
struct PageBox {
    double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;
};

/// How a line is drawn: colour, width in EMU (9525 is 0.75 point) and dash code (0 solid, 6 dashed, 8
/// dash-dot).
struct PagePen {
    Colour colour = colours::kBlack;
    double width = 9525.0;
    int dash = 0;
};

enum class Typeface { Times, Arial, Courier, Antiqua };
enum class Alignment { Left, Centre, Right };

struct TextLook {
    Typeface typeface = Typeface::Times;
    double points = 10.0;
    Colour colour = colours::kBlack;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool vertical = false;  ///< turned to read upward
    Alignment alignment = Alignment::Left;
    bool middle = false;  ///< in the middle of the box's height instead of at its top
};

/// Where a drawing goes: the screen, the printer, PDF, a picture file. Every drawing of the program is made
/// by one routine onto this, in page inches, so that paper, file and screen can't differ.
class Canvas {
  public:
    virtual ~Canvas() = default;

    virtual void line(PagePoint from, PagePoint to, const PagePen& pen) = 0;
    /// Filled when `fill` has a colour, framed when `frame` has a pen.
    virtual void rectangle(const PageBox& box, std::optional<Colour> fill,
                           const std::optional<PagePen>& frame) = 0;
    virtual void circle(PagePoint centre, double radius, const PagePen& pen) = 0;
    /// Text (UTF-8) with its first line at the top of the box, or all of it in the middle of its height,
    /// aligned between left and right; never clipped.
    virtual void text(const PageBox& box, std::string_view text, const TextLook& look) = 0;
    /// Width of a text in inches, for layouts that go on behind it.
    virtual double textWidth(std::string_view text, const TextLook& look) = 0;
    virtual void newPage() = 0;
};

}  // namespace norlaplan
