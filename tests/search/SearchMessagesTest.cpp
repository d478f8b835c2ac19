#include <gtest/gtest.h>

#include "search/SearchMessages.h"
#include "support/RecordingPorts.h"
#include "support/SearchCases.h"

namespace norlaplan {
namespace {

TEST(TheMessagesOfASearch, AreEachPassedOnOnce) {
    testing::RecordingMessages user;
    testing::NeverStops watch;
    StopLatch latch(watch);
    SearchMessages messages(user, latch);
    const Message first{"one", "1"}, second{"two", "2"};
    for (int row = 0; row < 3; ++row) {
        messages.show(first);
        messages.show(second);
    }
    EXPECT_EQ(user.shown, (std::vector<Message>{first, second}));
}

}  // namespace
}  // namespace norlaplan
