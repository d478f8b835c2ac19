#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "help/RtfReader.h"
#include "help/RtfTexts.h"

namespace norlaplan {
namespace {

using namespace testing;

std::string body(const std::string& rtf) {
    return "{\\rtf1 " + rtf + "}";
}

TEST(RtfCharacters, HaveWordsOfTheirOwn) {
    const struct {
        const char *word, *text;
    } rows[] = {{"tab", "\t"},      {"line", "\n"},        {"bullet", "•"},      {"emdash", "—"},
                {"endash", "–"},    {"lquote", "‘"},       {"rquote", "’"},      {"ldblquote", "“"},
                {"rdblquote", "”"}, {"emspace", "\u2003"}, {"enspace", "\u2002"}};
    for (const auto& row : rows)
        EXPECT_EQ(textOf(body(std::string("a\\") + row.word + " b\\par")), std::string("a") + row.text + "b|")
            << row.word;
}

TEST(RtfCharacters, OfTheWesternCodePageAreThoseOfItsTable) {
    // Code page 1252 from 0x80 on; the places without a character give none.
    const std::vector<std::string> upper = {"€", "",  "‚", "ƒ", "„", "…", "†", "‡", "ˆ", "‰", "Š",
                                            "‹", "Œ", "",  "Ž", "",  "",  "‘", "’", "“", "”", "•",
                                            "–", "—", "˜", "™", "š", "›", "œ", "",  "ž", "Ÿ"};
    constexpr char kHex[] = "0123456789abcdef";
    for (std::size_t i = 0; i < upper.size(); ++i) {
        const std::string code = {kHex[8 + i / 16], kHex[i % 16]};
        EXPECT_EQ(textOf(body("a\\'" + code + "b\\par")), "a" + upper[i] + "b|") << code;
    }
    EXPECT_EQ(textOf(body("\\'a0\\'e4\\'FF\\par")), "\u00A0äÿ|") << "the rest is that of Latin 1";
    EXPECT_EQ(textOf(body("\\'20\\'7e\\'7f\\'1f\\par")), " ~|") << "control characters are none";
}

TEST(RtfCharacters, OfEveryLengthAreRead) {
    EXPECT_EQ(textOf(body("\\u127?\\u160?\\u2047?\\u2048?\\u32767?\\par")), "\u00A0\u07FF\u0800\u7FFF|");
    // The halves D800 and DC00 make the first character beyond 16 bits, DBFF and DFFD one of the last.
    EXPECT_EQ(textOf(body("\\u-10240?\\u-9216?\\par")), "\U00010000|");
    EXPECT_EQ(textOf(body("\\u-9217?\\u-8195?\\par")), "\U0010FFFD|");
}

TEST(RtfCharacters, ThatNoTextHoldsBecomeTheReplacement) {
    for (const char* const code : {"8232", "8233", "-4", "-2", "-1", "-560", "-529", "-8704"}) {
        EXPECT_EQ(textOf(body(std::string("\\u") + code + "?\\par")), "\uFFFD|") << code;
    }
    for (const auto& [code, text] :
         {std::pair{"8231", "\u2027"}, std::pair{"8234", "\u202A"}, std::pair{"-3", "\uFFFD"},
          std::pair{"-561", "\uFDCF"}, std::pair{"-528", "\uFDF0"}, std::pair{"-8192", "\uE000"}}) {
        EXPECT_EQ(textOf(body(std::string("\\u") + code + "?\\par")), std::string(text) + "|") << code;
    }
}

TEST(RtfCharacters, OfAFontOfSignsAreRoundAndSquareBullets) {
    const std::string fonts = "{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Wingdings;}{\\f2\\fcharset0 Times;}}";
    EXPECT_EQ(textOf(body(fonts + "\\f1\\'b7\\'a7\\'41\\par")), "•▪A|");
    EXPECT_EQ(textOf(body(fonts + "\\f2\\'b7\\'a7\\par")), "·§|");
    EXPECT_EQ(textOf(body(fonts + "\\f1\\plain\\'b7\\par")), "·|") << "plain is the first font again";
}

CharacterLook lookOf(const std::string& words) {
    return firstRun(*readRtf(body(words + " x\\par"))).look;
}

TEST(RtfSwitches, GoOnAloneOrWithANumberAndOffWithZero) {
    const struct {
        const char* word;
        bool CharacterLook::*look;
    } rows[] = {{"b", &CharacterLook::bold},         {"i", &CharacterLook::italic},
                {"ul", &CharacterLook::underline},   {"ulw", &CharacterLook::underline},
                {"uldb", &CharacterLook::underline}, {"uld", &CharacterLook::underline},
                {"strike", &CharacterLook::strike},  {"striked", &CharacterLook::strike}};
    for (const auto& row : rows) {
        const std::string word = std::string("\\") + row.word;
        for (const auto other : {&CharacterLook::bold, &CharacterLook::italic, &CharacterLook::underline,
                                 &CharacterLook::strike}) {
            EXPECT_EQ(lookOf(word).*other, other == row.look) << row.word;
        }
        EXPECT_TRUE(lookOf(word + "1").*row.look) << row.word;
        EXPECT_FALSE(lookOf(word + word + "0").*row.look) << row.word;
    }
    EXPECT_FALSE(lookOf("\\ul\\ulnone").underline);
    EXPECT_EQ(lookOf("\\sub").script, Script::Sub);
    EXPECT_EQ(lookOf("\\super").script, Script::Super);
    EXPECT_EQ(lookOf("\\super\\super0").script, Script::Normal);
    EXPECT_EQ(lookOf("\\sub\\nosupersub").script, Script::Normal);
    EXPECT_EQ(textOf(body("a\\v b\\v0 c\\par")), "ac|");
}

TEST(RtfSizes, AreHalfPointsFromOneToTwoHundred) {
    EXPECT_EQ(lookOf("").points, 12.0);
    EXPECT_EQ(lookOf("\\fs21").points, 10.5);
    EXPECT_EQ(lookOf("\\fs1").points, 1.0);
    EXPECT_EQ(lookOf("\\fs0").points, 1.0);
    EXPECT_EQ(lookOf("\\fs401").points, 200.0);
    EXPECT_EQ(lookOf("\\b\\fs40\\plain").points, 12.0);
    EXPECT_FALSE(lookOf("\\b\\fs40\\plain").bold);
}

TEST(RtfColours, StandForLettersAndTheirGround) {
    const std::string table = "{\\colortbl;\\red1\\green2\\blue3;\\blue300\\red-4\\green7;}";
    EXPECT_EQ(lookOf(table + "\\cf1").colour, 0x030201U);
    EXPECT_EQ(lookOf(table + "\\cf2").colour, 0xFF0700U) << "parts end at 0 and 255";
    for (const char* const word : {"highlight", "cb", "chcbpat"})
        EXPECT_EQ(lookOf(table + "\\" + word + "1").highlight, 0x030201U) << word;
    for (const char* const none : {"\\cf0", "\\cf3", "\\cf-1"}) {
        EXPECT_FALSE(lookOf(table + none).colour.has_value()) << none;
    }
}

TEST(RtfFonts, HaveNamesUpToTheirSemicolon) {
    const std::string table =
        "{\\fonttbl{\\f3\\fswiss Arial{\\*\\falt Helvetica};}{\\f4 M\\'fcller;left over}}";
    EXPECT_EQ(lookOf(table + "\\f3").font, "Arial");
    EXPECT_EQ(lookOf(table + "\\f4").font, "Müller");
    EXPECT_EQ(lookOf(table + "\\f9").font, "");
    const std::string longName(300, 'x');
    EXPECT_EQ(lookOf("{\\fonttbl{\\f1 " + longName + ";}}\\f1").font, std::string(100, 'x'));
}

ParagraphLook paragraphOf(const std::string& words) {
    return firstParagraph(*readRtf(body(words + " x\\par")));
}

TEST(RtfParagraphs, AreAlignedIndentedAndSpaced) {
    EXPECT_EQ(paragraphOf("").alignment, TextAlignment::Left);
    EXPECT_EQ(paragraphOf("\\qc").alignment, TextAlignment::Centre);
    EXPECT_EQ(paragraphOf("\\qr").alignment, TextAlignment::Right);
    EXPECT_EQ(paragraphOf("\\qj").alignment, TextAlignment::Justified);
    EXPECT_EQ(paragraphOf("\\qr\\ql").alignment, TextAlignment::Left);
    const ParagraphLook look = paragraphOf("\\li100\\ri200\\fi-300\\sb400\\sa500\\pagebb");
    EXPECT_EQ(look.leftIndent, 100);
    EXPECT_EQ(look.rightIndent, 200);
    EXPECT_EQ(look.firstIndent, -300);
    EXPECT_EQ(look.spaceBefore, 400);
    EXPECT_EQ(look.spaceAfter, 500);
    EXPECT_TRUE(look.pageBreakBefore);
    EXPECT_EQ(paragraphOf("\\sb-1").spaceBefore, 0);
    EXPECT_EQ(paragraphOf("\\li99999").leftIndent, 10000);
    EXPECT_EQ(paragraphOf("\\li-99999").leftIndent, -10000);
}

TEST(RtfParagraphs, StartAnewWithPard) {
    const ParagraphLook look = paragraphOf("\\qc\\li100\\ri1\\fi2\\sb400\\sl480\\tx500\\pagebb\\pard");
    EXPECT_EQ(look.alignment, TextAlignment::Left);
    EXPECT_EQ(look.leftIndent + look.rightIndent + look.firstIndent + look.spaceBefore, 0);
    EXPECT_EQ(look.lineSpacing, 1.0);
    EXPECT_TRUE(look.tabs.empty());
    EXPECT_FALSE(look.pageBreakBefore);
    EXPECT_EQ(textOf(body("\\intbl\\pard a\\par")), "a|");
}

TEST(RtfParagraphs, HaveLinesOfFourFifthsToFourTimesTheSingleOne) {
    EXPECT_EQ(paragraphOf("\\sl0").lineSpacing, 1.0);
    EXPECT_EQ(paragraphOf("\\sl360").lineSpacing, 1.5);
    EXPECT_EQ(paragraphOf("\\sl-360").lineSpacing, 1.5);
    EXPECT_EQ(paragraphOf("\\sl24").lineSpacing, 0.8);
    EXPECT_EQ(paragraphOf("\\sl9600").lineSpacing, 4.0);
}

TEST(RtfTabs, HaveTheirAlignmentOnce) {
    EXPECT_EQ(paragraphOf("\\tqc\\tx100\\tx200\\tqdec\\tx300\\tqr\\tx400").tabs,
              (std::vector<TabStop>{{100, TabAlignment::Centre},
                                    {200, TabAlignment::Left},
                                    {300, TabAlignment::Decimal},
                                    {400, TabAlignment::Right}}));
    std::string many;
    for (int i = 0; i < 60; ++i)
        many += "\\tx" + std::to_string(i);
    EXPECT_EQ(paragraphOf(many).tabs.size(), 50U);
}

TEST(RtfHeads, OfWhatIsNoTextAreSkipped) {
    for (const char* const head : {"stylesheet",
                                   "info",
                                   "header",
                                   "headerf",
                                   "headerl",
                                   "headerr",
                                   "footer",
                                   "footerf",
                                   "footerl",
                                   "footerr",
                                   "footnote",
                                   "annotation",
                                   "fldinst",
                                   "nonshppict",
                                   "objclass",
                                   "objname",
                                   "objdata",
                                   "panose",
                                   "falt",
                                   "shprslt",
                                   "bkmkstart",
                                   "bkmkend",
                                   "listtable",
                                   "filetbl",
                                   "revtbl",
                                   "pntxta",
                                   "pntxtb",
                                   "xe",
                                   "tc",
                                   "nonesttables",
                                   "listoverridetable",
                                   "do",
                                   "themedata",
                                   "datastore"}) {
        EXPECT_EQ(textOf(body(std::string("a{\\") + head + " b{c}}d\\par")), "ad|") << head;
    }
}

const TableRow& rowOf(const RichDocument& document) {
    return std::get<TableRow>(document.blocks.at(0));
}

CellLook cellOf(const std::string& words) {
    const auto document = readRtf(body("\\trowd" + words + "\\cellx1000\\pard\\intbl a\\cell\\row"));
    return rowOf(*document).cells.at(0).look;
}

TEST(RtfCells, HaveALineOnEachSideThatSaysSo) {
    const struct {
        const char* side;
        bool CellLook::*line;
    } rows[] = {{"clbrdrl", &CellLook::left},
                {"clbrdrt", &CellLook::top},
                {"clbrdrr", &CellLook::right},
                {"clbrdrb", &CellLook::bottom}};
    for (const auto& row : rows) {
        for (const char* const style : {"brdrs", "brdrth", "brdrdb", "brdrdot", "brdrdash", "brdrhair"}) {
            const CellLook look = cellOf(std::string("\\") + row.side + "\\" + style + "\\brdrw15");
            for (const auto& other : rows)
                EXPECT_EQ(look.*other.line, other.line == row.line) << row.side << " " << style;
        }
        for (const char* const none : {"brdrnone", "brdrnil"}) {
            EXPECT_FALSE(cellOf(std::string("\\") + row.side + "\\brdrs\\" + none).*row.line) << none;
        }
    }
    EXPECT_FALSE(cellOf("\\clbrdrl\\trbrdrt\\brdrs").left) << "that line is the row's";
    EXPECT_FALSE(cellOf("\\brdrs").left) << "no side was named";
}

TEST(RtfRows, BeginAnewWithTheirDefinition) {
    const auto document =
        readRtf(body("\\trowd\\trleft300\\clbrdrl\\brdrs\\cellx900\\trowd\\cellx500\\cellx700\\pard\\intbl "
                     "a\\cell b\\cell\\row"));
    const TableRow& row = rowOf(*document);
    EXPECT_EQ(row.leftEdge, 0);
    ASSERT_EQ(row.cells.size(), 2U);
    EXPECT_EQ(row.cells[0].look, (CellLook{500, false, false, false, false, {}}));
    EXPECT_EQ(row.cells[1].look.rightEdge, 700);
}

TEST(RtfRows, EndAtTwentyTwoInchesAndSixtyFourCells) {
    std::string many = "\\trowd\\trleft-99999";
    for (int i = 0; i < 70; ++i)
        many += "\\cellx" + std::to_string(1000 * i);
    many += "\\pard\\intbl ";
    for (int i = 0; i < 70; ++i)
        many += "a\\cell ";
    const auto document = readRtf(body(many + "\\row"));
    const TableRow& row = rowOf(*document);
    EXPECT_EQ(row.leftEdge, -31680);
    ASSERT_EQ(row.cells.size(), 64U);
    EXPECT_EQ(row.cells[30].look.rightEdge, 30000);
    EXPECT_EQ(row.cells[40].look.rightEdge, 31680);
}

TEST(RtfRows, HoldParagraphsAndGoOnWithTheSameDefinition) {
    const auto document =
        readRtf(body("\\trowd\\cellx900\\pard\\intbl a\\par b\\cell\\row c\\cell\\row\\pard d\\par"));
    ASSERT_EQ(document->blocks.size(), 3U);
    EXPECT_EQ(rowOf(*document).cells.at(0).paragraphs.size(), 2U);
    EXPECT_EQ(std::get<TableRow>(document->blocks[1]).cells.at(0).look.rightEdge, 900);
}

PictureRun pictureOf(const std::string& words) {
    const auto document = readRtf(body("{\\pict" + words + "}\\par"));
    return std::get<PictureRun>(std::get<Paragraph>(document->blocks.at(0)).runs.at(0));
}

TEST(RtfPictures, HaveTheirFormatAndSize) {
    EXPECT_EQ(pictureOf("\\jpegblip ffd8").format, "jpg");
    EXPECT_EQ(pictureOf("\\pngblip ff").format, "png");
    const PictureRun picture =
        pictureOf("\\pngblip\\picwgoal1000\\pichgoal2000\\picscalex150\\picscaley25 AbcD 9");
    EXPECT_EQ(picture.width, 1500);
    EXPECT_EQ(picture.height, 500);
    EXPECT_EQ(picture.bytes, "\xAB\xCD") << "hex of either case, in pairs";
    EXPECT_EQ(pictureOf("\\pngblip\\picwgoal99999 ff").width, 20000);
    EXPECT_EQ(pictureOf("\\pngblip\\picwgoal-5 ff").width, 0);
    EXPECT_EQ(pictureOf("\\pngblip\\bin3 abc").bytes, "abc");
}

std::string hexOf(const std::string& bytes) {
    constexpr char kHex[] = "0123456789abcdef";
    std::string hex;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += {kHex[byte >> 4], kHex[byte & 15]};
    }
    return hex;
}

std::string number(unsigned value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(static_cast<unsigned char>(value >> (8 * i)));
    return text;
}

/// The head of a bitmap of 1 x 1 with these bits, compression and used colours, and `rest` behind it.
std::string dib(unsigned bits, unsigned compression, unsigned colours, const std::string& rest) {
    return number(40, 4) + number(1, 4) + number(1, 4) + number(1, 2) + number(bits, 2) +
           number(compression, 4) + std::string(12, '\0') + number(colours, 4) + number(0, 4) + rest;
}

/// Where the file says that its pixels begin.
unsigned pixelsAt(const std::string& file) {
    unsigned value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value |= static_cast<unsigned>(static_cast<unsigned char>(file.at(10 + i))) << (8 * i);
    return value;
}

TEST(RtfBitmaps, SayWhereTheirPixelsBegin) {
    const std::string rest(2000, '\x11');
    const struct {
        unsigned bits, compression, colours, at;
    } rows[] = {{24, 0, 0, 54},        // two heads
                {8, 0, 0, 54 + 1024},  // 256 colours of four bytes
                {4, 0, 0, 54 + 64},   {1, 0, 0, 54 + 8},
                {8, 0, 3, 54 + 12},   {16, 3, 0, 54 + 12},  // three masks
                {24, 0, 2, 54 + 8},   {32, 0, 256, 54 + 1024}};
    for (const auto& row : rows) {
        const std::string bitmap = dib(row.bits, row.compression, row.colours, rest);
        const std::string file = pictureOf("\\dibitmap0 " + hexOf(bitmap)).bytes;
        EXPECT_EQ(pixelsAt(file), row.at) << row.bits << " " << row.compression << " " << row.colours;
        EXPECT_EQ(file.substr(14), bitmap);
        EXPECT_EQ(file.substr(2, 4), number(static_cast<unsigned>(14 + bitmap.size()), 4));
    }
    EXPECT_EQ(textOf(body("{\\pict\\dibitmap0 " + hexOf(dib(8, 0, 257, rest)) + "}a\\par")), "a|");
}

/// A metafile with these records behind its head.
std::string metafile(const std::string& records) {
    return number(1, 2) + number(9, 2) + std::string(14, '\0') + records;
}

std::string record(unsigned function, const std::string& content) {
    return number(static_cast<unsigned>((6 + content.size()) / 2), 4) + number(function, 2) + content;
}

TEST(RtfMetafiles, GiveTheirBitmapFromEitherRecordWithOrWithoutThePlaceableHead) {
    const std::string bitmap = dib(24, 0, 0, std::string(4, '\x22'));
    const std::string other = record(0x0103, number(8, 2));
    const std::string stretch = record(0x0F43, std::string(22, '\0') + bitmap);
    const std::string blit = record(0x0B41, std::string(20, '\0') + bitmap);
    const std::string placeable = number(0x9AC6CDD7U, 4) + std::string(18, '\0');
    for (const std::string& file : {metafile(stretch), metafile(other + stretch), metafile(blit),
                                    metafile(other + other + blit), placeable + metafile(stretch)}) {
        const PictureRun picture = pictureOf("\\wmetafile8 " + hexOf(file));
        EXPECT_EQ(picture.format, "bmp");
        EXPECT_EQ(picture.bytes.substr(14), bitmap);
    }
    EXPECT_EQ(textOf(body("{\\pict\\wmetafile8 " + hexOf(metafile(other)) + "}a\\par")), "a|");
}

TEST(RtfGroups, DeeperThanTwoHundredKeepTheLookOfTheLast) {
    const std::string deep(300, '{');
    const auto document = readRtf(body(deep + "\\b x" + std::string(300, '}') + "y\\par"));
    EXPECT_EQ(textOf(*document), "xy|");
    const auto& runs = std::get<Paragraph>(document->blocks.at(0)).runs;
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_TRUE(std::get<TextRun>(runs[0]).look.bold);
    EXPECT_FALSE(std::get<TextRun>(runs[1]).look.bold);
}

TEST(RtfRuns, GrowUntilTheLookChanges) {
    const auto document = readRtf(body("a{}b\\b c\\b0 d\\par"));
    const auto& runs = std::get<Paragraph>(document->blocks.at(0)).runs;
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(std::get<TextRun>(runs[0]).text, "ab");
    EXPECT_EQ(std::get<TextRun>(runs[1]).text, "c");
    EXPECT_EQ(std::get<TextRun>(runs[2]).text, "d");
}

TEST(RtfFallback, IsAsLongAsItSaysUpToSixteenBytes) {
    EXPECT_EQ(textOf(body("\\uc3\\u8364 abcd\\par")), "€d|");
    EXPECT_EQ(textOf(body("\\uc99\\u8364 0123456789abcdefgh\\par")), "€gh|");
    EXPECT_EQ(textOf(body("\\uc-1\\u8364 x\\par")), "€x|");
    EXPECT_EQ(textOf(body("\\u8364\\'80x\\par")), "€x|") << "a byte in hex is one";
}

TEST(RtfSections, EndTheirParagraphToo) {
    EXPECT_EQ(textOf(body("a\\sect b\\par")), "a|b|");
}

}  // namespace
}  // namespace norlaplan
