#pragma once

namespace norlaplan {

/// Factor on the L10 life for a ratio `lambda` of lubricant film to surface finish, from the bearing maker's
/// table with straight lines between its points: 0.16 below the table, 3 from a ratio of 10 on.
double LifeFactor(double lambda);

}  // namespace norlaplan
