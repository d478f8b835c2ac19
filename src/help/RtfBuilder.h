#pragma once

#include <string>

#include "help/RichDocument.h"

namespace norlaplan {

/// Puts a document together from texts, breaks and cells in the order in which they are read.
class RtfBuilder {
  public:
    CharacterLook look;
    ParagraphLook paragraphLook;
    bool inTable = false;
    std::vector<int> cellEdges;  ///< of the row in hand

    void addText(const std::string& text);
    void addPicture(PictureRun picture);
    void endParagraph();
    void endCell();
    void endRow();
    void pageBreak() { breakBefore_ = true; }

    /// The document, with what was not ended yet.
    RichDocument take();

  private:
    Paragraph takeParagraph();

    RichDocument document_;
    std::vector<Run> runs_;
    std::vector<Paragraph> cell_;
    TableRow row_;
    bool breakBefore_ = false;
};

}  // namespace norlaplan
