#include "screens/Form14.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "screens/Decoding.h"
#include "screens/FormBuilder.h"
#include "screens/NumberField.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/LoadEntry.h"
#include "state/StyleTable.h"

namespace norlaplan {

Form14::Form14(Screens& screens) : Form(screens, forms::kLoads, "Bearing Load Input") {
    EntryTexts& texts = state().entries;
    radialLabel_ = build::label("Label1");
    axialLabel_ = build::label("Label2");
    momentLabel_ = build::label("Label3");
    speedLabel_ = build::label("Label4", "SPEED (RPM)");
    radial_ = new NumberField("Text1", "Load across the axis", texts.radial);
    axial_ = new NumberField("Text2", "Load along the axis", texts.axial);
    moment_ = new NumberField("Text3", "Overturning moment", texts.moment);
    speed_ = new NumberField("Text4", "Speed of the rotating ring; leave it empty for none", texts.speed);
    picture_ = new Picture("Picture1", "Directions of the loads on the bearing", {480, 320});
    proceed_ = button("Command1", "Proceed to life calculation", "", [this] { proceed(); });
    previous_ =
        button("Command2", "<< &Previous", "Return to size determination", [this] { goToPrevious(); });
    mainMenu_ = button("Command3", "&Main Menu", "Return to Main Menu", [this] { goToMainMenu(); });

    const auto speedOrProceed = [this]() -> QWidget* {
        return speed_->isEnabled() ? static_cast<QWidget*>(speed_) : proceed_;
    };
    enterMovesTo(*radial_, [this, speedOrProceed]() -> QWidget* {
        return isRadialContact(state()) ? speedOrProceed() : axial_;
    });
    enterMovesTo(*axial_, [this] { return moment_; });
    enterMovesTo(*moment_, speedOrProceed);
    enterMovesTo(*speed_, [this]() -> QWidget* { return proceed_; });
    build::layOutEntry(
        page(), *picture_,
        {{radialLabel_, radial_}, {axialLabel_, axial_}, {momentLabel_, moment_}, {speedLabel_, speed_}});
    setFooter({.mainMenu = mainMenu_, .previous = previous_, .main = proceed_});
}

void Form14::opened() {
    prepareLoadEntry(state());
    refresh();
    askAgain(*radial_);
}

void Form14::refresh() {
    const ProgramState& now = state();
    const bool metric = now.units.system == "METRIC";
    radialLabel_->setText(metric ? "RADIAL (N)" : "RADIAL (lbs)");
    axialLabel_->setText(metric ? "AXIAL (N)" : "AXIAL (lbs)");
    momentLabel_->setText(metric ? "MOMENT (N-M)" : "MOMENT (in-lbs)");
    build::buddy(*radialLabel_, *radial_);
    build::buddy(*axialLabel_, *axial_);
    build::buddy(*momentLabel_, *moment_);
    build::buddy(*speedLabel_, *speed_);
    for (NumberField* const field : {radial_, axial_, moment_, speed_})
        field->refresh();
    speed_->setEnabled(takesSpeed(now));
    previous_->setVisible(!now.knownBearingLoadInput);
    const bool radialOnly = isRadialContact(now);
    for (QWidget* const widget : {static_cast<QWidget*>(axialLabel_), static_cast<QWidget*>(axial_),
                                  static_cast<QWidget*>(momentLabel_), static_cast<QWidget*>(moment_)}) {
        widget->setVisible(!radialOnly);
    }
    // A style that is searched for and the number of a bearing in hand never stand beside each other.
    const bool known = now.knownBearingLoadInput;
    const StyleRow* const style =
        known ? styleByLetter(now.bearing.styleLetter) : styleByCaption(now.style.searchStyleCaption);
    setWindowTitle(QString::fromStdString("BEARING LOAD INPUT FOR " +
                                          std::string(style == nullptr ? "" : style->caption) + " " +
                                          (known ? now.bearing.partNumber : "")));
    if (style != nullptr) picture_->showFile(services().folder, stylePicture(*style, 'L'));
}

bool Form14::enter() {
    const auto message = enterLoads(state());
    refresh();
    if (!message) return true;
    services().messages.show(*message);
    for (NumberField* const field : {radial_, axial_, moment_, speed_}) {
        if (field->shows(state().entries.*message->field)) askAgain(*field);
    }
    return false;
}

void Form14::proceed() {
    if (!enter()) return;
    const bool known = state().knownBearingLoadInput;
    if (known && !bearingInHand(screens())) return;
    screens().showInstead(*this, known ? forms::kLife : forms::kResults);
}

void Form14::goToPrevious() {
    screens().showInstead(*this, forms::kSizes);
}

void Form14::closed() {
    state().knownBearingLoadInput = false;
    Form::closed();
}

void Form14::goToMainMenu() {
    // Refused, the screen stays and still serves the path that it was opened for.
    if (!enter()) return;
    state().knownBearingLoadInput = false;
    screens().showAlone(forms::kMainMenu);
}

}  // namespace norlaplan
