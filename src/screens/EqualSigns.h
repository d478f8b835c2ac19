#pragma once

#include <span>

class QLabel;

namespace norlaplan {

/// Moves labels that stand under each other to the right until the first '=' of each is at the same place.
/// Several blanks are drawn as one, so that the values stand under each other as well. The texts, which must
/// be plain ones without mark-up, stay as they are; a label without the sign stays where it is.
void alignEqualSigns(std::span<QLabel* const> labels);

}  // namespace norlaplan
