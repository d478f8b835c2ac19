#include <gtest/gtest.h>

#include "state/DecodedMark.h"

namespace norlaplan {
namespace {

BearingSpec bearing(const char* partNumber, const char* separatorChoice = "") {
    BearingSpec spec;
    spec.partNumber = partNumber;
    spec.zSeparatorChoice = separatorChoice;
    return spec;
}

TEST(DecodedMark, HoldsForItsNumberSeparatorChoiceAndUnitsAlone) {
    DecodedMark mark;
    EXPECT_FALSE(mark.holds(bearing("K19013XP0"), "US"));
    EXPECT_FALSE(mark.holds(bearing(""), "")) << "nothing is decoded";
    mark.set(bearing("K19013XP0", "P"), "US");
    EXPECT_TRUE(mark.holds(bearing("K19013XP0", "P"), "US"));
    EXPECT_FALSE(mark.holds(bearing("K19013CP0", "P"), "US"));
    EXPECT_FALSE(mark.holds(bearing("K19013XP0", "V"), "US"));
    EXPECT_FALSE(mark.holds(bearing("K19013XP0", "P"), "METRIC"));
    mark.takeOff();
    EXPECT_FALSE(mark.holds(bearing("K19013XP0", "P"), "US"));
}

TEST(DecodedMark, CountsTheDecodesThatCameToAGoodEnd) {
    DecodedMark mark;
    EXPECT_EQ(mark.decodes(), 0);
    mark.set(bearing("K19013XP0"), "US");
    mark.set(bearing("K19013XP0"), "US");
    EXPECT_EQ(mark.decodes(), 2);
    mark.takeOff();
    EXPECT_EQ(mark.decodes(), 2);
}

}  // namespace
}  // namespace norlaplan
