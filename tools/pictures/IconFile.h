#pragma once

#include <QImage>
#include <QString>
#include <vector>

/// Writes pictures as one icon file (ICO), each packed as PNG. False when the file can't be written.
bool saveIconFile(const QString& path, const std::vector<QImage>& pictures);
