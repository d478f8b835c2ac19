#pragma once

#include <QByteArray>
#include <QIcon>
#include <QImage>

namespace norlaplan {

/// The sizes in pixels that desktops ask for.
constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};

/// The program's icon: a thin-section bearing seen from the front, drawn from its geometry in these sizes.
QIcon bearingIcon();

/// One size of it, on nothing.
QImage bearingIconImage(int pixels);

/// The same drawing as a scalable picture (SVG).
QByteArray bearingIconSvg();

}  // namespace norlaplan
