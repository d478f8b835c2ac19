#include <cstddef>
#include <cstdint>
#include <string>

#include "help/RtfReader.h"

/// Reads any bytes as RTF, as they are and behind the mark that makes them pass for it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    norlaplan::readRtf(bytes);
    norlaplan::readRtf("{\\rtf1 " + bytes);
    return 0;
}
