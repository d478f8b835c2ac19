#pragma once

class QTextCursor;

namespace norlaplan {

struct RichDocument;

/// Writes a document at the cursor: paragraphs, pictures, tables. A picture that can't be decoded, or that is
/// too large to be one of a text, is left out. One sentence at the end tells of a document that is cut short.
void writeRichText(const RichDocument& document, QTextCursor& cursor);

}  // namespace norlaplan
