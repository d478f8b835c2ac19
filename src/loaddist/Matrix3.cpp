#include "loaddist/Matrix3.h"

#include <cstddef>

#include "numbers/Arithmetic.h"

namespace norlaplan {
namespace {

Matrix3 unitMatrix() {
    Matrix3 unit{};
    for (std::size_t i = 1; i <= 3; ++i)
        unit[i][i] = 1.0;
    return unit;
}

}  // namespace

Matrix3 InvertMatrix3(const Matrix3& a) {
    Matrix3 U = a;
    const Matrix3 I = unitMatrix();
    Matrix3 L = I;
    for (std::size_t k = 1; k <= 2; ++k) {
        for (std::size_t i = k + 1; i <= 3; ++i) {
            const double l = divide(U[i][k], U[k][k]);
            L[i][k] = l;
            for (std::size_t j = k; j <= 3; ++j)
                U[i][j] = U[i][j] - l * U[k][j];
        }
    }
    Matrix3 Y{};
    Matrix3 X{};
    for (std::size_t j = 1; j <= 3; ++j) {
        for (std::size_t i = 1; i <= 3; ++i) {
            double sum = 0.0;
            for (std::size_t k = 1; k <= 3; ++k)
                sum = sum + Y[k][j] * L[i][k];
            Y[i][j] = divide(I[i][j] - sum, L[i][i]);
        }
    }
    for (std::size_t j = 1; j <= 3; ++j) {
        for (std::size_t i = 3; i >= 1; --i) {
            double sum = 0.0;
            for (std::size_t k = 1; k <= 3; ++k)
                sum = sum + U[i][k] * X[k][j];
            X[i][j] = divide(Y[i][j] - sum, U[i][i]);
        }
    }
    return X;
}

Matrix3 MatrixProduct3(const Matrix3& a, const Matrix3& b) {
    Matrix3 c{};
    for (std::size_t i = 1; i <= 3; ++i) {
        for (std::size_t j = 1; j <= 3; ++j) {
            for (std::size_t k = 1; k <= 3; ++k)
                c[i][j] = c[i][j] + a[i][k] * b[k][j];
        }
    }
    return c;
}

Vector3 MatrixVector3(const Matrix3& a, const Vector3& v) {
    Vector3 result{};
    for (std::size_t i = 1; i <= 3; ++i) {
        for (std::size_t k = 1; k <= 3; ++k)
            result[i] = result[i] + a[i][k] * v[k];
    }
    return result;
}

}  // namespace norlaplan
