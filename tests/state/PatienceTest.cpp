#include <gtest/gtest.h>

#include "state/Patience.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingMessages;

double seconds = 0.0;
Patience::Seconds now() {
    return Patience::Seconds(seconds);
}

TEST(Patience, EndsACycleOfAnyLengthAtOnce) {
    for (const int period : {1, 2, 3, 7, 100}) {
        RecordingMessages messages;
        Patience patience(messages);
        patience.begin();
        int passes = 0;
        EXPECT_THROW(
            for (;; ++passes) {
                patience.pass({static_cast<double>(passes % period), 1.0});
                ASSERT_LT(passes, 1000);
            },
            NotConverging);
        EXPECT_TRUE(messages.asked.empty());
    }
}

TEST(Patience, NeverCutsARunWhoseStateGoesOn) {
    RecordingMessages messages;
    Patience patience(messages);
    patience.begin();
    for (int pass = 0; pass < 100000; ++pass)
        patience.pass({static_cast<double>(pass)});
    EXPECT_TRUE(messages.asked.empty());
}

TEST(Patience, AsksAfterTenSecondsAndGoesOnWithYes) {
    RecordingMessages messages;
    messages.answers = {Answer::Yes};
    seconds = 0.0;
    Patience patience(messages, &now);
    patience.begin();
    for (int pass = 0; pass < 200; ++pass)
        patience.pass({static_cast<double>(pass)});
    EXPECT_TRUE(messages.asked.empty());
    seconds = 10.0;
    for (int pass = 200; pass < 400; ++pass)
        patience.pass({static_cast<double>(pass)});
    ASSERT_EQ(messages.asked.size(), 1U);
    EXPECT_EQ(messages.asked[0].prompt, "Do you want to keep trying?");
    seconds = 20.0;
    EXPECT_THROW(for (int pass = 400; pass < 600; ++pass) patience.pass({static_cast<double>(pass)}),
                 NotConverging);
    EXPECT_EQ(messages.asked.size(), 2U);
}

TEST(Patience, ForgetsTheStatesOfTheIterationBefore) {
    RecordingMessages messages;
    Patience patience(messages);
    patience.begin();
    patience.pass({1.0});
    patience.begin();
    EXPECT_NO_THROW(patience.pass({1.0}));
}

}  // namespace
}  // namespace norlaplan
