#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "help/ProductLines.h"
#include "support/FaultOf.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> namesOf(std::string_view content) {
    std::vector<std::string> names;
    for (const ProductLine& line : readProductLines(content))
        names.push_back(line.name);
    return names;
}

struct Shop {
    explicit Shop(const std::string& content) { files.write("Bearing Pictures/product lines.TXT", content); }
    TemporaryFolder files;
    ProgramFolder folder{files.path()};
};

TEST(ProductLines, HaveNamePictureAndTextInParagraphs) {
    const auto lines = readProductLines(
        "about this file\n[One]\none.jpg\nFirst\nwords.\n\n\nSecond.\n\n[Two]\n"
        "two.jpg\n");
    EXPECT_THAT(lines,
                ElementsAre(ProductLine{"One", "\\bearing pictures\\one.jpg", "First words.\n\nSecond."},
                            ProductLine{"Two", "\\bearing pictures\\two.jpg", ""}));
}

TEST(ProductLines, TakeAnyLineEndBlanksAndTheMarkOfUtf8) {
    EXPECT_THAT(readProductLines("\xEF\xBB\xBF[ One ]\r\n\r\n  one.jpg \r\nÖl \t\r\n bad.\r\n"),
                ElementsAre(ProductLine{"One", "\\bearing pictures\\one.jpg", "Öl bad."}));
}

TEST(ProductLines, WithoutANameAreNone) {
    EXPECT_THAT(readProductLines(""), IsEmpty());
    EXPECT_THAT(readProductLines("words\nwords\n"), IsEmpty());
    EXPECT_THAT(readProductLines("[]\n[ ]\none.jpg"), IsEmpty());
}

TEST(ProductLines, EmptyBracketsAreWordsOfTheLineBefore) {
    EXPECT_THAT(readProductLines("[One]\none.jpg\n[]\nwords\n[x]\nx.jpg"),
                ElementsAre(ProductLine{"One", "\\bearing pictures\\one.jpg", "[] words"},
                            ProductLine{"x", "\\bearing pictures\\x.jpg", ""}));
}

TEST(ProductLines, ANameThatCameBeforeIsPassedOverWithItsText) {
    const auto lines = readProductLines("[One]\none.jpg\nfirst\n[One]\ntwo.jpg\nsecond");
    EXPECT_THAT(lines, ElementsAre(ProductLine{"One", "\\bearing pictures\\one.jpg", "first"}));
}

TEST(ProductLines, KeepTheMenuShort) {
    std::string many;
    for (int i = 0; i < 1000; ++i)
        many += "[Line " + std::to_string(i) + "]\np.jpg\n";
    EXPECT_EQ(readProductLines(many).size(), 30U);
    EXPECT_THAT(namesOf("[" + std::string(61, 'x') + "]\n[" + std::string(60, 'y') + "]\n"),
                ElementsAre(std::string(60, 'y')));
}

TEST(ProductLines, AnyBytesAreRead) {
    std::mt19937 chance(1);
    std::string bytes(100000, ' ');
    for (char& byte : bytes)
        byte = "[]\n\r a\xFF\0"[chance() % 8];
    EXPECT_LE(readProductLines(bytes).size(), 30U);
}

TEST(ProductLines, StandInTheMenuAsInTheFileAndTwoAreAlwaysThere) {
    EXPECT_THAT(productLineNames(Shop("[Custom]\n[Wet]\n").folder),
                ElementsAre("Custom", "Wet", "Metric Series"));
    EXPECT_THAT(productLineNames(ProgramFolder("/nowhere")), ElementsAre("Metric Series", "Custom"));
}

TEST(ProductLines, OneIsReadByItsName) {
    const Shop shop("[Wet]\nwet.jpg\nFor rain.");
    EXPECT_EQ(productLine(shop.folder, "Wet").text, "For rain.");
    shop.files.write("Bearing Pictures/product lines.TXT", "[Wet]\nwet.jpg\nFor snow.");
    EXPECT_EQ(productLine(shop.folder, "Wet").text, "For snow.");
}

TEST(ProductLines, OneThatIsMissingIsAFaultThatNamesTheFile) {
    const Shop shop("[Wet]\nwet.jpg\nFor rain.");
    EXPECT_EQ(faultOf([&] { productLine(shop.folder, "Custom"); }), 53);
    EXPECT_EQ(faultOf([] { productLine(ProgramFolder("/nowhere"), "Custom"); }), 53);
    try {
        productLine(shop.folder, "Custom");
    } catch (const RuntimeError& failure) {
        EXPECT_EQ(failure.what(),
                  "File not found: " + (shop.files.path() / "Bearing Pictures/product lines.TXT").string() +
                      " has no page \"Custom\"");
    }
}

TEST(ProductLines, ThatAreShippedEachHaveTwoParagraphsAndAPicture) {
    const ProgramFolder folder(programFolder());
    const auto names = productLineNames(folder);
    EXPECT_GE(names.size(), 6U);
    EXPECT_EQ(names.front(), "Metric Series");
    EXPECT_EQ(names.back(), "Custom");
    for (const std::string& name : names) {
        const ProductLine line = productLine(folder, name);
        EXPECT_TRUE(line.picture.ends_with(".jpg")) << name;
        EXPECT_NE(line.text.find("\n\n"), std::string::npos) << name;
    }
    EXPECT_EQ(productLine(folder, "Metric Series").picture, "\\bearing pictures\\metrics.jpg");
}

}  // namespace
}  // namespace norlaplan
