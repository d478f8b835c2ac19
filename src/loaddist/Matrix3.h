#pragma once

#include <array>

namespace norlaplan {

/// A 3 by 3 matrix and a 3-vector with the indices 1 to 3 that the formulas count with; index 0 stays empty.
using Matrix3 = std::array<std::array<double, 4>, 4>;
using Vector3 = std::array<double, 4>;

/// Inverse by LU factors, without pivoting. Error 11 for a pivot of zero.
Matrix3 InvertMatrix3(const Matrix3& a);
Matrix3 MatrixProduct3(const Matrix3& a, const Matrix3& b);
Vector3 MatrixVector3(const Matrix3& a, const Vector3& v);

}  // namespace norlaplan
