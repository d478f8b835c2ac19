#pragma once

#include <functional>

#include "state/Canvas.h"

namespace norlaplan {

/// A page's size in inches as it lies before the reader: landscape is wider than high.
struct Paper {
    double width = 8.5;
    double height = 11.0;

    constexpr bool isLandscape() const { return width > height; }
    constexpr PageBox page() const { return {0.0, height, width, 0.0}; }
    bool operator==(const Paper&) const = default;
};

namespace papers {
constexpr Paper kLetter{8.5, 11.0};
constexpr Paper kLetterLandscape{11.0, 8.5};
constexpr Paper kGraphPicture{8.5, 5.0};  ///< of the graphs on the screens
}  // namespace papers

/// A drawing with the page that it is made for. `draw` may turn to further pages of the same size.
struct Drawing {
    Paper paper;
    std::function<void(Canvas&)> draw;
};

}  // namespace norlaplan
