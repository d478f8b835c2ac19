#include "screens/Form19.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <vector>

#include "capacity/LoadLife.h"
#include "documents/LoadLifeReport.h"
#include "loaddist/AnalysisEntry.h"
#include "numbers/FormatNumber.h"
#include "numbers/Text.h"
#include "screens/BusyPointer.h"
#include "screens/Decoding.h"
#include "screens/DocumentOutput.h"
#include "screens/EqualSigns.h"
#include "screens/FormBuilder.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/StyleTable.h"

namespace norlaplan {
namespace {

constexpr int kWithinLimit = 2;
constexpr int kWidestInput = 26;  // characters of a size or load with its name and unit

constexpr QSize kSectionSize(264, 104);
constexpr QSize kSketchSize(264, 176);

QLabel* noteLabel(const char* name, const char* text) {
    QLabel* const label = build::label(name, QString::fromUtf8(text));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

using build::keepRoom;
using build::makeBold;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

const char* frameCaption(const std::string& style) {
    if (style == "C") return "Radial Contact";
    if (style == "X") return "Four-Point Contact";
    if (style == "B") return "Back-to-Back Duplex";
    return style == "F" ? "Face-to-Face Duplex" : "BEARING STYLE";
}

}  // namespace

Form19::Form19(Screens& screens) : Form(screens, forms::kLife, "Load Life Calculation for") {
    layOut();
    makeButtons();
}

QGroupBox* Form19::sizeFrame() {
    return build::labelFrame("Frame1", "SIZE",
                             {bore_ = build::valueLabel("Label1"), od_ = build::valueLabel("Label2"),
                              height_ = build::valueLabel("Label3")});
}

QGroupBox* Form19::loadFrame() {
    QGroupBox* const frame =
        build::labelFrame("Frame2", "LOADS",
                          {radial_ = build::valueLabel("Label4"), axial_ = build::valueLabel("Label5"),
                           moment_ = build::valueLabel("Label6"), speed_ = build::valueLabel("Label7")});
    keepRoom(*speed_);
    // As wide as the sizes beside them, for a moment with its sign and unit.
    moment_->setMinimumWidth(moment_->fontMetrics().horizontalAdvance(QString(kWidestInput, QChar('0'))));
    return frame;
}

QGroupBox* Form19::styleFrame() {
    styleGroup_ = build::frame("Frame3", "BEARING STYLE");
    stylePicture_ = new Picture("Image1", "Section of the bearing's style", kSectionSize);
    loadSketch_ = new Picture("Picture1", "Directions of the loads", kSketchSize);
    auto* const column = theme::spaced(new QVBoxLayout(styleGroup_), theme::kFrameMargin);
    for (Picture* const picture : {stylePicture_, loadSketch_}) {
        picture->setFixedSize(picture->sizeHint());
        column->addWidget(picture);
    }
    return styleGroup_;
}

QGroupBox* Form19::resultFrame() {
    const std::initializer_list<QLabel*> results = {
        life_ = build::valueLabel("Label8"), hours_ = build::valueLabel("Label9"),
        safety_ = build::valueLabel("Label10"), torque_ = build::valueLabel("Label13")};
    for (QLabel* const label : results)
        makeBold(*label);
    return build::labelFrame("Frame4", "LOAD AND LIFE RESULTS", results);
}

QGroupBox* Form19::commentFrame() {
    verdict_ = noteLabel("Label11", "");
    QLabel* const safetyNote =
        noteLabel("Label12",
                  "The STATIC SAFETY FACTOR is based on non-detrimental permanent deformation, and the "
                  "assumption that the inner and outer bearing races are radially restrained by a rigid "
                  "shaft and housing.");
    QLabel* const torqueNote =
        noteLabel("Label14",
                  "Starting Torque is based on typical aplications.  Actual measurements may vary by 50% "
                  "of the values listed.  If specific values are required, they must be noted before "
                  "ordering.");
    warnings_ = {noteLabel("Warning1", ""), noteLabel("Warning2", "")};
    for (QLabel* const label : {verdict_, warnings_[0], warnings_[1]}) {
        makeBold(*label);
        label->setMinimumHeight(label->fontMetrics().height());
        keepRoom(*label);
    }
    return build::labelFrame("Frame5", "COMMENTS",
                             {verdict_, safetyNote, torqueNote, warnings_[0], warnings_[1]});
}

void Form19::makeButtons() {
    // What they show is the solve of the bearing and loads in hand, never one before.
    const auto opens = [this](FormName form) {
        return [this, form] {
            if (lifeInHand()) screens().show(form);
        };
    };
    ballPlot_ = button("Command5", "Ball Load             Plot",
                       "Option to see how loads are distributed around both rows of balls",
                       opens(forms::kBallLoadGraph));
    lubeFilm_ = button("Command6", "Lube Film          Check", "", opens(forms::kLubeFilm));
    contactStress_ = button("Command7", "Contact         Stress", "View path stress and contact angle",
                            opens(forms::kContactStress));
    analysis_ = button("Command8", "Show Sams Tlodestar Results", "", opens(forms::kAnalysis));
    QPushButton* const print =
        button("Command3", "P&rint", "Print results of calculations", [this] { this->print(); });
    save_ = button("Command4", "&Save", "Save Results to file", [this] { save(); });
    setFooter(
        {.mainMenu = button("Command2", "&Main Menu", "Return to Main Menu", [this] { goToMainMenu(); }),
         .previous = button("Command1", "&Previous", "Return to load input", [this] { goToPrevious(); }),
         .others = {ballPlot_, lubeFilm_, contactStress_, analysis_, print},
         .main = save_});
}

void Form19::layOut() {
    auto* const inputs = theme::spaced(new QHBoxLayout, 0);
    inputs->addWidget(sizeFrame(), 1);
    inputs->addWidget(loadFrame(), 1);
    auto* const numbers = theme::spaced(new QVBoxLayout, 0);
    numbers->addLayout(inputs);
    numbers->addWidget(resultFrame());
    numbers->addStretch();
    auto* const above = theme::spaced(new QHBoxLayout, 0);
    above->addLayout(numbers, 1);
    above->addWidget(styleFrame(), 0, Qt::AlignTop);
    page().addLayout(above);
    page().addWidget(commentFrame());
    page().addStretch();
}

void Form19::opened() {
    ProgramState& now = state();
    const bool fromLoadScreen = now.knownBearingLoadInput;
    now.knownBearingLoadInput = false;
    showOptions();
    showInputs();
    showStyle();
    clearResults();
    save_->setFocus();
    try {
        calculate();
    } catch (...) {
        // A fault brings the screen before back, which then still serves this bearing.
        now.knownBearingLoadInput = fromLoadScreen;
        throw;
    }
}

void Form19::cameBack() {
    if (!hasLife(state())) opened();
}

void Form19::calculate() {
    const BusyPointer busy;
    if (computeLoadLife(state(), services().messages)) {
        noteSolve(state(), services().clock.date());
        showResults();
    } else if (state().solver.SolveAborted) {
        leaveUnsolved();
    }
}

bool Form19::lifeInHand() {
    if (!bearingInHand(screens())) return false;
    if (!hasLife(state())) opened();
    return hasLife(state());
}

void Form19::leaveUnsolved() {
    state().solver.SolveAborted = false;
    goToPrevious();
}

void Form19::showOptions() {
    const Options& options = state().options;
    ballPlot_->setVisible(options.ballShowOption);
    lubeFilm_->setVisible(options.lubeFilmOption);
    contactStress_->setVisible(options.pathStressOption && state().bearing.styleLetter != "C");
    analysis_->setVisible(options.larsHofmannOption || options.samLundOption);
}

void Form19::showInputs() {
    const ProgramState& now = state();
    const UnitMode& units = now.units;
    const auto length = [&](double inches) {
        return FormatNumber(inches * units.lengthFactor, units.lengthPicture) + " " + units.lengthUnit;
    };
    const auto load = [&](double value, const std::string& unit) {
        return FormatNumber(value, units.loadPicture) + " " + unit;
    };
    setWindowTitle(text("LOAD-LIFE CALCULATION FOR " + now.bearing.partNumber));
    bore_->setText(text("BORE       = " + length(now.bearing.bore)));
    od_->setText(text("O. D.      = " + length(now.bearing.outsideDiameter)));
    height_->setText(text("HEIGHT     = " + length(now.bearing.height)));
    radial_->setText(text("RADIAL = " + load(now.loads.radialLoadDisplay, units.loadUnitWord)));
    axial_->setText(text("AXIAL  = " + load(now.loads.axialLoadDisplay, units.loadUnitWord)));
    moment_->setText(text("MOMENT = " + load(now.loads.momentLoadDisplay, units.momentUnitWord)));
    speed_->setText(text("SPEED =  " + plainText(now.loads.speed) + " RPM"));
    speed_->setVisible(now.loads.speed != 0.0);
    for (const auto& frame : {std::vector{bore_, od_, height_}, {radial_, axial_, moment_, speed_}})
        alignEqualSigns(frame);
}

void Form19::showStyle() {
    const std::string& letter = state().bearing.styleLetter;
    styleGroup_->setTitle(QString::fromUtf8(frameCaption(letter)));
    const StyleRow* const style = styleByLetter(letter);
    if (style == nullptr) return;
    stylePicture_->showFile(services().folder, stylePicture(*style, 'T'));
    loadSketch_->showFile(services().folder, stylePicture(*style, 'L'));
}

void Form19::clearResults() {
    for (QLabel* const label : {life_, hours_, safety_, torque_, verdict_})
        label->clear();
    verdict_->hide();
    for (QLabel* const label : warnings_)
        label->hide();
    hours_->setVisible(state().loads.speed > 0.0);
}

void Form19::showResults() {
    const ProgramState& now = state();
    life_->setText(text(lifeLine(now)));
    hours_->setText(text(hoursLine(now)));
    safety_->setText(text(safetyLine(now)));
    torque_->setText(text(torqueLine(now)));
    alignEqualSigns(std::vector{life_, hours_, safety_, torque_});
    showWarnings();
    if (now.loads.speed == 0.0) return;
    const bool within = now.life.speedVerdictColor == kWithinLimit;
    QFont font = verdict_->font();
    font.setPointSizeF(within ? 9.0 : 10.0);
    font.setBold(true);
    verdict_->setFont(font);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText,
                     within ? theme::goodColour(palette()) : theme::badColour(palette()));
    verdict_->setPalette(colours);
    verdict_->setText(text(now.life.speedVerdict));
    verdict_->show();
}

void Form19::showWarnings() {
    const auto& sentences = state().life.warnings;
    for (std::size_t i = 0; i < warnings_.size(); ++i) {
        const bool shown = i < sentences.size();
        theme::makeWarning(*warnings_[i]);
        warnings_[i]->setText(shown ? text(sentences[i]) : QString());
        warnings_[i]->setVisible(shown);
    }
}

void Form19::goToPrevious() {
    state().knownBearingLoadInput = true;
    screens().showInstead(*this, forms::kLoads);
}

void Form19::goToMainMenu() {
    state().knownBearingLoadInput = false;
    screens().showAlone(forms::kMainMenu);
}

void Form19::closed() {
    goToMainMenu();
}

void Form19::escaped() {
    screens().hide(*this);
}

Document Form19::document() const {
    return loadLifeDocument(state(), services().folder, services().clock);
}

void Form19::print() {
    if (!lifeInHand()) return;
    printDocument(services(), document());
}

void Form19::save() {
    if (!lifeInHand()) return;
    saveAs(document());
}

}  // namespace norlaplan
