#include <algorithm>

#include "documents/LogoMetafile.h"
#include "documents/SheetNames.h"
#include "documents/SheetRecords.h"

namespace norlaplan {
namespace {

/// Where the document's own margin is; a box that is stated wider ends there.
constexpr double kRightMargin = 8.0;

Colour colourNamed(const std::string& name) {
    const SheetColour* const known = sheetColour(name);
    return known == nullptr ? colours::kBlack : known->colour;
}

TextLook lookOf(const SheetText& text) {
    TextLook look;
    look.typeface = sheetFont(text.font).typeface;
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

    void operator()(const SheetText& text) const {
        PageBox place = text.box;
        place.left -= labelIndent(text);
        canvas_.text(place, text.text, lookOf(text));
    }

    void operator()(const SheetTextBox& box) const {
        PageBox place = box.text.box;
        place.right = std::min(place.right, kRightMargin);
        canvas_.rectangle(place, box.fill, PagePen{});
        TextLook look = lookOf(box.text);
        look.alignment = Alignment::Centre;
        look.middle = true;
        if (!box.text.text.empty()) canvas_.text(place, box.text.text, look);
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

}  // namespace

void paintRecords(const std::vector<SheetRecord>& records, Canvas& canvas) {
    const Painter painter(canvas);
    for (const SheetRecord& record : records)
        std::visit(painter, record);
}

void paintSheet(std::string_view records, Canvas& canvas) {
    const std::vector<SheetRecord> sheet = readSheetRecords(records);
    // Where the document's head has its picture.
    drawLogo(canvas, {5.96, 10.35}, 2.04);
    paintRecords(sheet, canvas);
}

}  // namespace norlaplan
