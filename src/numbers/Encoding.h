#pragma once

#include <string>
#include <string_view>

namespace norlaplan {

/// A text as UTF-8. Bytes that are none are letters of Windows-1252, the encoding of old tables and settings,
/// of which Latin-1 is a part.
std::string utf8Text(std::string_view bytes);

/// The same for the whole of a file: without the mark that some programs write at its head, however often it
/// stands there.
std::string fileText(std::string_view bytes);

}  // namespace norlaplan
