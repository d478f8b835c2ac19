#pragma once

#include <cstddef>
#include <string>

#include "help/RichDocument.h"
#include "help/RtfLook.h"
#include "help/RtfRow.h"

namespace norlaplan {

/// Puts a document together from texts, breaks and cells in the order in which they are read.
class RtfBuilder {
  public:
    void addText(const std::string& text, const CharacterLook& look);
    void addPicture(PictureRun picture);
    void endParagraph(const RtfLook& look);
    void endCell(const RtfLook& look);
    void endRow(const RtfRow& definition);
    void pageBreak() { breakBefore_ = true; }

    /// True when the document is as long as a viewer can show; the rest need not be read.
    bool isFull() const;

    /// The document, with what was not ended yet: the paragraph with its look, the row with its definition.
    RichDocument take(const RtfLook& look, const RtfRow& definition);

  private:
    Paragraph takeParagraph(const RtfLook& look);

    RichDocument document_;
    std::vector<Run> runs_;
    std::vector<Paragraph> cell_;
    TableRow row_;
    bool breakBefore_ = false;
    std::size_t paragraphCount_ = 0, runCount_ = 0, rowCount_ = 0, textBytes_ = 0, pictureBytes_ = 0,
                tabCount_ = 0, cellCount_ = 0;
};

}  // namespace norlaplan
