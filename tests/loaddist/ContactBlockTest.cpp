#include <cmath>
#include <cstring>
#include <memory>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "loaddist/ContactBlock.h"
#include "numbers/RuntimeError.h"
#include "support/FaultOf.h"

namespace norlaplan {
namespace {

using testing::faultOf;

/// Two rows of a six inch bearing at some displacements: one ball in a few touches.
ContactRows someRows(std::mt19937_64& generator) {
    const auto between = [&](double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(generator);
    };
    const double A0 = between(0.005, 0.04);
    const double m = between(-0.2, 0.2);
    const double R = between(1.0, 4.0);
    const double dr = between(-2e-3, 2e-3);
    const double t = between(-5e-4, 5e-4);
    const double x = A0 * std::cos(0.5) - 1e-4;
    const double y = A0 * std::sin(0.5);
    const double da = between(-2e-3, 2e-3);
    return {{x, y + da, m, R, dr, t}, {x, y - da, -m, -R, dr, t}, A0, R, m, between(-0.5, 0.5), 8.0, 1.2e7};
}

std::vector<double> cosinesOf(std::size_t balls) {
    std::vector<double> cosines = {0.0};
    for (std::size_t i = 0; i < balls; ++i)
        cosines.push_back(std::cos(static_cast<double>(i) * 2.0 * 3.14159265359 / double(balls)));
    return cosines;
}

bool sameBits(const ContactBlock& a, const ContactBlock& b,
              const ContactBlock::Column ContactBlock::*column) {
    return std::memcmp((a.*column).data(), (b.*column).data(), a.end() * sizeof(double)) == 0;
}

TEST(ContactBlock, HasTheSameBitsByTwoAndByFour) {
    if (!ContactBlock::canTakeByFour()) GTEST_SKIP() << "this processor can't take four numbers at once";
    std::mt19937_64 generator(20261122);
    const auto two = std::make_unique<ContactBlock>();
    const auto four = std::make_unique<ContactBlock>();
    std::size_t contacts = 0, most = 0;
    for (int round = 0; round < 20000; ++round) {
        const std::size_t balls = 1 + generator() % ContactBlock::kBalls;
        const std::vector<double> cosines = cosinesOf(balls);
        const ContactRows rows = someRows(generator);
        two->takeByTwo(rows, cosines.data(), 1, balls);
        four->takeByFour(rows, cosines.data(), 1, balls);
        ASSERT_EQ(two->second(), four->second());
        ASSERT_EQ(two->end(), four->end());
        for (std::size_t i = 0; i < two->end(); ++i)
            ASSERT_EQ(two->ball(i), four->ball(i));
        for (const auto column :
             {&ContactBlock::Q, &ContactBlock::radialForce, &ContactBlock::axialForce, &ContactBlock::moment,
              &ContactBlock::k11, &ContactBlock::k12, &ContactBlock::k13, &ContactBlock::k22,
              &ContactBlock::k23, &ContactBlock::k31, &ContactBlock::k32, &ContactBlock::k33}) {
            ASSERT_TRUE(sameBits(*two, *four, column)) << round;
        }
        contacts += two->end();
        most += two->end() == 2 * balls ? 1 : 0;
    }
    EXPECT_GT(contacts, 200000U);
    EXPECT_GT(most, 0U) << "no block in which every ball touches in both rows";
}

TEST(ContactBlock, TellsAFaultOfABallInAnyPlaceByTwoAndByFour) {
    std::mt19937_64 generator(7);
    ContactBlock block;
    const std::vector<double> cosines = cosinesOf(40);
    for (const auto take : {&ContactBlock::takeByTwo, &ContactBlock::takeByFour}) {
        if (take == &ContactBlock::takeByFour && !ContactBlock::canTakeByFour()) continue;
        for (std::size_t ball = 1; ball <= 40; ++ball) {
            ContactRows rows = someRows(generator);
            EXPECT_EQ(faultOf([&] { (block.*take)(rows, cosines.data(), 1, 40); }), 0);
            // One ball's line without an axial part; then one of infinite length.
            rows.two.t = 1e-4;
            rows.two.y0 = -((rows.two.R * cosines[ball]) * rows.two.t);
            EXPECT_EQ(faultOf([&] { (block.*take)(rows, cosines.data(), 1, 40); }), fault::kDivisionByZero);
            rows.two.y0 = 1e200;
            EXPECT_EQ(faultOf([&] { (block.*take)(rows, cosines.data(), 1, 40); }), fault::kOverflow);
        }
    }
}

}  // namespace
}  // namespace norlaplan
