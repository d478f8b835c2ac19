#pragma once

#include <QImage>

/// The monitor of the training button, on nothing: `lit` while the show runs, else dark.
QImage monitorIcon(int pixels, bool lit);
