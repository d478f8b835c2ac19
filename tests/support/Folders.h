#pragma once

#include <filesystem>

namespace norlaplan::testing {

/// The program folder that the build has laid out: sample catalogue, overlays, pictures, help.
std::filesystem::path programFolder();
/// The root of the sources.
std::filesystem::path sourceFolder();

}  // namespace norlaplan::testing
