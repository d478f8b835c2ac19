#include "documents/SheetRecords.h"
#include "numbers/Text.h"

namespace norlaplan {
namespace {

Colour colourNamed(const std::string& name) {
    const std::string upper = upperCase(name);
    if (upper == "BLUE") return colours::kBlue;
    if (upper == "PURPLE") return colours::kPurple;
    if (upper == "GREEN") return colours::kGreen;
    if (upper == "RED") return colours::kRed;
    return colours::kBlack;
}

Typeface typefaceNamed(const std::string& name) {
    if (name == "ARIEL") return Typeface::Arial;
    if (name == "Courier New") return Typeface::Courier;
    if (name == "Book Antiqua") return Typeface::Antiqua;
    return Typeface::Times;
}

TextLook lookOf(const SheetText& text) {
    TextLook look;
    look.typeface = typefaceNamed(text.font);
    look.points = text.size;
    look.colour = colourNamed(text.colour);
    look.bold = text.bold;
    look.italic = text.italic;
    look.vertical = text.vertical;
    return look;
}

class Painter {
  public:
    explicit Painter(Canvas& canvas) : canvas_(canvas) {}

    void operator()(const SheetText& text) const { canvas_.text(text.box, text.text, lookOf(text)); }

    void operator()(const SheetTextBox& box) const {
        canvas_.rectangle(box.text.box, box.fill, PagePen{});
        TextLook look = lookOf(box.text);
        look.alignment = Alignment::Centre;
        if (!box.text.text.empty()) canvas_.text(box.text.box, box.text.text, look);
    }

    void operator()(const SheetTint& tint) const { canvas_.rectangle(tint.box, tint.fill, PagePen{}); }

    void operator()(const SheetLine& line) const {
        canvas_.line(line.from, line.to, PagePen{line.colour, line.width, line.dash});
    }

    void operator()(const SheetCircle& circle) const {
        canvas_.circle(circle.centre, circle.radius, PagePen{circle.colour, circle.width, 0});
    }

  private:
    Canvas& canvas_;
};

/// The maker's mark, where the document's head has its picture.
void paintMark(Canvas& canvas) {
    constexpr Colour kNavy = rgb(0, 40, 110);
    const PagePen ring{kNavy, 28575.0, 0};
    canvas.circle({6.33, 10.015}, 0.27, ring);
    canvas.circle({6.33, 10.015}, 0.15, ring);
    TextLook look;
    look.typeface = Typeface::Arial;
    look.points = 24.0;
    look.bold = true;
    look.colour = kNavy;
    canvas.text({6.68, 10.21, 8.0, 9.85}, "VARDEN", look);
}

}  // namespace

void paintSheet(std::string_view records, Canvas& canvas) {
    const std::vector<SheetRecord> sheet = readSheetRecords(records);
    paintMark(canvas);
    const Painter painter(canvas);
    for (const SheetRecord& record : sheet)
        std::visit(painter, record);
}

}  // namespace norlaplan
