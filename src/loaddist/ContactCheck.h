#pragma once

#include <array>
#include <string>

#include "state/ProgramState.h"

namespace norlaplan {

/// The heaviest loaded ball of a row with what the contact check says about it.
struct ContactRow {
    Int16 ball;
    double load = 0.0;    ///< pounds; a row without load can't be chosen
    Single stress;        ///< maximum Hertz stress at the inner race, psi
    Single major, minor;  ///< semi-axes of the contact at the inner race, inches
    std::string angle;    ///< as shown: "30.12°"

    /// Load, stress, major axis, minor axis, contact angle.
    std::array<std::string, 5> lines() const;
};

/// What the contact check shows after a solve: both rows, the chosen one, and its ellipse.
struct ContactCheck {
    std::array<ContactRow, 2> rows;
    int row = 1;                        ///< the chosen one, 1 or 2
    Single EllipseAngle;                ///< contact angle of the chosen row's ball, radians
    Single EllipseMajor, EllipseMinor;  ///< its semi-axes, inches

    const ContactRow& chosen() const { return rows[row == 2 ? 1 : 0]; }
    bool canChoose(int wanted) const { return rows[wanted == 2 ? 1 : 0].load != 0.0; }
    /// The caption of a row's group.
    std::string groupCaption(int wanted) const;
};

/// The check of the last solve with the wanted row, or with the other one where that carries no load. Of
/// equal loads the first ball counts; in a row without load ball 1 stands for it. Error 9 before any solve.
ContactCheck checkContact(const ProgramState& state, int wantedRow = 1);

}  // namespace norlaplan
