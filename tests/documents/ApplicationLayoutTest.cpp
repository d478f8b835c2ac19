#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/ApplicationReport.h"
#include "documents/PrintedPage.h"
#include "documents/SampleApplication.h"
#include "state/Pages.h"
#include "support/RecordingPorts.h"

/// How the printed application form fills its pages.
namespace norlaplan {
namespace {

using testing::FixedClock;
using testing::RecordingCanvas;
using Text = RecordingCanvas::Text;

/// Letters as narrow as those of Times.
struct NarrowCanvas : RecordingCanvas {
    double textWidth(std::string_view text, const TextLook& look) override {
        return 0.85 * RecordingCanvas::textWidth(text, look);
    }
};

/// The texts of the form itself, page by page, without frame and foot.
std::vector<std::vector<Text>> pagesOf(const ProgramState& state) {
    FixedClock clock;
    const Document document = applicationDocument(state, clock);
    NarrowCanvas measure;
    const int count = pageCount(document.pages, measure);
    std::vector<std::vector<Text>> pages;
    for (int page = 1; page <= count; ++page) {
        NarrowCanvas canvas;
        onePage(document.pages, page).draw(canvas);
        std::vector<Text> body;
        for (const Text& text : canvas.texts) {
            if (text.box.bottom > 0.6 && text.text != "VARDEN") body.push_back(text);
        }
        pages.push_back(body);
    }
    return pages;
}

/// The feet of a page's lines from top to bottom.
std::vector<double> feetOf(const std::vector<Text>& texts) {
    std::vector<double> feet;
    for (const Text& text : texts)
        feet.push_back(text.box.bottom);
    std::sort(feet.rbegin(), feet.rend());
    feet.erase(std::unique(feet.begin(), feet.end(), [](double a, double b) { return a - b < 1e-6; }),
               feet.end());
    return feet;
}

const Text& textOf(const std::vector<Text>& texts, const std::string& words) {
    static const Text kNone{};
    const auto at =
        std::find_if(texts.begin(), texts.end(), [&](const Text& text) { return text.text == words; });
    if (at == texts.end()) ADD_FAILURE() << words;
    return at == texts.end() ? kNone : *at;
}

ProgramState longApplication() {
    ProgramState state = testing::filledApplication();
    for (int line = 0; line < 150; ++line)
        state.application.data.remarks += "line " + std::to_string(line) + "\n";
    return state;
}

TEST(ApplicationPages, AreFilledDownToTheFootAndNoFurther) {
    const auto pages = pagesOf(longApplication());
    ASSERT_GT(pages.size(), 3U);
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const std::vector<double> feet = feetOf(pages[page]);
        EXPECT_GE(feet.back(), 0.9 - 1e-6) << "page " << page + 1;
        // Lines of 10 points are 0.19 inches apart: one more would be too low.
        if (page + 1 < pages.size()) {
            EXPECT_LT(feet.back(), 0.9 + 0.19 + 1e-6) << "page " << page + 1;
        }
        EXPECT_LT(feet.front(), 10.0) << "below the mark";
        EXPECT_GT(feet.front(), 9.6);
    }
    // Pages behind the first have no title and begin as high as it does.
    EXPECT_EQ(pages[1].front().text.substr(0, 5), "line ");
    EXPECT_NEAR(pages[1].front().box.top, pages[0].front().box.top, 1e-6);
    EXPECT_NEAR(pages[2].front().box.top, pages[0].front().box.top, 1e-6);
}

TEST(ApplicationPages, HaveTheirLinesEquallyFarApart) {
    const std::vector<double> feet = feetOf(pagesOf(longApplication())[1]);
    for (std::size_t i = 1; i < feet.size(); ++i) {
        EXPECT_NEAR(feet[i - 1] - feet[i], feet[0] - feet[1], 1e-6) << i;
        EXPECT_GT(feet[i - 1] - feet[i], 10.0 / 72.0) << "higher than the type";
    }
}

TEST(ApplicationPages, LeaveMoreRoomAboveASectionThanBetweenItsLines) {
    const auto page = pagesOf(testing::filledApplication()).at(0);
    const double step = textOf(page, "Text3").box.bottom - textOf(page, "Text4").box.bottom;
    for (const auto& [last, head] : {std::pair{"Text4", "LOADS:"}, std::pair{"RPM (max) Text19", "ACCURACY:"},
                                     std::pair{"Comments: Text31", "TEMPERATURE:"},
                                     std::pair{"Shaft Text45", "SPECIAL REQUIREMENTS:"}}) {
        const double gap = textOf(page, last).box.bottom - textOf(page, head).box.bottom;
        EXPECT_GT(gap, step + 0.05) << head;
    }
}

TEST(ApplicationPages, GiveAHeadThatReachesIntoTheCellsALineOfItsOwn) {
    const auto page = pagesOf(testing::filledApplication()).at(0);
    const double head = textOf(page, "SPECIAL REQUIREMENTS:").box.bottom;
    const double cells = textOf(page, "Allowable Bearing Torque: Text47").box.bottom;
    EXPECT_LT(cells, head - 0.1);
    EXPECT_NEAR(textOf(page, "Allowable Bearing Torque: Text47").box.left, kPageLeft + 1.5, 1e-6);
    for (const auto& [name, cell] : {std::pair{"TEMPERATURE:", "Normal Operating Temp = Text32 deg. F"},
                                     std::pair{"LUBRICATION:", "Proposed Lubricant is Text36  via Text37"},
                                     std::pair{"REMARKS:", "Text51"}})
        EXPECT_NEAR(textOf(page, name).box.bottom, textOf(page, cell).box.bottom, 1e-6) << name;
}

TEST(ApplicationPages, SetACellOfSeveralLinesBelowItself) {
    ProgramState state = testing::filledApplication();
    state.application.data.lifeComments = "first\nsecond";
    const auto page = pagesOf(state).at(0);
    const Text& first = textOf(page, "Comments: first");
    const Text& second = textOf(page, "second");
    EXPECT_NEAR(first.box.left, second.box.left, 1e-6);
    EXPECT_GT(first.box.bottom, second.box.bottom);
    EXPECT_GT(second.box.bottom, textOf(page, "TEMPERATURE:").box.bottom);
}

}  // namespace
}  // namespace norlaplan
