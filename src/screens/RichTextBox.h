#pragma once

#include <QTextEdit>
#include <string>

namespace norlaplan {

/// A read-only view of an RTF document.
class RichTextBox : public QTextEdit {
  public:
    RichTextBox() { setReadOnly(true); }

    /// Shows the document whose RTF text is given.
    void showRtf(const std::string& rtf) { setPlainText(QString::fromStdString(rtf)); }
};

}  // namespace norlaplan
