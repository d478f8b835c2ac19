#pragma once

#include "help/RichDocument.h"
#include "help/RtfTables.h"
#include "help/RtfTokens.h"

namespace norlaplan {

/// What a group's text looks like; the group's end brings back what was before it.
struct RtfLook {
    CharacterLook character;
    ParagraphLook paragraph;
    TabAlignment nextTab = TabAlignment::Left;  ///< of the tab stop whose position comes next
    bool symbols = false;                       ///< the text's bytes are those of a font of signs
    bool inTable = false;
};

/// Takes a word that changes the look of characters ("b", "fs", "cf" ...). False for any other word.
bool applyCharacterWord(const RtfToken& token, const RtfTables& tables, RtfLook& look);

/// Takes a word that changes the look of a paragraph ("qc", "li", "tx" ...). False for any other word.
bool applyParagraphWord(const RtfToken& token, const RtfTables& tables, RtfLook& look);

/// The look before any word: the default font.
void makePlain(const RtfTables& tables, RtfLook& look);

}  // namespace norlaplan
