#pragma once

class QTextCursor;

namespace norlaplan {

struct RichDocument;

/// Writes a document at the cursor: paragraphs, pictures, tables. A picture that can't be decoded is left
/// out; where one is too large to be one of a text, alone or with those before it, a sentence stands in its
/// place. One sentence at the end tells of a document that is cut short. A word that no line could hold gets
/// places to break at.
void writeRichText(const RichDocument& document, QTextCursor& cursor);

}  // namespace norlaplan
