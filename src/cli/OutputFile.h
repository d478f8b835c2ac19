#pragma once

#include <filesystem>

#include "cli/Session.h"
#include "documents/Document.h"

namespace norlaplan::cli {

/// Writes the document in the format of the file name's extension: .rtf, .pdf, or its picture as .png or
/// .bmp, and gives the command's result. The file is written whole or not at all. Errors: `CommandError`
/// (usage) for another extension; run-time errors of the writing.
CommandResult writeDocument(const Document& document, const std::filesystem::path& output);

}  // namespace norlaplan::cli
