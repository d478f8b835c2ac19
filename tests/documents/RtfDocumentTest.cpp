#include <string>

#include <gtest/gtest.h>

#include "documents/RTFroutines.h"

namespace norlaplan {
namespace {

bool has(const RtfDocument& document, const std::string& text) {
    return document.rtf().find(text) != std::string::npos;
}

std::string property(const std::string& name, const std::string& value) {
    return "{\\sp{\\sn " + name + "}{\\sv " + value + "}}";
}

SheetText sample() {
    SheetText text;
    text.box = {1.0, 10.0, 2.5, 9.5};
    text.size = 14.0;
    text.colour = "blue";
    text.text = "Ø 7.5 {x}";
    text.bold = true;
    text.font = "ARIEL";
    return text;
}

TEST(RtfText, EscapesWhatRtfWouldTakeForItsOwn) {
    EXPECT_EQ(rtfText("a\\b{c}"), "a\\\\b\\{c\\}");
    EXPECT_EQ(rtfText("Ø"), "\\'d8");
    EXPECT_EQ(rtfText("™"), "\\u8482?");
    // The last of one byte, the first and the last of two, and their neighbours.
    EXPECT_EQ(rtfText("\x7F\u0080\u00FF\u0100"), "\x7F\\'80\\'ff\\u256?");
    EXPECT_EQ(rtfText("\u7FFF\u8000\uFFFD"), "\\u32767?\\u-32768?\\u-3?");
    EXPECT_EQ(rtfText("a\nb"), "a b");
}

TEST(RtfText, TakesBytesThatAreNoUtf8AsTheyStandInOldFiles) {
    EXPECT_EQ(rtfText("M\xFCller {1}"), "M\\'fcller \\{1\\}");
    EXPECT_EQ(rtfText("\xC3"), "\\'c3");
    EXPECT_EQ(rtfText("\xC3}"), "\\'c3\\}") << "a brace is never swallowed";
}

TEST(RtfText, TakesTwoEscapesForACharacterBeyondSixteenBits) {
    // U+1F529: 0xD83D is -10179 and 0xDD29 is -8919 as 16-bit numbers.
    EXPECT_EQ(rtfText("\U0001F529"), "\\u-10179?\\u-8919?");
}

TEST(RtfShapes, CountFromOneAndCarryTheirIds) {
    RtfDocument document;
    document.RTFLINE({1, 1}, {2, 1}, 0, 9525.0);
    document.RTFDATASHEETTEXT(sample());
    EXPECT_EQ(document.shapeCounter(), 2);
    EXPECT_TRUE(has(document, "\\shpz1\r\n\\shplid1027"));
    EXPECT_TRUE(has(document, "\\shpz2\r\n\\shplid1028"));
    EXPECT_TRUE(has(document, property("lTxid", "196608"))) << "(2 + 1) x 65536";
    EXPECT_TRUE(has(document, "\\dodhgt8194"));
}

TEST(RtfTextShape, StandsInTwipsFromTheUpperLeftCorner) {
    RtfDocument document;
    document.RTFDATASHEETTEXT(sample());
    // 1440 x 1, 1440 x (11 - 10), 1440 x 2.5, 1440 x (11 - 9.5)
    EXPECT_TRUE(has(document, "\\shpleft1440\\shptop1440\r\n\\shpright3600\\shpbottom2160"));
    EXPECT_TRUE(has(document, "\\dpx1440\\dpy1440\r\n\\dpxsize2160\\dpysize720"));
    EXPECT_TRUE(has(document, "{\\b\\cf2\\fs28\\f1 \\'d8 7.5 \\{x\\}\\par }"));
    EXPECT_TRUE(has(document, property("fFilled", "0") + property("fLine", "0")));
}

TEST(RtfTextShape, NeverReachesBeyondThePageOnTheRight) {
    RtfDocument document;
    SheetText text = sample();
    text.box.right = 9.636;
    document.RTFDATASHEETTEXT(text);
    EXPECT_TRUE(has(document, "\\shpright12240"));
    EXPECT_NE(document.records().find("9.636"), std::string::npos) << "the record keeps the stated number";
}

TEST(RtfTextShape, BeginsAtTheTopOfItsBox) {
    RtfDocument document;
    document.RTFDATASHEETTEXT(sample());
    EXPECT_FALSE(has(document, "anchorText"));
}

TEST(RtfTextBox, IsFilledAndCentred) {
    RtfDocument document;
    document.RTFTEXTWBOX({sample(), rgb(221, 221, 221)});
    EXPECT_TRUE(has(document, property("fillColor", std::to_string(221 + 221 * 256 + 221 * 65536))));
    EXPECT_TRUE(has(document, property("fFilled", "1")));
    EXPECT_TRUE(has(document, property("anchorText", "1"))) << "in the middle of its height";
    EXPECT_TRUE(has(document, "\\qc"));
    EXPECT_TRUE(has(document, "\\dpfillbgcr221\\dpfillbgcg221\\dpfillbgcb221"));
}

std::string boxAndFlip(PagePoint from, PagePoint to) {
    RtfDocument document;
    document.RTFLINE(from, to, 255, 19050.0);
    const std::string& rtf = document.rtf();
    const std::size_t left = rtf.find("\\shpleft");
    const std::size_t flip = rtf.find("fFlipV}{\\sv ");
    return rtf.substr(left, rtf.find("\r\n\\shpfhdr") - left) + rtf[flip + 12];
}

TEST(RtfLine, IsTheSameFromEitherEnd) {
    EXPECT_EQ(boxAndFlip({1, 2}, {3, 1}), boxAndFlip({3, 1}, {1, 2}));
    EXPECT_EQ(boxAndFlip({1, 2}, {3, 1}).back(), '0') << "it falls to the right on paper";
    EXPECT_EQ(boxAndFlip({1, 1}, {3, 2}).back(), '1') << "it rises to the right on paper";
    EXPECT_EQ(boxAndFlip({1, 1}, {3, 2}),
              "\\shpleft1440\\shptop12960\r\n\\shpright4320\\shpbottom14400" + std::string("1"));
}

TEST(RtfLine, OfADataSheetCarriesItsDash) {
    RtfDocument document;
    document.RTFDATASHEETLINE({1, 1}, {2, 2}, 0, 9525.0, 6);
    EXPECT_TRUE(has(document, property("lineDashing", "6")));
}

TEST(RtfCircle, IsAHollowEllipseInItsBox) {
    RtfDocument document;
    document.RTFCIRCLE({4.0, 8.0}, 0.5, 0, 9525.0);
    EXPECT_TRUE(has(document, "\\shpleft5040\\shptop3600\r\n\\shpright6480\\shpbottom5040"));
    EXPECT_TRUE(has(document, property("shapeType", "3")));
    EXPECT_TRUE(has(document, property("fFilled", "0")));
}

int depthOf(const std::string& rtf) {
    int depth = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\') {
            ++i;
        } else if (rtf[i] == '{') {
            ++depth;
        } else if (rtf[i] == '}') {
            --depth;
        }
    }
    return depth;
}

TEST(RtfShapes, CloseEveryGroupThatTheyOpen) {
    RtfDocument document;
    document.RTFDATASHEETTEXT(sample());
    document.RTFTEXTWBOX({sample(), 0});
    document.TINTEDTTEXTBOX({1, 2, 3, 1}, 1, 2);
    document.RTFLINE({1, 1}, {2, 2}, 0, 9525.0);
    document.RTFDATASHEETLINE({1, 1}, {2, 2}, 0, 9525.0, 0);
    document.RTFCIRCLE({1, 1}, 0.5, 0, 9525.0);
    EXPECT_EQ(depthOf(document.rtf()), 0);
}

TEST(RtfShapes, HaveNoStrayBackslashInTheirFallback) {
    RtfDocument document;
    document.RTFDATASHEETTEXT(sample());
    EXPECT_TRUE(has(document, "\\dpfillbgcb255\\dpfillpat0\\dplinehollow}}}"));
    EXPECT_FALSE(has(document, "\\\r")) << "a backslash at a line's end would start a paragraph";
}

TEST(RtfTextShape, GivesItsParagraphRoomBeyondTheBox) {
    RtfDocument document;
    document.RTFDATASHEETTEXT(sample());
    EXPECT_TRUE(has(document, "\\ri-72"));
    SheetText label = sample();
    label.text = " Speeds shown";
    document.RTFDATASHEETTEXT(label);
    EXPECT_FALSE(has(document, "\\li-30"));
    label.text = " 15000";
    document.RTFDATASHEETTEXT(label);
    EXPECT_TRUE(has(document, "\\ri-72\\li-30")) << "the blank gives way to the last digit";
}

TEST(RtfTextShape, TurnsItsTextWhenItIsVertical) {
    RtfDocument document;
    SheetText text = sample();
    EXPECT_FALSE(has(document, "txflTextFlow"));
    text.vertical = true;
    document.RTFDATASHEETTEXT(text);
    EXPECT_TRUE(has(document, property("txflTextFlow", "2")));
    document.RTFTEXTWBOX({text, 0});
    EXPECT_TRUE(has(document, property("txflTextFlow", "3")));
}

TEST(RtfTextShape, NamesColoursInAnyCaseAndFontsAsTheyAreStored) {
    const struct {
        const char *colour, *font, *run;
    } rows[] = {{"RED", "TNR", "{\\b\\cf6\\fs28 "},
                {"Green", "Courier New", "{\\b\\cf4\\fs28\\f2 "},
                {"black", "Book Antiqua", "{\\b\\cf1\\fs28\\f3 "},
                {"PURPLE", "ARIEL", "{\\b\\cf5\\fs28\\f1 "},
                {"PINK", "TNR", "{\\b\\fs28 "}};
    for (const auto& row : rows) {
        RtfDocument document;
        SheetText text = sample();
        text.colour = row.colour;
        text.font = row.font;
        document.RTFDATASHEETTEXT(text);
        EXPECT_TRUE(has(document, row.run)) << row.colour;
    }
}

TEST(RtfHead, KeepsTheFooterClearOfTheLastLine) {
    RtfDocument document;
    document.RtfHeader();
    EXPECT_TRUE(has(document, "\\footery360"));
}

TEST(RtfHead, LeavesTheDocumentAndOneGroupOpen) {
    RtfDocument document;
    document.RtfHeader();
    EXPECT_EQ(depthOf(document.rtf()), 2);
    EXPECT_TRUE(document.rtf().starts_with("{\\rtf1\\ansi\\ansicpg1252"));
}

}  // namespace
}  // namespace norlaplan
