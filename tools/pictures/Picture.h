#pragma once

#include <QByteArray>
#include <QPainter>
#include <QSize>
#include <functional>

/// A picture by its file name, with its logical size.
struct PictureFile {
    QByteArray name;
    QSize size;
    std::function<void(QPainter&)> draw;
};
