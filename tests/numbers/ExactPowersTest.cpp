#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "numbers/ExactPowers.h"
#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

double cube(double base) {
    double result = 0.0;
    cubesOf(&base, &result, 1);
    return result;
}

TEST(ExactPowers, EqualTheLibraryInEveryBit) {
    std::mt19937_64 generator(20261121);
    std::uniform_real_distribution<double> exponents(-75.0, 75.0);
    for (int i = 0; i < 2000000; ++i) {
        const double base = std::exp2(exponents(generator));
        ASSERT_EQ(powerThreeHalves(base), std::pow(base, 1.5)) << i << " " << base;
        ASSERT_EQ(cube(base), std::pow(base, 3.0)) << i << " " << base;
    }
}

TEST(ExactPowers, EqualTheLibraryWhereTheResultIsShortOrHalfwayBetweenTwoNumbers) {
    // Short bases have exact powers; those of 27 and 18 bits have powers that end next to or at a half.
    for (long n = 1; n < 200000; ++n) {
        const double base = static_cast<double>(n) / 1024.0;
        ASSERT_EQ(powerThreeHalves(base), std::pow(base, 1.5)) << base;
        ASSERT_EQ(cube(base), std::pow(base, 3.0)) << base;
        const double odd = static_cast<double>(2 * n + 1);
        ASSERT_EQ(powerThreeHalves(odd * odd), std::pow(odd * odd, 1.5)) << odd;
        ASSERT_EQ(cube(odd), std::pow(odd, 3.0)) << odd;
    }
}

TEST(ExactPowers, OfTheEndsOfTheRangeAreTheLibrarys) {
    for (const double base : {0.0, 1e-320, 1e-200, 1e-20, 1e20, 1e100}) {
        EXPECT_EQ(powerThreeHalves(base), std::pow(base, 1.5)) << base;
        EXPECT_EQ(cube(base), std::pow(base, 3.0)) << base;
    }
}

TEST(ExactPowers, OfManyBasesAreThoseOfEachBase) {
    // Blocks of 64 and what is left of one; every third base is beyond the range.
    for (const std::size_t count : {0u, 1u, 63u, 64u, 65u, 200u}) {
        std::vector<double> bases, roots, halves(count + 1, -1.0), cubes(count + 1, -1.0);
        for (std::size_t i = 0; i < count; ++i) {
            bases.push_back(i % 3 == 0 ? 1e40 / (1.0 + double(i)) : 0.001 * double(i));
            roots.push_back(std::sqrt(bases.back()));
        }
        powersThreeHalves(bases.data(), roots.data(), halves.data(), count);
        cubesOf(bases.data(), cubes.data(), count);
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_EQ(halves[i], std::pow(bases[i], 1.5)) << i;
            EXPECT_EQ(cubes[i], std::pow(bases[i], 3.0)) << i;
        }
        EXPECT_EQ(halves[count], -1.0);
        EXPECT_EQ(cubes[count], -1.0);
    }
}

TEST(ExactPowers, WriteOverWhatStoodInTheirPlace) {
    // Where the rounding is in doubt, two numbers are compared: the worse of them must not win by standing
    // there.
    std::mt19937_64 generator(20261123);
    std::uniform_real_distribution<double> bases(1.0, 1000.0);
    int inDoubt = 0;
    for (int i = 0; i < 200000; ++i) {
        const double base = bases(generator), root = std::sqrt(base);
        const exact::Candidate candidate = exact::threeHalves(base, root);
        if (candidate.result == candidate.moved) continue;
        ++inDoubt;
        double result = candidate.moved;
        powersThreeHalves(&base, &root, &result, 1);
        EXPECT_EQ(result, std::pow(base, 1.5)) << base;
        result = exact::cube(base).moved;
        cubesOf(&base, &result, 1);
        EXPECT_EQ(result, std::pow(base, 3.0)) << base;
    }
    EXPECT_GT(inDoubt, 100);
}

TEST(ExactPowers, RaiseTheFaultsOfAPower) {
    const auto faultOf = [](double (*function)(double), double base) {
        try {
            function(base);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(faultOf(powerThreeHalves, -1.0), fault::kInvalidCall);
    EXPECT_EQ(faultOf(powerThreeHalves, 1e300), fault::kOverflow);
    EXPECT_EQ(faultOf(cube, 1e300), fault::kOverflow);
    EXPECT_EQ(faultOf(cube, std::numeric_limits<double>::quiet_NaN()), fault::kInvalidCall);
    EXPECT_EQ(cube(-2.0), -8.0);
}

}  // namespace
}  // namespace norlaplan
