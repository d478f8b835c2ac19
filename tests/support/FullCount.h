#pragma once

#include <cstdlib>

namespace norlaplan::testing {

/// How many random cases a comparison with a plain transcription takes: a few in every run of the tests, all
/// of them with NORLAPLAN_FULL_COUNT set.
inline int fullCount(int few, int all) {
    return std::getenv("NORLAPLAN_FULL_COUNT") == nullptr ? few : all;
}

}  // namespace norlaplan::testing
