#include "screens/Form2.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/FormBuilder.h"
#include "screens/RichTextBox.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
Form2::Form2(Screens& screens) : Form(screens, forms::kTextViewer, "") {
    text_ = new RichTextBox;
    text_->setObjectName(QStringLiteral("RichTextBox1"));
    text_->setAccessibleName(QStringLiteral("Text"));
    return_ = button("Command1", "Return", "Close File", [this] { this->screens().hide(*this); });
    text_->installEventFilter(this);
    page().addWidget(text_, 1);
    setFooter({.main = return_});
}

void Form2::load(const std::string& file, const QString& title, const QString& closeCaption) {
    text_->showRtf(services().folder.read(file));
    setWindowTitle(title);
    return_->setText(closeCaption);
    return_->setAccessibleName(closeCaption);
}

void Form2::opened() {
    text_->setFocus();
}

bool Form2::eventFilter(QObject* watched, QEvent* event) {
    if (watched != text_ || event->type() != QEvent::KeyPress) return Form::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    run("Return", [this] { screens().hide(*this); });
    return true;
}

void showText(Screens& screens, const std::string& file, const QString& title, const QString& closeCaption) {
    screens.formAs<Form2>(forms::kTextViewer).load(file, title, closeCaption);
    screens.show(forms::kTextViewer);
}

}  // namespace norlaplan
