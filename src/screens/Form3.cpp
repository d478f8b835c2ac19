#include "screens/Form3.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <filesystem>

#include "capacity/LoadLife.h"
#include "documents/ExportFile.h"
#include "documents/LastFileMail.h"
#include "numbers/RuntimeError.h"
#include "screens/Decoding.h"
#include "screens/Form2.h"
#include "screens/Screens.h"
#include "screens/StepMark.h"
#include "screens/Theme.h"
#include "screens/Training.h"
#include "state/MenuConditions.h"
#include "state/NewBearing.h"
#include "state/StepValues.h"
#include "state/UnsavedApplication.h"
#include "state/WholeFile.h"

namespace norlaplan {

void Form3::pressEnterModelNumber() {
    modelNumber_->click();
}

void Form3::refresh() {
    setPalette(theme::onFixedBackground(theme::menuBackground(state().unitSystem)));
    const Options& options = state().options;
    faxCover_->setVisible(options.faxCoverEnabled);
    nedsPictures_->setVisible(options.nedGroveOption);
    thermalFits_->setVisible(options.tempFitsOption);
    export_->setVisible(options.qlxOption);
    partNumber_->setText(QString::fromStdString(state().bearing.partNumber));
    units_->setText(QString::fromStdString(unitsValue(state())));
    showSteps();
}

void Form3::showSteps() {
    const auto show = [](const Step& step, const std::string& value, bool done) {
        step.value->setText(QString::fromStdString(value.empty() ? " " : value));
        step.mark->setDone(done);
    };
    const ProgramState& now = state();
    const std::string bearing = bearingValue(now), style = styleValue(now), sizes = sizesValue(now),
                      loads = loadsValue(now), results = resultsValue(now);
    show(bearingStep_, bearing, !bearing.empty());
    show(lifeStep_, loads, hasLife(now));
    show(styleStep_, style, !style.empty());
    show(sizesStep_, sizes, !sizes.empty());
    show(loadsStep_, loads, !loads.empty());
    show(resultsStep_, results, !results.empty());
}

void Form3::closed() {
    if (mayLoseApplication(state(), services().messages)) screens().quit();
}

bool Form3::refused(const std::optional<Message>& refusal) {
    if (refusal) services().messages.show(*refusal);
    return refusal.has_value();
}

void Form3::openFor(const std::optional<Message>& refusal, FormName form) {
    if (!refused(refusal)) screens().show(form);
}

void Form3::askForPath() {
    const Message question{"Program Help", "Do you know the Norlaring MM™ Part Number"};
    const Answer answer = services().messages.ask(question, Buttons::YesNoCancel);
    if (answer != Answer::Yes && answer != Answer::No) return;
    const bool known = answer == Answer::Yes;
    knownMark_->setVisible(known);
    searchMark_->setVisible(!known);
    (known ? modelNumber_ : style_)->click();
}

void Form3::openModelNumber() {
    screens().show(forms::kPartNumber);
}

bool Form3::bearingReady() {
    return !refused(bearingRefusal(state())) && bearingInHand(screens());
}

void Form3::openDataSheet() {
    if (bearingReady()) screens().show(forms::kDataSheet);
}

void Form3::openPreloadTorque() {
    if (bearingReady()) openFor(preloadTorqueRefusal(state()), forms::kPreloadTorque);
}

void Form3::openAxialPlay() {
    if (bearingReady()) openFor(axialPlayRefusal(state()), forms::kAxialPlay);
}

void Form3::openDeflection() {
    if (bearingReady()) openFor(loadableBearingRefusal(state()), forms::kDeflection);
}

void Form3::openKnownLoads() {
    if (!bearingReady() || refused(loadableBearingRefusal(state()))) return;
    state().knownBearingLoadInput = true;
    screens().show(forms::kLoads);
}

void Form3::openLife() {
    if (bearingReady()) openFor(lifeRefusal(state()), forms::kLife);
}

void Form3::openThermalFits() {
    if (!refused(thermalFitsRefusal(state())) && bearingInHand(screens()))
        screens().show(forms::kThermalFits);
}

void Form3::openStyle() {
    screens().show(forms::kStyle);
}

bool Form3::misses(const std::optional<StepRefusal>& refusal) {
    if (!refusal) return false;
    services().messages.show(refusal->message);
    switch (refusal->missing) {
        case SearchStep::Style:
            screens().show(forms::kStyle);
            break;
        case SearchStep::Sizes:
            screens().show(forms::kSizes);
            break;
        case SearchStep::Loads:
            state().knownBearingLoadInput = false;
            screens().show(forms::kLoads);
            break;
    }
    return true;
}

void Form3::openSizes() {
    if (!misses(sizesRefusal(state()))) screens().show(forms::kSizes);
}

void Form3::openSearchLoads() {
    if (misses(searchLoadsRefusal(state()))) return;
    state().knownBearingLoadInput = false;
    screens().show(forms::kLoads);
}

void Form3::openResults() {
    if (misses(resultsRefusal(state()))) return;
    state().knownBearingLoadInput = false;
    screens().show(forms::kResults);
}

void Form3::openIntroduction() {
    showText(screens(), "\\help\\introduction.rtf", "Introduction to NORLAPLAN MM™ Software",
             "Exit Introduction");
}

void Form3::openTraining() {
    training_->start();
}

void Form3::openApplicationForm() {
    screens().show(forms::kApplication);
}

void Form3::openFaxCover() {
    screens().show(forms::kFaxCover);
}

void Form3::openNedsPictures() {
    screens().show(forms::kPictureBrowser);
}

void Form3::clearAll() {
    if (!mayLoseApplication(state(), services().messages)) return;
    clearBearingAndLoads(state());
    refresh();
}

void Form3::sendMail() {
    mailLastFile(state(), services().mail, services().messages);
}

void Form3::exportBearing() {
    const bool last = exportEndsEarly(state());
    if (!bearingReady() || (last && !mayLoseApplication(state(), services().messages))) return;
    const SaveRequest request{"Save Brimhall .qlx File",
                              {{"Brimhall Files (*.qlx)", "*.qlx"}},
                              "qlx",
                              services().folder.toSaveIn("\\save"),
                              state().bearing.partNumber + ".qlx"};
    const std::optional<SaveChoice> choice = services().saveDialog.askWhereToSave(request);
    // The file is made under the name as it comes back, and with no name it can't be.
    if (!choice) throw RuntimeError(fault::kPathAccess);
    writeWholeFile(choice->path, qlxText(state()));
    if (!last) return tellSaved(choice->path);
    services().messages.show(
        {"Create QLX file", std::string(kExportEndsEarly) + "\n\nThe program ends here.", Icon::Critical});
    screens().quit();
}

void Form3::askToQuit() {
    const Message question{"Warning", "Are you Sure you want to quit ?", Icon::Warning};
    if (services().messages.ask(question, Buttons::YesNo) == Answer::Yes) exitProgram();
}

void Form3::exitProgram() {
    if (!mayLoseApplication(state(), services().messages)) return;
    for (const char* const file : {"\\condensed.dat", "\\data.rtf"}) {
        // A file that can't be deleted doesn't keep the user from leaving.
        std::error_code ignored;
        std::filesystem::remove(services().folder.own(file), ignored);
    }
    screens().quit();
}

}  // namespace norlaplan
