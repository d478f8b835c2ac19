#pragma once

#include <optional>
#include <string>
#include <vector>

#include "numbers/Single.h"

namespace norlaplan {

constexpr const char* kUnbalancedSentence = "The ball loads do not balance the applied loads.";
constexpr const char* kShorterRowSentence = "Row 2 has the shorter life";

/// What is to be known before a life is trusted; usually nothing.
struct LifeChecks {
    bool unbalanced = false;               ///< the ball loads do not balance the applied loads
    std::optional<Single> shorterRowLife;  ///< revolutions of row 2, where they are fewer than those of row 1

    bool any() const { return unbalanced || shorterRowLife.has_value(); }
    bool operator==(const LifeChecks&) const = default;
};

/// One sentence for each, the balance first.
std::vector<std::string> checkSentences(const LifeChecks& checks);

/// A word or three for each, in the same order: "unbalanced", "row 2 shorter".
std::vector<std::string> checkNames(const LifeChecks& checks);

}  // namespace norlaplan
