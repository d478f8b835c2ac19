#include <algorithm>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/SampleSheet.h"

namespace norlaplan {
namespace {

using testing::Sheet;

/// A shape as a word processor reads it: its box in twips from the page's upper left corner, its properties
/// by name, its text.
struct Shape {
    int left = 0, top = 0, right = 0, bottom = 0;
    std::map<std::string, std::string> properties;
    std::string text;

    std::string operator[](const std::string& name) const {
        const auto at = properties.find(name);
        return at == properties.end() ? "" : at->second;
    }
    bool isText() const { return (*this)["shapeType"] == "202"; }
    bool isLine() const { return (*this)["shapeType"] == "20"; }
};

std::vector<Shape> shapesOf(const std::string& rtf) {
    static const std::regex kBox(R"(\\shpleft(-?\d+)\\shptop(-?\d+)\s*\\shpright(-?\d+)\\shpbottom(-?\d+))");
    static const std::regex kProperty(R"(\{\\sp\{\\sn (\w+)\}\{\\sv ([^}]*)\}\})");
    static const std::regex kText(R"(\\fs\d+(?:\\f\d+)? ([^{}]*)\\par \}\}\})");
    std::vector<Shape> shapes;
    const std::string begin = "{\\shp{\\*\\shpinst";
    for (std::size_t at = rtf.find(begin); at != std::string::npos; at = rtf.find(begin, at + 1)) {
        const std::string body = rtf.substr(at, rtf.find("{\\shprslt", at) - at);
        std::smatch match;
        if (!std::regex_search(body, match, kBox)) continue;
        Shape shape{
            std::stoi(match[1]), std::stoi(match[2]), std::stoi(match[3]), std::stoi(match[4]), {}, {}};
        for (std::sregex_iterator next(body.begin(), body.end(), kProperty), end; next != end; ++next)
            shape.properties[(*next)[1]] = (*next)[2];
        if (std::regex_search(body, match, kText)) shape.text = match[1];
        shapes.push_back(shape);
    }
    return shapes;
}

std::vector<Shape> drawn(Sheet& sheet) {
    sheet.draw();
    return shapesOf(sheet.files.rtf);
}

int twips(double inches) {
    return static_cast<int>(1440.0 * inches);
}

TEST(DataSheetRtf, SetsCellsInTheirMiddleAndOtherTextsAtTheirTop) {
    Sheet sheet;
    int cells = 0;
    for (const Shape& shape : drawn(sheet)) {
        if (!shape.isText() || shape.text.empty()) continue;
        const bool cell = shape["fFilled"] == "1";
        cells += cell ? 1 : 0;
        EXPECT_EQ(shape["anchorText"], cell ? "1" : "") << shape.text;
    }
    // Three headings, eleven cells of ratings and fourteen of fits.
    EXPECT_EQ(cells, 28);
}

TEST(DataSheetRtf, HasWhiteBetweenTheGridAndTheFiguresOfASpeed) {
    Sheet sheet;
    // 1.43 + 1.65 x 870 / 1500 = 2.387: the grid line at 2.42 runs through the figures above it.
    sheet.state.bearing.limitSpeedGrease = 870.0;
    const std::vector<Shape> shapes = drawn(sheet);
    const auto figures =
        std::find_if(shapes.begin(), shapes.end(), [](const Shape& shape) { return shape.text == "870"; });
    ASSERT_NE(figures, shapes.end());
    EXPECT_EQ(figures->left, twips(4.45));
    const auto level = [](const Shape& shape, double y) {
        return shape.isLine() && shape.top == shape.bottom && std::abs(shape.top - twips(11.0 - y)) <= 1;
    };
    const auto grid =
        std::find_if(shapes.begin(), figures, [&](const Shape& shape) { return level(shape, 2.42); });
    ASSERT_NE(grid, figures);
    const auto patch = std::find_if(grid, figures, [&](const Shape& shape) {
        return shape.isLine() && shape["lineColor"] == "16777215" && shape.top > figures->top &&
               shape.top < figures->bottom;
    });
    ASSERT_NE(patch, figures) << "white comes after the grid and before the figures";
    // Three figures of half a size of 7 points each, 0.676 of it high; a twip is 635 EMU.
    EXPECT_LE(patch->left, figures->left);
    EXPECT_GE(patch->right, figures->left + twips(3 * 3.5 / 72.0));
    EXPECT_GE(std::stoi((*patch)["lineWidth"]) / 635, twips(0.676 * 7.0 / 72.0));
    const auto curve =
        std::find_if(patch, figures, [](const Shape& shape) { return shape["lineColor"] == "255"; });
    EXPECT_NE(curve, figures) << "the curves go over the white";
}

TEST(DataSheetRtf, DrawsOverlaysInTwoWeights) {
    Sheet sheet;
    sheet.place.write("overlays/X.ovl", "PU0,0;PD1016,0;SP2;PD1016,1016;SP3;PD0,1016;SP1;PD0,0;");
    const std::vector<Shape> shapes = drawn(sheet);
    const struct {
        const char *width, *colour;
        double left, top, right, bottom;
    } rows[] = {{"19050", "0", 0.25, 0.625, 1.25, 0.625},
                {"9525", "0", 1.25, 1.625, 1.25, 0.625},
                {"9525", "16711680", 0.25, 1.625, 1.25, 1.625},
                {"9525", "255", 0.25, 1.625, 0.25, 0.625}};
    for (const auto& row : rows) {
        const bool found = std::any_of(shapes.begin(), shapes.end(), [&](const Shape& shape) {
            return shape.isLine() && shape["lineWidth"] == row.width && shape["lineColor"] == row.colour &&
                   std::abs(shape.left - twips(row.left)) <= 1 &&
                   std::abs(shape.right - twips(row.right)) <= 1 &&
                   std::abs(shape.bottom - twips(11.0 - row.bottom)) <= 1;
        });
        EXPECT_TRUE(found) << row.width << " " << row.colour;
    }
}

}  // namespace
}  // namespace norlaplan
