#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/SampleSheet.h"

/// Where a text of the part number detail is cut: at the frame, by the widths of Times.
namespace norlaplan {
namespace {

using testing::Sheet;

/// Thousandths of the type size, from the blank to the tilde, as the maker of Times-Roman gives them.
const std::vector<int> kTimes = {
    250, 333, 408, 500, 500, 833, 778, 180, 333, 333, 500, 564, 250, 333, 250, 278,  //   ! " # ... . /
    500, 500, 500, 500, 500, 500, 500, 500, 500, 500, 278, 278, 564, 564, 564, 444,  // 0 1 2 ... > ?
    921, 722, 667, 667, 722, 611, 556, 722, 722, 333, 389, 722, 611, 889, 722, 722,  // @ A B ... N O
    556, 722, 667, 556, 611, 722, 722, 944, 722, 722, 611, 333, 278, 333, 469, 500,  // P Q R ... ^ _
    333, 444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500, 278, 778, 500, 500,  // ` a b ... n o
    500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444, 480, 200, 480, 541};      // p q r ... } ~

/// The frame leaves 2.9 inches, 26.1 times a size of 8 points.
constexpr int kRoom = 26100;

/// A text as wide as that, of as many of the one letter as leave room to get there with others.
std::string textOfWidth(int total, char letter, int& count) {
    const int width = kTimes[static_cast<std::size_t>(letter - ' ')];
    count = (total - 4000) / width;
    const int rest = total - count * width;
    std::vector<char> last(static_cast<std::size_t>(rest) + 1, '\0');
    for (int reached = 0; reached < rest; ++reached) {
        if (reached > 0 && last[static_cast<std::size_t>(reached)] == '\0') continue;
        for (const char filler : std::string("a.t0Iis'")) {
            const int next = reached + kTimes[static_cast<std::size_t>(filler - ' ')];
            if (next <= rest) last[static_cast<std::size_t>(next)] = filler;
        }
    }
    std::string text(static_cast<std::size_t>(count), letter);
    for (int at = rest; at > 0;) {
        const char filler = last[static_cast<std::size_t>(at)];
        if (filler == '\0') return "";
        text += filler;
        at -= kTimes[static_cast<std::size_t>(filler - ' ')];
    }
    return text;
}

bool isCut(Sheet& sheet, const std::string& text) {
    sheet.state.bearing.fitLetter = " ";
    sheet.state.bearing.fitRangeText = text;
    return !sheet.draw().hasText(text);
}

TEST(SheetTexts, FitUpToTheFrameByTheWidthOfEveryCharacter) {
    Sheet sheet;
    for (char letter = ' '; letter <= '~'; ++letter) {
        int count = 0;
        std::string fits, tooWide;
        for (int less = 1; fits.empty(); ++less) {
            fits = textOfWidth(kRoom - less, letter, count);
            ASSERT_LT(less, 20) << letter;
        }
        for (int more = 1; tooWide.empty(); ++more) {
            tooWide = textOfWidth(kRoom + more, letter, count);
            ASSERT_LT(more, 20) << letter;
        }
        ASSERT_GT(count, 20) << "a letter one thousandth narrower or wider would count more than the rest";
        EXPECT_FALSE(isCut(sheet, fits)) << letter << ": " << fits;
        EXPECT_TRUE(isCut(sheet, tooWide)) << letter << ": " << tooWide;
    }
}

TEST(SheetTexts, CountACharacterBeyondAsciiAsAWideOne) {
    Sheet sheet;
    std::string wide;
    for (int i = 0; i < 26; ++i)
        wide += "\u00D8";
    EXPECT_FALSE(isCut(sheet, wide));
    EXPECT_TRUE(isCut(sheet, wide + "i"));
    EXPECT_TRUE(isCut(sheet, wide + "\u00D8"));
}

TEST(SheetTexts, AreCutWithRoomForTheSignOfOmission) {
    Sheet sheet;
    sheet.state.bearing.fitLetter = " ";
    // 60 figures are 30 em: 50 of them and the sign, of one em, are within 26.1.
    sheet.state.bearing.fitRangeText = std::string(60, '0');
    EXPECT_TRUE(sheet.draw().hasText(std::string(50, '0') + "\u2026"));
}

TEST(SheetTexts, OfTheDetailAreEquallyFarApartAlsoBehindTheirStackedDigits) {
    Sheet sheet;
    const auto canvas = sheet.draw();
    std::vector<double> tops;  // of K, 1 9 0, 1 3, X, P, 0: the codes in bold at the left of the detail
    for (const auto& text : canvas.texts) {
        if (text.look.bold && text.look.points == 8.0 && text.box.left == 0.5) tops.push_back(text.box.top);
    }
    ASSERT_EQ(tops.size(), 9U);
    const auto below = [&](std::size_t i) { return tops[i - 1] - tops[i]; };
    const double line = below(7);
    EXPECT_GT(line, 8.0 / 72.0) << "as high as the type and more";
    EXPECT_NEAR(below(8), line, 1e-9);
    EXPECT_NEAR(below(1), line, 1e-9) << "from the material to the bore";
    for (const std::size_t behind : {4U, 6U})
        EXPECT_NEAR(below(behind), line, 0.005) << behind;
    for (const std::size_t digit : {2U, 3U, 5U}) {
        EXPECT_LT(below(digit), line) << "stacked digits stand closer";
        EXPECT_GT(below(digit), 0.676 * 8.0 / 72.0) << "and clear of each other";
    }
}

TEST(SpeedPanelTexts, StandInTheirPlacesWithoutSpeeds) {
    Sheet sheet;
    sheet.state.bearing.separatorCode = "F";
    const auto canvas = sheet.draw();
    const char* const lines[] = {
        "This bearing has no ball separator or spacers.  This means that the load",
        "balls are in direct contact with each other.  During rotation, ball-to-ball",
        "friction is significant, and the lubricant properties are critical.  This bearing",
        "is best suited to intermittent or oscillatory rotation, therefore a maximum",
        "speed value is not provided.  For additional information, please contact",
        "Varden Engineering."};
    double before = 3.08;  // the bottom of the heading
    double step = 0.0;
    for (const char* const words : lines) {
        const testing::RecordingCanvas::Text* found = nullptr;
        for (const auto& text : canvas.texts) {
            if (text.text == words) found = &text;
        }
        ASSERT_NE(found, nullptr) << words;
        EXPECT_GT(found->box.left, 4.125) << "inside the panel";
        EXPECT_LT(found->box.left, 4.25);
        EXPECT_EQ(found->look.points, 9.0);
        EXPECT_EQ(found->look.colour, colours::kBlack);
        EXPECT_LT(found->box.top, before);
        if (words != lines[0] && words != lines[1]) {
            EXPECT_NEAR(before - found->box.top, step, 1e-9) << words;
        }
        step = before - found->box.top;
        before = found->box.top;
    }
    EXPECT_GT(before, 1.08 + 9.0 / 72.0) << "inside the panel";
}

TEST(SpeedPanelTexts, NoteThePreloadInThreeRedLinesInTheirBox) {
    Sheet sheet;
    const auto canvas = sheet.draw();
    double before = 1.83;
    for (const char* const words : {" Speeds shown are for '0' preload ", " only.  Check actual fit value ",
                                    " for more information. "}) {
        const testing::RecordingCanvas::Text* found = nullptr;
        for (const auto& text : canvas.texts) {
            if (text.text == words) found = &text;
        }
        ASSERT_NE(found, nullptr) << words;
        EXPECT_EQ(found->look.colour, colours::kRed) << words;
        EXPECT_EQ(found->look.points, 7.0) << words;
        EXPECT_LT(found->box.top, before) << words;
        // Its feet, 0.891 of the size below its top, are above the bottom of the box at 1.5.
        EXPECT_GT(found->box.top - 0.891 * 7.0 / 72.0, 1.5) << words;
        EXPECT_NEAR(found->box.left, 4.6, 0.05) << words;
        before = found->box.top - 0.8 * 7.0 / 72.0;
    }
}

TEST(SpeedPanelTexts, OfTheLegendStandBesideTheirKeysInAPaleBox) {
    struct Row {
        const char* name;
        Colour line, text;
    };
    const std::vector<Row> all = {{"Grease Lubricated", 16711680, colours::kBlue},
                                  {"Oil Lubricated", 255, colours::kRed},
                                  {"Oil Mist Lubricated", 16711935, colours::kPurple}};
    double heightOfOne = 0.0;
    for (std::size_t shown = 1; shown <= 3; ++shown) {
        Sheet sheet;
        sheet.state.bearing.separatorCode = shown == 1 ? "S" : "P";
        sheet.state.bearing.precisionCode = shown == 3 ? "6" : "0";
        sheet.state.bearing.limitSpeedMist = 1400.0;
        const auto canvas = sheet.draw();
        const testing::RecordingCanvas::Rectangle* box = nullptr;
        for (const auto& one : canvas.rectangles) {
            if (one.box.left == 6.5 && one.fill == rgb(204, 255, 255)) box = &one;
        }
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->box.right, 7.75);
        if (shown == 1) heightOfOne = box->box.top - box->box.bottom;
        if (shown > 1) {
            EXPECT_GT(box->box.top - box->box.bottom, heightOfOne + 0.1 * static_cast<double>(shown - 1));
        }
        double before = box->box.top;
        for (std::size_t i = 0; i < shown; ++i) {
            const testing::RecordingCanvas::Text* found = nullptr;
            for (const auto& text : canvas.texts) {
                if (text.text == all[i].name) found = &text;
            }
            ASSERT_NE(found, nullptr) << all[i].name;
            EXPECT_EQ(found->look.colour, all[i].text) << all[i].name;
            EXPECT_EQ(found->look.points, 7.0) << all[i].name;
            EXPECT_LT(found->box.top, before) << all[i].name;
            EXPECT_GT(found->box.bottom, box->box.bottom - 0.01) << all[i].name;
            before = found->box.top - 7.0 / 72.0;
            bool keyed = false;
            for (const auto& line : canvas.lines) {
                const bool inLegend = std::min(line.from.x, line.to.x) > 6.5 &&
                                      std::max(line.from.x, line.to.x) < found->box.left;
                keyed = keyed || (inLegend && line.pen.colour == all[i].line && line.pen.width == 19050.0 &&
                                  line.from.y == line.to.y && line.from.y < found->box.top &&
                                  line.from.y > found->box.bottom);
            }
            EXPECT_TRUE(keyed) << all[i].name << " has a short line beside it";
        }
    }
}

}  // namespace
}  // namespace norlaplan
