#include <string>

#include <gtest/gtest.h>

#include "state/StyleTable.h"

namespace norlaplan {
namespace {

TEST(Styles, StandInTheOrderOfTheStyleScreenWithTheirTextsAndLetters) {
    const struct {
        std::string label, caption, table, letter, description;
    } rows[] = {
        {"BACK-TO-BACK", "BACK-TO-BACK SET", "A", "B", "Angular Contact Bearings Duplexed Back-to-Back"},
        {"4-POINT CONTACT", "4-POINT CONTACT", "X", "X", "4-Point Contact Bearing"},
        {"FACE-TO-FACE", "FACE-TO-FACE SET", "A", "F", "Angular Contact Bearings Duplexed Face-to-Face"},
        {"BACK-TO-BACK W/ SPACERS", "BACK-TO-BACK SET WITH SPACERS", "A", "B",
         "Angular Contact Bearings Duplexed Back-to-Back with Spacers"},
        {"RADIAL CONTACT", "RADIAL CONTACT", "C", "C", "Radial Contact Bearing"},
        {"FACE-TO FACE W/ SPACERS", "FACE-TO-FACE SET WITH SPACERS", "A", "F",
         "Angular Contact Bearings Duplexed Face-to-Face with Spacers"},
    };
    ASSERT_EQ(kStyles.size(), std::size(rows));
    for (std::size_t i = 0; i < kStyles.size(); ++i) {
        EXPECT_EQ(kStyles[i].label, rows[i].label);
        EXPECT_EQ(kStyles[i].caption, rows[i].caption);
        EXPECT_EQ(kStyles[i].tableLetter, rows[i].table) << rows[i].caption;
        EXPECT_EQ(kStyles[i].styleLetter, rows[i].letter) << rows[i].caption;
        EXPECT_EQ(kStyles[i].description, rows[i].description);
    }
}

TEST(Styles, AreFoundByTheirWholeCaption) {
    for (const StyleRow& row : kStyles)
        EXPECT_EQ(styleByCaption(row.caption), &row) << row.caption;
    EXPECT_EQ(styleByCaption(""), nullptr);
    EXPECT_EQ(styleByCaption("BACK-TO-BACK"), nullptr) << "a label is no caption";
}

TEST(Styles, OfAKnownBearingAreThoseWithoutSpacers) {
    EXPECT_STREQ(styleByLetter("B")->caption, "BACK-TO-BACK SET");
    EXPECT_STREQ(styleByLetter("F")->caption, "FACE-TO-FACE SET");
    EXPECT_STREQ(styleByLetter("X")->caption, "4-POINT CONTACT");
    EXPECT_STREQ(styleByLetter("C")->caption, "RADIAL CONTACT");
    for (const char* other : {"", "A", "T", "U", "BB"}) {
        EXPECT_EQ(styleByLetter(other), nullptr) << other;
    }
}

TEST(StylePictures, AreSmallOnesAndThoseOfLoadsAndSizes) {
    EXPECT_EQ(stylePicture(*styleByLetter("C"), 'T'), "\\bkground\\T-C.BMP");
    EXPECT_EQ(stylePicture(*styleByLetter("X"), 'L'), "\\bkground\\X-L.BMP");
    EXPECT_EQ(stylePicture(*styleByLetter("B"), 'S'), "\\bkground\\DB-S.BMP");
    EXPECT_EQ(stylePicture(*styleByLetter("F"), 'T'), "\\bkground\\T-DF.BMP");
    EXPECT_EQ(stylePicture(*styleByCaption("BACK-TO-BACK SET WITH SPACERS"), 'S'), "\\bkground\\DBWS-S.BMP");
    EXPECT_EQ(stylePicture(*styleByCaption("FACE-TO-FACE SET WITH SPACERS"), 'L'), "\\bkground\\DFWS-L.BMP");
}

}  // namespace
}  // namespace norlaplan
