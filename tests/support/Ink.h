#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <algorithm>

/// What is drawn on a picture: tests look at it as an eye does.
namespace norlaplan::testing {

/// Whether a pixel is far enough from white to be seen.
inline bool isInk(const QImage& picture, int x, int y) {
    const QColor colour = picture.pixelColor(x, y);
    return std::min({colour.red(), colour.green(), colour.blue()}) < 160;
}

/// The smallest rectangle around all ink inside `part`; null when there is none.
inline QRect inkBox(const QImage& picture, const QRect& part) {
    QRect box;
    const QRect inside = part & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (isInk(picture, x, y)) box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

inline QRect inkBox(const QImage& picture) {
    return inkBox(picture, picture.rect());
}

/// How much of `part` is ink: its pixels' darkness summed, a black pixel being 1.
inline double inkWeight(const QImage& picture, const QRect& part) {
    double weight = 0.0;
    const QRect inside = part & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            weight += 1.0 - picture.pixelColor(x, y).lightnessF();
    }
    return weight;
}

inline double inkWeight(const QImage& picture) {
    return inkWeight(picture, picture.rect());
}

}  // namespace norlaplan::testing
