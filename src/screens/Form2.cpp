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
    return_ = build::button("Command1", "Return", "Close File");
    on(return_, &QPushButton::clicked, "Return", [this] { this->screens().hide(*this); });
    text_->installEventFilter(this);
    return_->installEventFilter(this);

    auto* const page = theme::spaced(new QVBoxLayout(this));
    page->addWidget(text_, 1);
    page->addWidget(return_, 0, Qt::AlignRight);
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
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool enterInText = watched == text_ && (key == Qt::Key_Return || key == Qt::Key_Enter);
    if (key != Qt::Key_Escape && !enterInText) return false;
    run("Return", [this] { screens().hide(*this); });
    return true;
}

void showText(Screens& screens, const std::string& file, const QString& title, const QString& closeCaption) {
    screens.formAs<Form2>(forms::kTextViewer).load(file, title, closeCaption);
    screens.show(forms::kTextViewer);
}

}  // namespace norlaplan
