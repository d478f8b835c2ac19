#include "documents/SheetWriter.h"

#include <string_view>

#include "numbers/FormatNumber.h"

namespace norlaplan {
namespace {

SheetText sheetText(const PageBox& box, const std::string& words, const SheetStyle& style) {
    SheetText text;
    text.box = box;
    text.size = style.size;
    text.colour = style.colour;
    text.text = words;
    text.bold = style.bold;
    text.font = style.font;
    text.vertical = style.vertical;
    return text;
}

}  // namespace

void SheetWriter::text(const PageBox& box, const std::string& words, const SheetStyle& style) const {
    document.RTFDATASHEETTEXT(sheetText(box, words, style));
}

void SheetWriter::box(const PageBox& box, const std::string& words, Colour fill,
                      const SheetStyle& style) const {
    document.RTFTEXTWBOX({sheetText(box, words, style), fill});
}

void SheetWriter::line(PagePoint from, PagePoint to, Colour colour, double width) const {
    document.RTFLINE(from, to, colour, width);
}

std::string SheetWriter::length(double inches, const std::string& picture) const {
    return FormatNumber(inches * units.lengthFactor, picture);
}

bool SheetWriter::styleIsOneOf(const char* letters) const {
    return std::string_view(letters).find(bearing.styleLetter) != std::string_view::npos;
}

}  // namespace norlaplan
