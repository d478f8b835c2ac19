#include "screens/Form16.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QToolButton>

#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/StyleTable.h"

namespace norlaplan {
namespace {

constexpr QSize kPictureSize(240, 160);

QToolButton* pictureButton(std::size_t row, const ProgramFolder& folder) {
    const StyleRow& style = kStyles[row];
    auto* const button = new QToolButton;
    button->setObjectName(QStringLiteral("Image%1").arg(row + 1));
    button->setText(QString::fromUtf8(style.label));
    button->setToolTip(QString::fromUtf8(style.description));
    button->setAccessibleName(QString::fromUtf8(style.label));
    button->setAccessibleDescription(QString::fromUtf8(style.description));
    button->setIcon(QPixmap(QString::fromStdString(folder.find(stylePicture(style, 'T')).string())));
    button->setIconSize(kPictureSize);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setPalette(theme::paper());
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return button;
}

}  // namespace

Form16::Form16(Screens& screens) : Form(screens, forms::kStyle, "Bearing Style Selection") {
    auto* const group = new QButtonGroup(this);
    for (std::size_t row = 0; row < pictures_.size(); ++row) {
        pictures_[row] = pictureButton(row, services().folder);
        group->addButton(pictures_[row]);
    }
    description_ = build::heading("Label1", "");
    description_->setAlignment(Qt::AlignCenter);
    proceed_ = build::button("Command1", "Proceed to Bearing Size selection");
    mainMenu_ = build::button("Command2", "&Main Menu", "Return to Main Menu");

    for (std::size_t row = 0; row < pictures_.size(); ++row) {
        on(pictures_[row], &QToolButton::clicked, "Choose style", [this, row] { chooseStyle(row); });
    }
    on(proceed_, &QPushButton::clicked, "Proceed to Bearing Size selection", [this] { proceed(); });
    on(mainMenu_, &QPushButton::clicked, "Main Menu", [this] { goToMainMenu(); });

    auto* const grid = theme::spaced(new QGridLayout, 0);
    for (std::size_t row = 0; row < pictures_.size(); ++row) {
        grid->addWidget(pictures_[row], static_cast<int>(row / 3), static_cast<int>(row % 3));
    }
    auto* const buttons = theme::spaced(new QHBoxLayout, 0);
    buttons->addWidget(mainMenu_);
    buttons->addStretch();
    buttons->addWidget(proceed_);
    auto* const page = theme::spaced(new QVBoxLayout(this));
    page->addLayout(grid, 1);
    page->addWidget(description_);
    page->addLayout(buttons);
    setTabOrder(pictures_.back(), proceed_);
    setTabOrder(proceed_, mainMenu_);
}

void Form16::opened() {
    refresh();
}

void Form16::chooseStyle(std::size_t row) {
    const StyleRow& style = kStyles[row];
    state().style = {style.caption, style.tableLetter};
    refresh();
}

void Form16::takeStyle() {
    state().styleChosen = true;
    state().bearing.partNumber.clear();
    state().knownBearingLoadInput = false;
}

void Form16::proceed() {
    if (state().style.searchStyleCaption.empty()) {
        services().messages.show(
            {"No bearing style chosen", "Please Choose A Bearing Style Prior To Proceeding"});
        return;
    }
    takeStyle();
    screens().showInstead(*this, forms::kSizes);
}

void Form16::goToMainMenu() {
    if (!state().style.searchStyleCaption.empty()) takeStyle();
    screens().showAlone(forms::kMainMenu);
}

void Form16::refresh() {
    const StyleRow* const chosen = styleByCaption(state().style.searchStyleCaption);
    description_->setText(chosen == nullptr ? QStringLiteral(" ") : QString::fromUtf8(chosen->description));
    for (std::size_t row = 0; row < pictures_.size(); ++row) {
        pictures_[row]->setChecked(&kStyles[row] == chosen);
    }
}

}  // namespace norlaplan
