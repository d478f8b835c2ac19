#pragma once

#include <string>

#include "help/RtfReader.h"

namespace norlaplan::testing {

/// The text of all paragraphs outside of tables, each ended by "|".
inline std::string textOf(const RichDocument& document) {
    std::string text;
    for (const Block& block : document.blocks) {
        const auto* const paragraph = std::get_if<Paragraph>(&block);
        if (paragraph == nullptr) continue;
        for (const Run& run : paragraph->runs) {
            if (const auto* const words = std::get_if<TextRun>(&run)) text += words->text;
        }
        text += "|";
    }
    return text;
}

inline std::string textOf(const std::string& rtf) {
    const auto document = readRtf(rtf);
    return document ? textOf(*document) : "(none)";
}

inline std::string textOf(const TableCell& cell) {
    return std::get<TextRun>(cell.paragraphs.at(0).runs.at(0)).text;
}

inline const ParagraphLook& firstParagraph(const RichDocument& document) {
    return std::get<Paragraph>(document.blocks.at(0)).look;
}

inline const TextRun& firstRun(const RichDocument& document) {
    return std::get<TextRun>(std::get<Paragraph>(document.blocks.at(0)).runs.at(0));
}

}  // namespace norlaplan::testing
