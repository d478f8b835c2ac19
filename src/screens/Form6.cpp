#include "screens/Form6.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/Decoding.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/Settings.h"
#include "state/UnitChange.h"

namespace norlaplan {

Form6::Form6(Screens& screens) : Form(screens, forms::kUnits, "Measurement") {
    us_ = build::option("Option1", "U.S. units (inches and pounds)");
    metric_ = build::option("Option2", "SI units (mm and Newtons)");
    auto* const note =
        build::label("Label1", "Changing this setting will clear all data that has been entered");
    note->setWordWrap(true);
    auto* const take = button("Command1", "&OK", "Accept Change of Units", [this] { accept(); });
    auto* const cancel = button("Command2", "&Cancel", "Retain current Units Selection",
                                [this] { this->screens().hide(*this); });

    auto* const frame = build::frame("Frame1", "Units of Measurement");
    auto* const choices = theme::spaced(new QVBoxLayout(frame), theme::kFrameMargin);
    choices->addWidget(us_);
    choices->addWidget(metric_);

    setWidth(Width::Own);
    page().addWidget(frame);
    page().addWidget(note);
    page().addStretch();
    setFooter({.others = {cancel}, .main = take});
}

void Form6::opened() {
    const bool metric = state().units.system == "METRIC";
    metric_->setChecked(metric);
    us_->setChecked(!metric);
}

void Form6::accept() {
    changeUnits(state(), metric_->isChecked() ? "METRIC" : "US");
    // All texts of the bearing and its data sheet are built anew in the new units.
    const std::string& number = state().bearing.partNumber;
    if (!number.empty()) decodeBearing(screens(), number);
    SaveSettings(state(), services().folder, SettingsPart::Units);
    screens().hide(*this);
}

}  // namespace norlaplan
