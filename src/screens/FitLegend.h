#pragma once

#include <QGroupBox>

namespace norlaplan {

/// The frame "Legend" of the thermal fits: the lines of the drawing by colour and name, each on the drawing's
/// own ground, and the direction in which the temperature rises. The names are "Label13" to "Label19", the
/// direction is "Label20".
QGroupBox* fitLegend(const char* name);

}  // namespace norlaplan
