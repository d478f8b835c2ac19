#pragma once

#include <string>

namespace norlaplan {

/// The axes of a deflection graph, in the display units of its curve.
struct GraphSettings {
    double xMax = 0.0, yMax = 0.0;
    double xMajor = 0.0, yMajor = 0.0;  ///< spacing of the grid
    std::string xFormat = "#,###";      ///< pictures of the labels
    std::string yFormat = "0.00E-00";
    std::string settingsAdjusted = "N";  ///< "Y" once the user has drawn the graph with axes of his own
};

}  // namespace norlaplan
