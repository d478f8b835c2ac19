#include "screens/Form12.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "screens/FormBuilder.h"
#include "screens/NumberField.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/SizeEntry.h"
#include "state/StyleTable.h"

namespace norlaplan {

Form12::Form12(Screens& screens) : Form(screens, forms::kSizes, "Bearing Size Selection") {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        labels_[i] =
            build::label(QByteArray("Label" + QByteArray::number(static_cast<int>(i) + 1)).constData());
    }
    EntryTexts& texts = state().entries;
    minBore_ = new NumberField("Text1", "The bearing's bore is at least this", texts.minBore);
    maxOd_ = new NumberField("Text2", "The bearing's outer diameter is at most this", texts.maxOd);
    minHeight_ = new NumberField("Text3", "The bearing or set is at least this high", texts.minHeight);
    maxHeight_ = new NumberField("Text4", "The bearing or set is at most this high", texts.maxHeight);
    picture_ = new Picture("Picture1", "Bore, outer diameter and height of the chosen style", {480, 320});
    previous_ = button("Command1", "<< &Previous", "Go back to style selection", [this] { goToPrevious(); });
    proceed_ = button("Command2", "Proceed to load input", "", [this] { proceed(); });
    mainMenu_ = button("Command3", "&Main Menu", "Return to Main Menu",
                       [this] { this->screens().showAlone(forms::kMainMenu); });

    enterMovesTo(*minBore_, [this] { return maxOd_; });
    enterMovesTo(*maxOd_, [this] { return maxHeight_; });
    enterMovesTo(*maxHeight_, [this] { return minHeight_; });
    enterMovesTo(*minHeight_, [this]() -> QWidget* { return proceed_; });
    build::layOutEntry(
        page(), *picture_,
        {{labels_[0], minBore_}, {labels_[1], maxOd_}, {labels_[2], maxHeight_}, {labels_[3], minHeight_}});
    setFooter({.mainMenu = mainMenu_, .previous = previous_, .main = proceed_});
}

void Form12::opened() {
    showSizesAgain(state());
    refresh();
    askAgain(*minBore_);
}

void Form12::refresh() {
    const QString unit = state().units.system == "METRIC" ? " (mm)" : " (in)";
    const std::array<const char*, 4> captions = {"MINIMUM BORE", "MAXIMUM OUTER DIAMETER", "MAX. HEIGHT",
                                                 "MIN. HEIGHT"};
    const std::array<NumberField*, 4> fields = {minBore_, maxOd_, maxHeight_, minHeight_};
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        labels_[i]->setText(QString::fromUtf8(captions[i]) + unit);
        build::buddy(*labels_[i], *fields[i]);
        fields[i]->refresh();
    }
    const std::string& caption = state().style.searchStyleCaption;
    setWindowTitle("BEARING SIZE SELECTION FOR " + QString::fromStdString(caption));
    if (const StyleRow* const style = styleByCaption(caption)) {
        picture_->showFile(services().folder, stylePicture(*style, 'S'));
    }
}

void Form12::goToPrevious() {
    screens().showInstead(*this, forms::kStyle);
}

void Form12::proceed() {
    if (const auto message = enterSizes(state())) {
        services().messages.show(*message);
        for (NumberField* const field : {minBore_, maxOd_, minHeight_, maxHeight_}) {
            if (field->shows(state().entries.*message->field)) askAgain(*field);
        }
        return;
    }
    refresh();
    screens().showInstead(*this, forms::kLoads);
}

}  // namespace norlaplan
