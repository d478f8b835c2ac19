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

TEST(Patience, AsksUnderItsTitleAndNotBeforeTenSeconds) {
    RecordingMessages messages;
    seconds = 100.0;
    Patience patience(messages, &now);
    patience.begin();
    seconds = 109.999;
    for (int pass = 0; pass < 64; ++pass)
        patience.pass({static_cast<double>(pass)});
    EXPECT_TRUE(messages.asked.empty());
    seconds = 110.0;
    int passes = 64;
    EXPECT_THROW(
        for (;; ++passes) {
            patience.pass({static_cast<double>(passes)});
            ASSERT_LT(passes, 1000);
        },
        NotConverging);
    ASSERT_EQ(messages.asked.size(), 1U);
    EXPECT_EQ(messages.asked[0],
              (Message{"The calculation does not converge", "Do you want to keep trying?", Icon::Question}));
    EXPECT_EQ(passes, 127) << "it looks at the clock at every 64th pass";
}

TEST(Patience, CountsItsTenSecondsAnewAfterAYes) {
    RecordingMessages messages;
    messages.answers = {Answer::Yes, Answer::Yes};
    seconds = 0.0;
    Patience patience(messages, &now);
    patience.begin();
    int pass = 0;
    const auto passes = [&](double until) {
        seconds = until;
        for (int i = 0; i < 64; ++i)
            patience.pass({static_cast<double>(pass++)});
        return messages.asked.size();
    };
    EXPECT_EQ(passes(10.0), 1U);
    EXPECT_EQ(passes(19.0), 1U);
    EXPECT_EQ(passes(20.0), 2U);
}

TEST(Patience, TakesAStateThatDiffersInOneValueForANewOne) {
    RecordingMessages messages;
    Patience patience(messages);
    patience.begin();
    for (int pass = 0; pass < 500; ++pass)
        patience.pass({1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, static_cast<double>(pass)});
    SUCCEED();
}

TEST(Patience, LooksAtTheClockByTheBallsWhateverAPassHas) {
    for (const int balls : {1, 60, 30000}) {
        RecordingMessages messages;
        seconds = 0.0;
        Patience patience(messages, &now);
        seconds = 10.0;
        long worked = 0;
        bool wanted = true;
        while (wanted && worked < 100000) {
            wanted = patience.worked(balls);
            worked += balls;
        }
        EXPECT_FALSE(wanted) << balls;
        EXPECT_LE(worked, 8192 + balls) << balls;
        EXPECT_GE(worked, 8192) << balls;
        ASSERT_EQ(messages.asked.size(), 1U);
        EXPECT_EQ(messages.asked[0].prompt, "Do you want to keep trying?");
    }
}

TEST(Patience, GoesOnWithTheBallsAfterAYes) {
    RecordingMessages messages;
    messages.answers = {Answer::Yes};
    seconds = 0.0;
    Patience patience(messages, &now);
    seconds = 10.0;
    EXPECT_TRUE(patience.worked(30000));
    EXPECT_TRUE(patience.worked(30000)) << "the ten seconds count from the answer";
    EXPECT_EQ(messages.asked.size(), 1U);
}

TEST(Patience, EndsWithoutAQuestionWhatNobodyWantsAnyMore) {
    struct Stopped : RecordingMessages {
        bool stillWanted() override { return false; }
    } messages;
    Patience patience(messages);
    EXPECT_FALSE(patience.worked(30000));
    patience.begin();
    EXPECT_THROW(for (int pass = 0; pass < 100; ++pass) patience.pass({static_cast<double>(pass)}),
                 NotConverging);
    EXPECT_TRUE(messages.asked.empty());
}

TEST(NotConverging, SaysWhyTheCalculationWasEnded) {
    EXPECT_STREQ(NotConverging().what(),
                 "The calculation was ended because it comes to no result with these values.");
}

TEST(SteadySeconds, CountSecondsAndNeverRunBackward) {
    const Patience::Seconds before = Patience::steadySeconds();
    const auto clock = std::chrono::steady_clock::now().time_since_epoch();
    const Patience::Seconds after = Patience::steadySeconds();
    const double between = std::chrono::duration<double>(clock).count();
    EXPECT_LE(before.count(), between);
    EXPECT_GE(after.count(), between);
}

TEST(Patience, EndsACycleThatBeginsAfterAWhile) {
    for (const int lead : {1, 5, 100, 1000}) {
        RecordingMessages messages;
        Patience patience(messages);
        patience.begin();
        int passes = 0;
        EXPECT_THROW(
            for (;; ++passes) {
                patience.pass({static_cast<double>(passes < lead ? -1 - passes : passes % 7)});
                ASSERT_LT(passes, 10000);
            },
            NotConverging);
        EXPECT_LT(passes, 4 * lead + 40);
    }
}

}  // namespace
}  // namespace norlaplan
