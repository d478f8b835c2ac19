#include "screens/Form16.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

#include "screens/FormBuilder.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/StyleTable.h"

namespace norlaplan {
Form16::Form16(Screens& screens) : Form(screens, forms::kStyle, "Bearing Style Selection") {
    for (std::size_t row = 0; row < pictures_.size(); ++row) {
        const StyleRow& style = kStyles[row];
        pictures_[row] =
            build::pictureButton(qPrintable(QStringLiteral("Image%1").arg(row + 1)),
                                 QString::fromUtf8(style.label), QString::fromUtf8(style.description),
                                 pictureOrNone(services().folder.find(stylePicture(style, 'T'))));
        pictures_[row]->installEventFilter(this);
        group_.addButton(pictures_[row]);
    }
    description_ = build::heading("Label1", "");
    description_->setAlignment(Qt::AlignCenter);
    proceed_ = button("Command1", "Proceed to Bearing Size selection", "", [this] { proceed(); });
    mainMenu_ = button("Command2", "&Main Menu", "Return to Main Menu", [this] { goToMainMenu(); });

    for (std::size_t row = 0; row < pictures_.size(); ++row) {
        on(pictures_[row], &QToolButton::clicked, "Choose style", [this, row] { chooseStyle(row); });
    }

    auto* const grid = theme::spaced(new QGridLayout, 0);
    for (std::size_t row = 0; row < pictures_.size(); ++row) {
        grid->addWidget(pictures_[row], static_cast<int>(row / 3), static_cast<int>(row % 3));
    }
    page().addLayout(grid, 1);
    page().addWidget(description_);
    setFooter({.mainMenu = mainMenu_, .main = proceed_});
}

bool Form16::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton &&
        std::find(pictures_.begin(), pictures_.end(), watched) != pictures_.end()) {
        // Its first click has chosen the style.
        proceed_->click();
        return true;
    }
    return Form::eventFilter(watched, event);
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
