#include "screens/Form.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>

#include "screens/Screens.h"

namespace norlaplan {

Form::Form(Screens& screens, FormName name, const QString& caption) : screens_(screens) {
    setObjectName(QString::fromUtf8(name.text));
    setWindowTitle(caption);
    setAutoFillBackground(true);
}

void Form::fitToScreen(const QRect& room) {
    if (fitted_) return;
    fitted_ = true;
    resize(sizeHint().boundedTo(room.size()));
}

void Form::closed() {
    screens_.hide(*this);
}

const Services& Form::services() const {
    return screens_.services();
}

ProgramState& Form::state() const {
    return screens_.services().state;
}

void Form::run(const char* name, const std::function<void()>& action) {
    screens_.runAction(name, action);
}

void Form::closeEvent(QCloseEvent* event) {
    // The navigator decides what is shown next, so the window itself never goes by its own will.
    event->ignore();
    run("Close", [this] { closed(); });
}

void Form::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (auto* const button = qobject_cast<QAbstractButton*>(focusWidget()); enter && button != nullptr)
        button->click();
    else
        QWidget::keyPressEvent(event);
}

}  // namespace norlaplan
