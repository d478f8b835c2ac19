#include "screens/EntryLabel.h"

#include <QLineEdit>
#include <QPainter>
#include <QShortcut>
#include <QStyle>

#include "screens/Accelerators.h"

namespace norlaplan {

void EntryLabel::setLetter(QChar letter) {
    if (letter == letter_) return;
    letter_ = letter;
    if (shortcut_ == nullptr) {
        shortcut_ = new QShortcut(this);
        connect(shortcut_, &QShortcut::activated, this, [this] { goToField(); });
    }
    shortcut_->setKey(letter.isNull() ? QKeySequence() : QKeySequence(Qt::ALT | Qt::Key(letter.unicode())));
    update();
}

void EntryLabel::goToField() {
    if (buddy() == nullptr) return;
    buddy()->setFocus(Qt::ShortcutFocusReason);
    if (auto* const field = qobject_cast<QLineEdit*>(buddy())) field->selectAll();
}

void EntryLabel::paintEvent(QPaintEvent* event) {
    if (letter_.isNull() || textFormat() == Qt::RichText) return QLabel::paintEvent(event);
    QPainter painter(this);
    const int wrap = wordWrap() ? Qt::TextWordWrap : 0;
    style()->drawItemText(&painter, contentsRect(), int(alignment()) | Qt::TextShowMnemonic | wrap, palette(),
                          isEnabled(), accelerators::marked(text(), letter_), foregroundRole());
}

}  // namespace norlaplan
