#include "screens/RichTextBox.h"

#include <QTextCursor>

#include "help/RtfReader.h"
#include "screens/RichTextWriter.h"
#include "screens/Theme.h"

namespace norlaplan {

RichTextBox::RichTextBox() {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setCursorWidth(0);
    setPalette(theme::paper());
    document()->setDocumentMargin(24.0);
}

void RichTextBox::showRtf(const std::string& rtf) {
    if (const auto read = readRtf(rtf)) {
        showDocument(*read);
    } else {
        setPlainText("This document can't be shown: it is not a rich text file.");
    }
}

void RichTextBox::showDocument(const RichDocument& read) {
    clear();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    writeRichText(read, cursor);
    cursor.endEditBlock();
    moveCursor(QTextCursor::Start);
}

}  // namespace norlaplan
