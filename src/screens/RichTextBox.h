#pragma once

#include <QTextEdit>
#include <string>

#include "help/RichDocument.h"

namespace norlaplan {

/// A read-only view of a formatted document, on white paper whatever the desktop's theme. In a wide window
/// the text stays a page in the middle, no wider than the eye follows.
class RichTextBox : public QTextEdit {
  public:
    RichTextBox();

    /// Shows the document whose RTF text is given; one sentence in its place when the text is no RTF.
    void showRtf(const std::string& rtf);
    void showDocument(const RichDocument& document);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void placePage();
};

}  // namespace norlaplan
