#include "screens/Form23.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fits/TorqueCurve.h"
#include "fits/TorqueGraph.h"
#include "fits/TorqueReport.h"
#include "screens/BusyPointer.h"
#include "screens/Decoding.h"
#include "screens/DocumentOutput.h"
#include "screens/FormBuilder.h"
#include "screens/GraphView.h"
#include "screens/ReadoutLabel.h"
#include "screens/Screens.h"

namespace norlaplan {

Form23::Form23(Screens& screens) : Form(screens, forms::kPreloadTorque, "Preload Torque") {
    picture_ = new GraphView("Picture1", QStringLiteral("Starting torque against preload"));
    readout_ = readoutLabel("Label1", QStringLiteral("Preload and torque at the pointer"));
    followReadout(*picture_, *readout_);
    page().addWidget(picture_, 1);
    page().addWidget(readout_);
    save_ = button("Command1", "&Save", "Save Results to file", [this] { save(); });
    setFooter({.mainMenu = button("Command3", "&Main Menu", "Return to Main Menu",
                                  [this] { this->screens().showAlone(forms::kMainMenu); }),
               .others = {button("Command5", "P&rint", "Print Results of calculations", [this] { print(); })},
               .main = save_});
}

void Form23::opened() {
    {
        const BusyPointer busy;
        computeTorqueCurve(state().bearing, state().torque, services().messages);
    }
    readout_->hide();
    picture_->showGraph(torqueGraph(state(), GraphTarget::Screen), papers::kGraphPicture);
    save_->setFocus();
}

void Form23::print() {
    if (!bearingInHand(screens())) return;
    printDocument(services(), torqueDocument(state(), services().clock));
}

void Form23::save() {
    if (!bearingInHand(screens())) return;
    saveAs(torqueDocument(state(), services().clock));
}

}  // namespace norlaplan
