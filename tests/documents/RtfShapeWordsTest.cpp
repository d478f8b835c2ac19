#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/RTFroutines.h"

/// Every shape and the head of a document, word for word: a word processor passes over what it doesn't know,
/// so that a word gone wrong shows nowhere but on paper.
namespace norlaplan {
namespace {

/// What RTF says: its line ends mean nothing.
std::string words(const RtfDocument& document) {
    std::string rtf = document.rtf();
    std::erase(rtf, '\r');
    std::erase(rtf, '\n');
    return rtf;
}

std::string property(const std::string& name, const std::string& value) {
    return "{\\sp{\\sn " + name + "}{\\sv " + value + "}}";
}

/// The beginning of the first shape of a document, with its box from (1, 10) to (3, 9) inches: 1440 twips an
/// inch, counted from the top of a page of 11.
std::string beginning(const std::string& type, const std::string& flip = "0") {
    return "{\\shp{\\*\\shpinst\\shpleft1440\\shptop1440\\shpright4320\\shpbottom2880\\shpfhdr0\\shpbxpage"
           "\\shpbypage\\shpwr3\\shpwrk0\\shpfblwtxt0\\shpz1\\shplid1027" +
           property("shapeType", type) + property("fFlipH", "0") + property("fFlipV", flip);
}

/// The beginning of its old format: 8192 and its number.
const std::string kOld = "{\\shprslt{\\*\\do\\dobxpage\\dobypage\\dodhgt8193";
const std::string kOldPlace = "\\dpx1440\\dpy1440\\dpxsize2880\\dpysize1440";

/// (1 + 1) x 65536 is the number of its text.
const std::string kTextProperties = property("lTxid", "131072") + property("dxTextLeft", "0") +
                                    property("dyTextTop", "0") + property("dxTextRight", "0") +
                                    property("dyTextBottom", "0");

SheetText text(bool bold = false, bool vertical = false, bool italic = false) {
    return {{1.0, 10.0, 3.0, 9.0}, 10.0, "BLUE", "words", bold, "ARIEL", vertical, italic};
}

std::string textShape(const std::string& properties, const std::string& paragraph, const std::string& run,
                      const std::string& oldFill) {
    const std::string whole =
        "\\pard\\plain " + paragraph + "\\widctlpar\\adjustright \\fs20\\cgrid {" + run + "\\par }";
    return beginning("202") + kTextProperties + properties + "{\\shptxt " + whole + "}}" + kOld +
           "\\dptxbx{\\dptxbxtext" + whole + "}" + kOldPlace +
           "\\dpfillfgcr255\\dpfillfgcg255\\dpfillfgcb255" + oldFill + "}}}";
}

TEST(RtfShapeWords, OfAText) {
    const std::string none = property("fFilled", "0") + property("fLine", "0");
    const std::string hollow = "\\dpfillbgcr255\\dpfillbgcg255\\dpfillbgcb255\\dpfillpat0\\dplinehollow";
    const struct {
        const char* what;
        SheetText text;
        std::string properties, run;
    } rows[] = {
        {"plain", text(), none, "\\cf2\\fs20\\f1 words"},
        {"bold", text(true), none, "\\b\\cf2\\fs20\\f1 words"},
        {"upright", text(false, true), property("txflTextFlow", "2") + none, "\\cf2\\fs20\\f1 words"},
        {"italic", text(true, false, true), none, "\\b\\cf2\\i\\fs20\\f1 words"},
    };
    for (const auto& row : rows) {
        RtfDocument document;
        document.RTFDATASHEETTEXT(row.text);
        EXPECT_EQ(words(document), textShape(row.properties, "\\ri-72", row.run, hollow)) << row.what;
    }
    RtfDocument centred, right;
    centred.RtfPlainText(text());
    EXPECT_EQ(words(centred), textShape(none, "\\qc\\ri-72\\li-72", "\\cf2\\fs20\\f1 words", hollow));
    right.RtfPlainText(text(), Alignment::Right);
    EXPECT_EQ(words(right), textShape(none, "\\qr\\li-72", "\\cf2\\fs20\\f1 words", hollow));
}

TEST(RtfShapeWords, OfATextInABox) {
    const std::string fill =
        property("anchorText", "1") + property("fillColor", "197121") + property("fFilled", "1");
    const std::string framed =
        "\\dpfillbgcr1\\dpfillbgcg2\\dpfillbgcb3\\dpfillpat1\\dplinehollow\\dplinew15"
        "\\dplinecor0\\dplinecog0\\dplinecob0";
    RtfDocument level, upright;
    level.RTFTEXTWBOX({text(), 1 + 2 * 256 + 3 * 65536});
    EXPECT_EQ(words(level), textShape(fill, "\\qc\\ri-72\\li-72", "\\cf2\\fs20\\f1 words", framed));
    upright.RTFTEXTWBOX({text(false, true), 1 + 2 * 256 + 3 * 65536});
    EXPECT_EQ(words(upright), textShape(property("txflTextFlow", "3") + fill, "\\qc\\ri-72\\li-72",
                                        "\\cf2\\fs20\\f1 words", framed));
}

TEST(RtfShapeWords, OfALine) {
    const std::string pen = property("shapePath", "4") + property("fFillOK", "0") + property("fFilled", "0") +
                            property("fArrowheadsOK", "1") + property("lineColor", "197121") +
                            property("lineWidth", "9525") + property("fLine", "1") +
                            property("fLayoutInCell", "1");
    // 635 EMU are a twip: 9525 are 15.
    const std::string oldPen = "\\dplinew15\\dplinecor1\\dplinecog2\\dplinecob3}}}";
    constexpr Colour kColour = 1 + 2 * 256 + 3 * 65536;
    RtfDocument falls, rises, dashed;
    falls.RTFLINE({1, 10}, {3, 9}, kColour, 9525.0);
    EXPECT_EQ(words(falls), beginning("20") + pen + "}" + kOld +
                                "\\dpline\\dpptx0\\dppty0\\dpptx2880\\dppty1440" + kOldPlace + oldPen);
    rises.RTFLINE({1, 9}, {3, 10}, kColour, 9525.0);
    EXPECT_EQ(words(rises), beginning("20", "1") + pen + "}" + kOld +
                                "\\dpline\\dpptx0\\dppty1440\\dpptx2880\\dppty0" + kOldPlace + oldPen);
    dashed.RTFDATASHEETLINE({1, 10}, {3, 9}, kColour, 9525.0, 6);
    EXPECT_EQ(words(dashed), beginning("20") + pen + property("lineDashing", "6") + "}" + kOld +
                                 "\\dpline\\dpptx0\\dppty0\\dpptx2880\\dppty1440" + kOldPlace + oldPen);
}

TEST(RtfShapeWords, OfACircle) {
    RtfDocument document;
    document.RTFCIRCLE({2.0, 10.0}, 1.0, 1 + 2 * 256 + 3 * 65536, 19050.0);
    // From (1, 11) to (3, 9): the page's top is 0 twips.
    std::string begin = beginning("3");
    begin.replace(begin.find("\\shptop1440"), 11, "\\shptop0");
    EXPECT_EQ(words(document), begin + property("fFilled", "0") + property("lineColor", "197121") +
                                   property("lineWidth", "19050") + property("fline", "1") + "}" + kOld +
                                   "\\dpellipse\\dpx1440\\dpy0\\dpxsize2880\\dpysize2880\\dpfillpat0"
                                   "\\dplinew30\\dplinecor1\\dplinecog2\\dplinecob3}}}");
}

TEST(RtfShapeWords, OfAFillAndATint) {
    const PageBox box{1.0, 10.0, 3.0, 9.0};
    RtfDocument fill, tint;
    fill.RtfFill(box, 1 + 2 * 256 + 3 * 65536);
    EXPECT_EQ(words(fill), beginning("1") + property("fillColor", "197121") + property("fFilled", "1") +
                               property("fLine", "0") + "}" + kOld + "\\dprect" + kOldPlace +
                               "\\dpfillfgcr255\\dpfillfgcg255\\dpfillfgcb255"
                               "\\dpfillbgcr1\\dpfillbgcg2\\dpfillbgcb3\\dpfillpat1\\dplinehollow}}}");
    tint.TINTEDTTEXTBOX(box, 1 + 2 * 256 + 3 * 65536, 4 + 5 * 256 + 6 * 65536);
    const std::string empty =
        "\\pard\\plain \\qc\\ri-72\\li-72\\widctlpar\\adjustright \\fs0\\cgrid {\\fs0 \\par }";
    EXPECT_EQ(words(tint), beginning("202") + property("lTxid", "131072") + property("fillColor", "197121") +
                               property("fillBackColor", "394500") + property("fFilled", "1") + "{\\shptxt " +
                               empty + "}}" + kOld + "\\dptxbx{\\dptxbxtext" + empty + "}" + kOldPlace +
                               "\\dpfillfgcr4\\dpfillfgcg5\\dpfillfgcb6"
                               "\\dpfillbgcr1\\dpfillbgcg2\\dpfillbgcb3"
                               "\\dpfillpat1\\dplinew15\\dplinecor0\\dplinecog0\\dplinecob0}}}");
}

TEST(RtfHeadWords, FontsColoursAndStyles) {
    RtfDocument document;
    document.RtfHeader();
    const std::string head = words(document);
    std::string expected = "{\\rtf1\\ansi\\ansicpg1252\\uc1 \\deff0\\deflang1033\\deflangfe1033{\\fonttbl";
    // The numbers behind the names are those that the makers of the fonts gave them.
    for (const char* const font :
         {"{\\f0\\froman\\fcharset0\\fprq2{\\*\\panose 02020603050405020304}Times New Roman;}",
          "{\\f1\\fswiss\\fcharset0\\fprq2{\\*\\panose 020b0604020202020204}Arial;}",
          "{\\f2\\fmodern\\fcharset0\\fprq1{\\*\\panose 02070309020205020404}Courier New;}",
          "{\\f3\\froman\\fcharset0\\fprq2{\\*\\panose 02040602050305030304}Book ANtiqua;}",
          "{\\f28\\fswiss\\fcharset0\\fprq2{\\*\\panose 020b0a04020102020204}Arial Black;}"})
        expected += font;
    expected += "}{\\colortbl;";
    const int colours[][3] = {{0, 0, 0},       {0, 0, 255},   {0, 255, 255},   {0, 255, 0},   {255, 0, 255},
                              {255, 0, 0},     {255, 255, 0}, {255, 255, 255}, {0, 0, 128},   {0, 128, 128},
                              {0, 128, 0},     {128, 0, 128}, {128, 0, 0},     {128, 128, 0}, {128, 128, 128},
                              {192, 192, 192}, {51, 102, 255}};
    for (const auto& [red, green, blue] : colours) {
        expected += "\\red" + std::to_string(red) + "\\green" + std::to_string(green) + "\\blue" +
                    std::to_string(blue) + ";";
    }
    expected +=
        "}{\\stylesheet{\\widctlpar\\adjustright \\fs20\\cgrid \\snext0 Normal;}"
        "{\\*\\cs10 \\additive Default Paragraph Font;}}"
        "\\margl720\\margr720\\margt936\\margb720\\widowctrl\\ftnbj\\aenddoc\\formshade"
        "\\viewkind1\\viewscale114\\pgbrdrhead\\pgbrdrfoot \\fet0\\sectd \\linex0\\footery360"
        "\\endnhere\\sectdefaultcl";
    EXPECT_EQ(head.substr(0, expected.size()), expected);
}

TEST(RtfHeadWords, ListLevelsThePictureAndWhatFollowsIt) {
    RtfDocument document;
    document.RtfHeader();
    const std::string head = words(document);
    // I. A. 1. a) (1) (a) (i) (a) (i)
    const char* const kinds[] = {"ucrm", "ucltr", "dec", "lcltr", "dec", "lcltr", "lcrm", "lcltr", "lcrm"};
    std::string expected;
    for (std::size_t level = 1; level <= 9; ++level) {
        expected += "{\\*\\pnseclvl" + std::to_string(level) + "\\pn" + kinds[level - 1] +
                    "\\pnstart1\\pnindent720\\pnhang" + (level >= 5 ? "{\\pntxtb (}" : "") +
                    (level >= 4 ? "{\\pntxta )}}" : "{\\pntxta .}}");
    }
    expected +=
        "\\pard\\plain \\qr\\widctlpar\\adjustright \\fs20\\cgrid {\\lang1024"
        "{\\pict{\\*\\picprop\\shplid1025" +
        property("shapeType", "75") + property("fFlipH", "0") + property("fFlipV", "0") +
        property("fLine", "0") +
        "}\\picscalex23\\picscaley23\\picw22543\\pich7364\\picwgoal12780\\pichgoal4175\\wmetafile8";
    EXPECT_NE(head.find(expected), std::string::npos);
    EXPECT_TRUE(head.ends_with(
        "}}{\\f1\\lang1024\\par }\\pard \\widctlpar\\adjustright {\\f1\\lang1024 }{\\lang1024"));
}

}  // namespace
}  // namespace norlaplan
