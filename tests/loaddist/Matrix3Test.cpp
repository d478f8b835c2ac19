#include <cmath>

#include <gtest/gtest.h>

#include "loaddist/Arccos.h"
#include "loaddist/Matrix3.h"
#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

constexpr double kTrueHalfPi = 1.5707963267948966;

TEST(Matrix3, InverseTimesTheMatrixIsTheUnitMatrix) {
    const Matrix3 a = {{{}, {0, 4, -2, 1}, {0, 3, 6, -4}, {0, 2, 1, 8}}};
    const Matrix3 product = MatrixProduct3(a, InvertMatrix3(a));
    for (std::size_t i = 1; i <= 3; ++i) {
        for (std::size_t j = 1; j <= 3; ++j)
            EXPECT_NEAR(product[i][j], i == j ? 1.0 : 0.0, 1e-15);
    }
    EXPECT_THROW(InvertMatrix3(Matrix3{}), RuntimeError);
}

TEST(ArccosRoutine, IsTheAngleOfACosine) {
    EXPECT_NEAR(Arccos(0.5), kTrueHalfPi * 2.0 / 3.0, 1e-15);
    EXPECT_EQ(Arccos(1.0), 0.0);
    EXPECT_THROW(Arccos(0.0), RuntimeError);
    EXPECT_THROW(Arccos(1.5), RuntimeError);
}

}  // namespace
}  // namespace norlaplan
