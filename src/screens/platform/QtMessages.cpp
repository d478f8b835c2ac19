#include <QApplication>
#include <QMessageBox>

#include "screens/platform/QtPorts.h"

namespace norlaplan {
namespace {

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Warning:
            return QMessageBox::Warning;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Critical:
            return QMessageBox::Critical;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton showBox(const Message& message, QMessageBox::StandardButtons buttons) {
    // A message of a long calculation comes up under the busy pointer; the box itself isn't busy.
    const bool busy = QApplication::overrideCursor() != nullptr;
    if (busy) QApplication::setOverrideCursor(Qt::ArrowCursor);
    QMessageBox box(iconOf(message.icon), QString::fromStdString(message.title),
                    QString::fromStdString(message.prompt), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
    if (busy) QApplication::restoreOverrideCursor();
    return box.standardButton(box.clickedButton());
}

}  // namespace

void QtMessages::show(const Message& message) {
    showBox(message, QMessageBox::Ok);
}

Answer QtMessages::ask(const Message& question, Buttons buttons) {
    QMessageBox::StandardButtons shown = QMessageBox::Ok;
    if (buttons != Buttons::Ok) shown = QMessageBox::Yes | QMessageBox::No;
    if (buttons == Buttons::YesNoCancel) shown |= QMessageBox::Cancel;
    switch (showBox(question, shown)) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            // Closing the box or Escape: the answer that changes nothing.
            return buttons == Buttons::YesNoCancel ? Answer::Cancel : Answer::No;
    }
}

}  // namespace norlaplan
