#include "screens/NumberField.h"

#include <QKeyEvent>
#include <utility>

namespace norlaplan {

bool isLetterWithAlt(const QKeyEvent& event) {
    // Alt Gr counts as Ctrl and Alt and does type.
    const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return held == Qt::AltModifier && event.text().size() == 1 && event.text()[0].isPrint();
}

void PlainEdit::keyPressEvent(QKeyEvent* event) {
    if (isLetterWithAlt(*event))
        event->ignore();
    else
        QLineEdit::keyPressEvent(event);
}

NumberField::NumberField(const char* name, const QString& tip, std::string& text) : text_(text) {
    setObjectName(QString::fromUtf8(name));
    setToolTip(tip);
    setAccessibleDescription(tip);
    setAlignment(Qt::AlignRight);
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& shown) { text_ = shown.toStdString(); });
    refresh();
}

void NumberField::refresh() {
    setText(QString::fromStdString(text_));
}

void NumberField::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool letter = typed.size() == 1 && typed[0].isPrint();
    if (letter && !command && !QStringLiteral("0123456789+-.,eE").contains(typed)) return;
    PlainEdit::keyPressEvent(event);
    // Enter has moved on to the next control; it must not press that one as well.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) event->accept();
}

void askAgain(QLineEdit& field) {
    field.setFocus(Qt::OtherFocusReason);
    field.selectAll();
}

void enterMovesTo(QLineEdit& field, std::function<QWidget*()> next) {
    QObject::connect(&field, &QLineEdit::returnPressed, &field, [next = std::move(next)] {
        QWidget* const widget = next();
        widget->setFocus(Qt::TabFocusReason);
        if (auto* const edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
    });
}

}  // namespace norlaplan
