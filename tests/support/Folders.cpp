#include "support/Folders.h"

// The two paths stand here alone, so that a compiler cache serves the tests of every checkout.

namespace norlaplan::testing {

std::filesystem::path programFolder() {
    return NORLAPLAN_PROGRAM_FOLDER;
}

std::filesystem::path sourceFolder() {
    return NORLAPLAN_SOURCE_FOLDER;
}

}  // namespace norlaplan::testing
