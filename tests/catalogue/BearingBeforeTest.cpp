#include <gtest/gtest.h>

#include "catalogue/Decoding.h"

namespace norlaplan {
namespace {

using testing::Decoding;

const char* const kNumbers[] = {"K19013CP0", "K19013XP0",  "K19013AR0",  "K19013UP0",
                                "K19013TR0", "K19013BR0N", "K19013FR0N", "S02008XJ6"};

TEST(BearingBefore, LeavesNothingOnTheSheetOfTheNext) {
    for (const char* const number : kNumbers) {
        Decoding fresh(testing::shippedFolder());
        fresh.decode(number);
        ASSERT_EQ(fresh.sheets.stored.size(), 1U) << number;
        for (const char* const before : kNumbers) {
            Decoding run(testing::shippedFolder());
            run.decode(before);
            run.decode(number);
            ASSERT_EQ(run.sheets.stored.size(), 2U) << before << ", then " << number;
            EXPECT_EQ(run.sheets.stored[1].records, fresh.sheets.stored[0].records)
                << before << ", then " << number;
        }
    }
}

TEST(BearingBefore, DoesNotLendItsMomentRatingToASingleAngularContact) {
    Decoding run(testing::shippedFolder());
    run.decode("K19013XP0");
    ASSERT_GT(run.bearing().dynamicMoment, 0.0);
    run.decode("K19013UP0");
    EXPECT_EQ(run.bearing().dynamicMoment, 0.0);
}

}  // namespace
}  // namespace norlaplan
