#include <gtest/gtest.h>

#include "state/Pages.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

/// Three pages, each with its number, a line, a box and a circle as often as its number says.
Drawing threePages() {
    return {papers::kLetterLandscape, [](Canvas& canvas) {
                for (int page = 1; page <= 3; ++page) {
                    if (page > 1) canvas.newPage();
                    canvas.text({1, 1, 2, 2}, "page " + std::to_string(page), {});
                    for (int i = 0; i < page; ++i) {
                        canvas.line({0, 0}, {1, 1}, {});
                        canvas.rectangle({0, 1, 1, 0}, colours::kRed, std::nullopt);
                        canvas.circle({0, 0}, 1, {});
                    }
                }
            }};
}

TEST(Pages, AreCountedWithoutDrawingThem) {
    testing::RecordingCanvas canvas;
    EXPECT_EQ(pageCount(threePages(), canvas), 3);
    EXPECT_TRUE(canvas.texts.empty() && canvas.lines.empty());
    EXPECT_EQ(pageCount({papers::kLetter, [](Canvas&) {}}, canvas), 1);
}

TEST(Pages, OneByOneHoldWhatStandsOnThem) {
    for (int page = 1; page <= 3; ++page) {
        testing::RecordingCanvas canvas;
        const Drawing one = onePage(threePages(), page);
        EXPECT_EQ(one.paper, papers::kLetterLandscape);
        one.draw(canvas);
        ASSERT_EQ(canvas.texts.size(), 1U);
        EXPECT_EQ(canvas.texts[0].text, "page " + std::to_string(page));
        const auto times = static_cast<std::size_t>(page);
        EXPECT_EQ(canvas.lines.size(), times);
        EXPECT_EQ(canvas.rectangles.size(), times);
        EXPECT_EQ(canvas.circles.size(), times);
        EXPECT_EQ(canvas.pages, 1);
    }
}

TEST(Pages, ThatAreChosenStandOnPagesOfTheirOwn) {
    const auto textsOf = [](int first, int last, int& pages) {
        testing::RecordingCanvas canvas;
        somePages(threePages(), first, last).draw(canvas);
        pages = canvas.pages;
        std::string all;
        for (const auto& text : canvas.texts)
            all += text.text + ";";
        return all;
    };
    int pages = 0;
    EXPECT_EQ(textsOf(2, 3, pages), "page 2;page 3;");
    EXPECT_EQ(pages, 2);
    EXPECT_EQ(textsOf(1, 2, pages), "page 1;page 2;");
    EXPECT_EQ(pages, 2);
    EXPECT_EQ(textsOf(1, 3, pages), "page 1;page 2;page 3;");
    EXPECT_EQ(pages, 3);
    EXPECT_EQ(textsOf(3, 9, pages), "page 3;");
    EXPECT_EQ(pages, 1);
}

TEST(Pages, MeasureTextsAsTheCanvasBelowDoes) {
    testing::RecordingCanvas canvas;
    double width = 0.0;
    const Drawing drawing{papers::kLetter, [&](Canvas& on) { width = on.textWidth("abcd", {}); }};
    onePage(drawing, 1).draw(canvas);
    EXPECT_EQ(width, canvas.textWidth("abcd", {}));
}

}  // namespace
}  // namespace norlaplan
