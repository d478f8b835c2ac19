#include "screens/RichTextBox.h"

#include <QTextCursor>
#include <QTextFrame>
#include <algorithm>

#include "help/RtfReader.h"
#include "screens/RichTextWriter.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr double kBeside = 24.0;  ///< free at the sides of the text at least
constexpr double kPageWidth = 720.0;

}  // namespace

RichTextBox::RichTextBox() {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setCursorWidth(0);
    setPalette(theme::paper());
    document()->setDocumentMargin(kBeside);
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
    placePage();
    moveCursor(QTextCursor::Start);
}

void RichTextBox::resizeEvent(QResizeEvent* event) {
    QTextEdit::resizeEvent(event);
    placePage();
}

void RichTextBox::placePage() {
    QTextFrame& page = *document()->rootFrame();
    const double beside = std::max(kBeside, (viewport()->width() - kPageWidth) / 2.0);
    QTextFrameFormat format = page.frameFormat();
    if (format.leftMargin() == beside && format.rightMargin() == beside) return;
    format.setLeftMargin(beside);
    format.setRightMargin(beside);
    page.setFrameFormat(format);
}

}  // namespace norlaplan
