#include "screens/MemoField.h"

#include <QKeyEvent>

#include "screens/NumberField.h"

namespace norlaplan {

MemoField::MemoField(const char* name, const QString& tip, int lines) {
    setObjectName(QString::fromUtf8(name));
    setToolTip(tip);
    setAccessibleDescription(tip);
    setTabChangesFocus(true);
    const int around = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    setMinimumHeight(fontMetrics().lineSpacing() * lines + around);
}

void MemoField::keyPressEvent(QKeyEvent* event) {
    if (isLetterWithAlt(*event))
        event->ignore();
    else
        QPlainTextEdit::keyPressEvent(event);
}

}  // namespace norlaplan
