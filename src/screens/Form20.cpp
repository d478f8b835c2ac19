#include "screens/Form20.h"

#include <QVBoxLayout>

#include "help/HelpTopics.h"
#include "screens/RichTextBox.h"
#include "screens/Screens.h"
#include "state/FileFault.h"

namespace norlaplan {
namespace {

constexpr QSize kPageSize(840, 700);

}  // namespace

Form20::Form20(Screens& screens) : Form(screens, forms::kHelpTopic, "Norlaplan Help") {
    text_ = new RichTextBox;
    text_->setObjectName(QStringLiteral("RichTextBox1"));
    text_->setAccessibleName(QStringLiteral("Help topic"));
    text_->setFrameShape(QFrame::NoFrame);
    setWidth(Width::Own);
    page().setContentsMargins(0, 0, 0, 0);
    page().addWidget(text_);
}

QSize Form20::sizeFor(const QSize& room) const {
    return kPageSize.boundedTo(room);
}

void Form20::load() {
    text_->clear();
    text_->showRtf(services().folder.read(helpTopicFile(state().helpTopic)));
    text_->setFocus();
}

void Form20::escaped() {
    screens().showInstead(*this, forms::kHelpIndex);
}

void showHelpTopic(Screens& screens, int topic) {
    screens.services().state.helpTopic = topic;
    screens.show(forms::kHelpTopic);
}

}  // namespace norlaplan
