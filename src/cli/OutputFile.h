#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "cli/Session.h"
#include "state/Canvas.h"

namespace norlaplan::cli {

/// A document as a command can write it: its RTF text, and its drawing for the picture formats.
struct Document {
    std::function<std::string()> rtf;
    std::function<void(Canvas&)> draw;
};

/// Writes the document in the format of the file name's extension: .rtf, .pdf, .png or .bmp. The file is
/// written whole or not at all. Errors: `CommandError` (usage) for another extension; run-time errors of the
/// writing.
void writeDocument(const Document& document, const std::filesystem::path& output);

/// The result of a command that has written a file.
CommandResult fileResult(const std::filesystem::path& output);

}  // namespace norlaplan::cli
