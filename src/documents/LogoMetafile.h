#pragma once

#include <string>

namespace norlaplan {

/// The maker's mark (a ring of balls and the name) as the hexadecimal bytes of a plain Windows metafile, in
/// lines of 64 bytes.
std::string logoMetafileHex();

}  // namespace norlaplan
