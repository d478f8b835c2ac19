#include <algorithm>

#include <gtest/gtest.h>

#include "documents/FaxCover.h"
#include "support/OnPaper.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::FixedClock;
using testing::RecordingCanvas;
using Lines = std::vector<std::string>;

/// Every character is 500 twips wide. A line begins at tab 12, which is 1056 twips from the edge, so that the
/// 18th character ends at 10056 and is the last before the search for a blank.
Lines broken(std::string_view message) {
    return coverMessageLines(message, [](std::string_view) { return 500.0; });
}

const UserInfo kUser{"Ann", "Engineer", "Mill", "", "", "123-4567", "", ""};

RecordingCanvas printed(const FaxCover& cover) {
    FixedClock clock;
    RecordingCanvas canvas;
    printFaxCover(cover, kUser, clock, canvas);
    return canvas;
}

Lines textsOf(const RecordingCanvas& canvas) {
    Lines texts;
    for (const auto& text : canvas.texts)
        texts.push_back(text.text);
    // The maker's mark comes first.
    texts.erase(texts.begin());
    return texts;
}

const RecordingCanvas::Text& textOf(const RecordingCanvas& canvas, const std::string& wanted) {
    const auto found = std::find_if(canvas.texts.begin(), canvas.texts.end(),
                                    [&](const auto& text) { return text.text == wanted; });
    if (found == canvas.texts.end()) throw std::runtime_error("no text " + wanted);
    return *found;
}

TEST(CoverMessage, BreaksAtTheFirstBlankBehindTheLimit) {
    EXPECT_EQ(broken("short"), (Lines{"short"}));
    // Seventeen characters end at 9556: the blank behind them doesn't break yet, the next word's end does.
    EXPECT_EQ(broken("12345678901234567 word more"), (Lines{"12345678901234567 word", "more"}));
    EXPECT_EQ(broken("123456789012345678 word more"), (Lines{"123456789012345678", "word more"}));
    // A line runs past the limit by the rest of its word.
    EXPECT_EQ(broken("12345678901234567890123 word"), (Lines{"12345678901234567890123", "word"}));
}

TEST(CoverMessage, WithoutBlanksIsNotBroken) {
    const std::string text(200, 'x');
    EXPECT_EQ(broken(text), (Lines{text}));
}

TEST(CoverMessage, BeginsALineAtEveryLineFeedAndPassesCarriageReturns) {
    EXPECT_EQ(broken("one\r\ntwo\n\nfour"), (Lines{"one", "two", "", "four"}));
    EXPECT_EQ(broken(""), (Lines{""}));
}

TEST(CoverMessage, WithALineFeedBehindTheLimitStillBreaksAtTheNextBlank) {
    EXPECT_EQ(broken("12345678901234567890\nnext words here"),
              (Lines{"12345678901234567890", "next", "words here"}));
}

TEST(CoverMessage, CountsCharactersAndNotTheirBytes) {
    std::string text;
    for (int i = 0; i < 18; ++i)
        text += "\xc3\xa4";
    EXPECT_EQ(broken(text + " b c"), (Lines{text, "b c"}));
}

TEST(FaxCover, TakesOnlyACountOfOneForOnePage) {
    EXPECT_EQ(pagesSentence("1"),
              "We are transmitting (1) page including this one.  If transmission is not complete,");
    for (const char* const count : {"2", "", "0", "one", "11", "-1"}) {
        EXPECT_EQ(pagesSentence(count), "We are transmitting (" + std::string(count) +
                                            ") pages including this one.  If transmission is not complete,");
    }
}

TEST(FaxCover, HasTheStatedTextsInTheirOrder) {
    EXPECT_EQ(
        textsOf(printed({"Bob", "765-4321", "Bearings", "2", "Hello"})),
        (Lines{"Saturday, March 14, 2026", "*********************", "FACSIMILE MESSAGE",
               "*********************", "To:", "Bob", "From:", "Ann", "Re:", "Bearings", "FAX:", "765-4321",
               "We are transmitting (2) pages including this one.  If transmission is not complete,",
               "call Ann at 123-4567.", "MESSAGE:", "Hello", "NORLAPLAN-MM version 1.00",
               "Printed: 3/14/26 9:26 AM"}));
}

TEST(FaxCover, StandsAtTheStatedPlacesInTheStatedSizes) {
    const RecordingCanvas canvas = printed({"Bob", "765-4321", "Bearings", "2", "Hello"});
    const double tab12 = 1056.0 / 1440.0, tab20 = 1824.0 / 1440.0;
    for (const char* const text : {"Saturday, March 14, 2026", "To:", "call Ann at 123-4567.", "Hello"}) {
        EXPECT_NEAR(textOf(canvas, text).box.left, tab12, 1e-9) << text;
        EXPECT_EQ(textOf(canvas, text).look.points, 12.0) << text;
    }
    EXPECT_NEAR(textOf(canvas, "Bob").box.left, tab20, 1e-9);
    EXPECT_NEAR(textOf(canvas, "*********************").box.left, 4600.0 / 1440.0, 1e-9);
    EXPECT_EQ(textOf(canvas, "*********************").look.points, 16.0);
    EXPECT_EQ(textOf(canvas, "FACSIMILE MESSAGE").look.points, 14.0);
    EXPECT_EQ(textOf(canvas, "MESSAGE:").look.points, 14.0);
    for (const char* const head : {"*********************", "FACSIMILE MESSAGE", "MESSAGE:"})
        EXPECT_TRUE(textOf(canvas, head).look.bold) << head;
    for (const char* const body : {"To:", "Bob", "Hello", "NORLAPLAN-MM version 1.00"})
        EXPECT_FALSE(textOf(canvas, body).look.bold) << body;
    EXPECT_EQ(textOf(canvas, "NORLAPLAN-MM version 1.00").look.points, 8.0);
    EXPECT_NEAR(textOf(canvas, "NORLAPLAN-MM version 1.00").box.top, 11.0 - 8600.0 / 1440.0, 1e-9);
    for (const auto& text : canvas.texts) {
        if (text.text != "VARDEN") {
            EXPECT_EQ(text.look.typeface, Typeface::Times) << text.text;
        }
    }
}

TEST(FaxCover, MovesItsFootBelowALongMessageAndGoesOnOnANewPage) {
    std::string message;
    for (int i = 0; i < 20; ++i)
        message += "line\n";
    const RecordingCanvas long1 = printed({"", "", "", "", message + "last"});
    EXPECT_EQ(long1.pages, 1);
    EXPECT_LT(textOf(long1, "NORLAPLAN-MM version 1.00").box.top, textOf(long1, "last").box.bottom);
    // A page takes no more than 50 lines of 276 twips.
    for (int i = 0; i < 40; ++i)
        message += "line\n";
    const RecordingCanvas long2 = printed({"", "", "", "", message + "last"});
    EXPECT_EQ(long2.pages, 2);
    for (const auto& text : long2.texts)
        EXPECT_GT(text.box.bottom, 0.4) << text.text;
}

TEST(FaxCoverPrint, StandsOnItsPaper) {
    FaxCover cover;
    cover.message = std::string(400, 'w');
    EXPECT_EQ(testing::offPaper(printed(cover), papers::kLetter), "");
}

}  // namespace
}  // namespace norlaplan
