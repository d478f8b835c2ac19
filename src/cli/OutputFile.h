#pragma once

#include <filesystem>

#include "cli/Session.h"
#include "documents/Document.h"

namespace norlaplan::cli {

/// The kinds of file that a document has.
enum class OutputKinds { RtfAndPictures, Pictures };

/// Their extensions as a list: ".pdf, .png or .bmp".
const char* extensionsOf(OutputKinds kinds);

/// Errors: `CommandError` (usage) for a file of another kind.
void requireOutputKind(const std::filesystem::path& output, OutputKinds kinds);

/// Writes the document in the format of the file name's extension: .rtf, .pdf, or its picture as .png or
/// .bmp, and gives the command's result. The file is written whole or not at all. The extension is one
/// that the document has. Errors: run-time errors of the writing.
CommandResult writeDocument(const Document& document, const std::filesystem::path& output);

}  // namespace norlaplan::cli
