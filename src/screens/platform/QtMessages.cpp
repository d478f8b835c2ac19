#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QSpacerItem>

#include "screens/platform/QtPorts.h"

namespace norlaplan {
namespace {

constexpr int kTitleBarButtons = 140;

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

/// Whether the answer that changes nothing is the one that Enter gives.
bool isDangerous(const Message& message) {
    return message.icon == Icon::Warning || message.icon == Icon::Critical;
}

/// Here the title often is the message: it stands in bold above the prompt, too, and the box is wide enough
/// for it in its title bar.
void layOut(QMessageBox& box, const Message& message) {
    const QString title = QString::fromStdString(message.title);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(title);
    box.setInformativeText(QString::fromStdString(message.prompt));
    QFont bold = box.font();
    bold.setBold(true);
    const QSize room = box.screen()->availableSize();
    const int titleBar = QFontMetrics(bold).horizontalAdvance(title) + kTitleBarButtons;
    auto* const grid = qobject_cast<QGridLayout*>(box.layout());
    grid->addItem(new QSpacerItem(std::min(titleBar, room.width() * 3 / 4), 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
    for (QLabel* const label : box.findChildren<QLabel*>()) {
        const bool heading = label->objectName() == QLatin1String("qt_msgbox_label");
        if (heading) label->setFont(bold);
        if (heading || label->objectName() == QLatin1String("qt_msgbox_informativelabel")) {
            label->setTextFormat(Qt::PlainText);
            label->setWordWrap(true);
            label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        }
    }
}

QMessageBox::StandardButton showBox(const Message& message, QMessageBox::StandardButtons buttons) {
    // A message of a long calculation comes up under the busy pointer; the box itself isn't busy.
    const bool busy = QApplication::overrideCursor() != nullptr;
    if (busy) QApplication::setOverrideCursor(Qt::ArrowCursor);
    QMessageBox box(iconOf(message.icon), {}, {}, buttons, QApplication::activeWindow());
    layOut(box, message);
    const bool no = buttons.testFlag(QMessageBox::No);
    if (no && isDangerous(message)) box.setDefaultButton(QMessageBox::No);
    if (no)
        box.setEscapeButton(buttons.testFlag(QMessageBox::Cancel) ? QMessageBox::Cancel : QMessageBox::No);
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
