#include "screens/Form21.h"

#include <QVBoxLayout>

#include "screens/RichTextBox.h"
#include "screens/Screens.h"
#include "state/FileFault.h"

namespace norlaplan {
namespace {

constexpr int kHeight = 680;

}  // namespace

Form21::Form21(Screens& screens) : Form(screens, forms::kCatalogPages, "Varden Norlaring Catalog") {
    text_ = new RichTextBox;
    text_->setObjectName(QStringLiteral("RichTextBox1"));
    text_->setAccessibleName(QStringLiteral("Catalog introduction"));
    page().addWidget(text_, 1);
    setFooter({.mainMenu = button("Command1", "&Main Menu", "Return to main menu",
                                  [this] { this->screens().show(forms::kMainMenu); })});
}

QSize Form21::sizeFor(const QSize& room) const {
    return QSize(sizeHint().width(), kHeight).boundedTo(room);
}

void Form21::load() {
    text_->clear();
    text_->showRtf(services().folder.read("\\help\\INTRO.RTF"));
    text_->setFocus();
}

}  // namespace norlaplan
