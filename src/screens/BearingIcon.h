#pragma once

#include <QIcon>

namespace norlaplan {

/// The program's icon: a thin-section bearing seen from the front, drawn from its geometry in the sizes that
/// desktops ask for.
QIcon bearingIcon();

}  // namespace norlaplan
