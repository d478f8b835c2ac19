#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "documents/Document.h"
#include "screens/Services.h"

namespace norlaplan {

/// Prints a document on its paper. Nothing happens when the user cancels.
void printDocument(const Services& services, const Document& document);

/// Writes the RTF text of a document to a file; `saveDocument` takes another way where one is given.
using RtfSaver = std::function<void(const std::filesystem::path&)>;

/// Asks where a document goes and in which form, its own kinds of file and PDF and PNG beside them, and saves
/// it there. The path becomes the last saved file and is given. Nothing when the user cancels. Errors as
/// those of the writing.
std::optional<std::filesystem::path> saveDocument(const Services& services, const Document& document,
                                                  const RtfSaver& saveRtf = {});

}  // namespace norlaplan
