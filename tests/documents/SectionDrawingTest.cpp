#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/SectionDrawing.h"
#include "support/RecordingPorts.h"

/// Which part of the sheet's drawings stands on a report, and where.
namespace norlaplan {
namespace {

using testing::RecordingCanvas;

struct Stroke {
    PagePoint from, to;
};

/// A plot of these lines, in page inches of the sheet: 1016 units an inch from (0.25, 0.625).
std::string plotOf(const std::vector<Stroke>& strokes) {
    const auto at = [](PagePoint point) {
        return std::to_string((point.x - 0.25) * 1016.0) + "," + std::to_string((point.y - 0.625) * 1016.0) +
               ";";
    };
    std::string plot;
    for (const Stroke& stroke : strokes)
        plot += "PU" + at(stroke.from) + "PD" + at(stroke.to);
    return plot;
}

RecordingCanvas drawn(const std::string& style, const std::vector<Stroke>& section,
                      const std::vector<Stroke>& separator, PagePoint centre) {
    testing::TemporaryFolder place;
    place.write("overlays/" + style + ".ovl", plotOf(section));
    for (const char* const suffix : {"XC", "U", "A"})
        place.write(std::string("overlays/RIBBON") + suffix + ".sep", plotOf(separator));
    BearingSpec bearing;
    bearing.styleLetter = style;
    bearing.separatorOverlay = "RIBBON";
    RecordingCanvas canvas;
    drawSection(canvas, bearing, ProgramFolder(place.path()), centre);
    return canvas;
}

/// The four edges of a box.
std::vector<Stroke> edges(double left, double top, double right, double bottom) {
    return {{{left, bottom}, {left, top}},
            {{left, top}, {right, top}},
            {{right, top}, {right, bottom}},
            {{right, bottom}, {left, bottom}}};
}

// The rings of one bearing are two inches wide on the sheet, from 2.95 to 4.95, those of a set half as wide;
// both are two inches high, from 6.8 to 8.8. Their middle is at (3.95, 7.8).
TEST(SectionDrawing, ShowsTheRingsAndNothingBesideThem) {
    for (const std::string style : {"A", "U", "C", "X", "B", "F", "T"}) {
        const bool set = style == "B" || style == "F" || style == "T";
        const double half = set ? 0.5 : 1.0;
        const std::vector<Stroke> rings = edges(3.95 - half, 8.8, 3.95 + half, 6.8);
        std::vector<Stroke> all = rings;
        for (const Stroke& beside : edges(3.95 - half - 0.1, 8.9, 3.95 + half + 0.1, 6.7))
            all.push_back(beside);
        all.push_back({{3.95, 7.8}, {3.95, 9.1}});  // a line that runs out of them
        const RecordingCanvas canvas = drawn(style, all, {}, {3.2, 5.0});
        ASSERT_EQ(canvas.lines.size(), rings.size()) << style;
        for (std::size_t i = 0; i < rings.size(); ++i) {
            EXPECT_NEAR(canvas.lines[i].from.x, rings[i].from.x - 0.75, 1e-5) << style << i;
            EXPECT_NEAR(canvas.lines[i].from.y, rings[i].from.y - 2.8, 1e-5) << style << i;
            EXPECT_NEAR(canvas.lines[i].to.x, rings[i].to.x - 0.75, 1e-5) << style << i;
            EXPECT_NEAR(canvas.lines[i].to.y, rings[i].to.y - 2.8, 1e-5) << style << i;
        }
    }
}

// The view of the separator is in the middle of its field at (7.25, 5.6).
TEST(SectionDrawing, ShowsTheSeparatorBesideThem) {
    const std::vector<Stroke> separator = {{{6.4, 5.6}, {8.1, 5.6}}, {{7.25, 5.1}, {7.25, 6.1}}};
    std::vector<Stroke> all = separator;
    all.push_back({{6.25, 5.6}, {8.1, 5.6}});
    all.push_back({{7.25, 4.95}, {7.25, 6.1}});
    const RecordingCanvas canvas = drawn("X", {}, all, {3.2, 5.0});
    ASSERT_EQ(canvas.lines.size(), 2U);
    const PagePoint middle{(canvas.lines[0].from.x + canvas.lines[0].to.x) / 2.0, canvas.lines[0].from.y};
    EXPECT_NEAR(middle.y, 5.0, 1e-5) << "at the height of the section";
    EXPECT_NEAR(middle.x, canvas.lines[1].from.x, 1e-5);
    EXPECT_GT(canvas.lines[0].from.x, 3.2 + 1.0) << "clear of the rings";
    EXPECT_NEAR(canvas.lines[0].to.x - canvas.lines[0].from.x, 1.7, 1e-5) << "as large as on the sheet";
    EXPECT_NEAR(canvas.lines[1].to.y - canvas.lines[1].from.y, 1.0, 1e-5);
    EXPECT_LT(canvas.lines[0].to.x, papers::kLetter.width - 0.25) << "on the page";
}

TEST(SectionDrawing, ThatIsTooLargeSaysSoAboveTheSectionInRed) {
    testing::TemporaryFolder place;
    std::string plot = "PU0,0;";
    for (int i = 0; i < 5001; ++i)
        plot += "PD1,2;";
    place.write("overlays/X.ovl", plot);
    place.write("overlays/RIBBONXC.sep", "");
    BearingSpec bearing;
    bearing.styleLetter = "X";
    bearing.separatorOverlay = "RIBBON";
    RtfDocument document;
    writeOverlays(document, bearing, ProgramFolder(place.path()));
    const auto records = readSheetRecords(document.records());
    const auto* const note = std::get_if<SheetText>(&records.back());
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->text, "The drawing is not whole: its overlay draws too much.");
    EXPECT_EQ(note->colour, "RED");
    EXPECT_EQ(note->font, "TNR");
    EXPECT_FALSE(note->vertical || note->italic || note->bold);
    EXPECT_GT(note->box.bottom, 8.8) << "above the section";
    EXPECT_LT(note->box.top, 9.502) << "below the title";
    EXPECT_GT(note->size, 8.0);
}

}  // namespace
}  // namespace norlaplan
