#include "screens/Form18.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include "fits/PlayCurve.h"
#include "fits/PlayReport.h"
#include "screens/Decoding.h"
#include "screens/Demonstration.h"
#include "screens/DocumentOutput.h"
#include "screens/FormBuilder.h"
#include "screens/GraphView.h"
#include "screens/ReadoutLabel.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr const char* kClearanceComment =
    "The internal clearance shown above is the total diametral clearance.  It is the sum of the radial "
    "clearance contained on both sides of the bearing.  The 'OFFSET' values shown in the animation are equal "
    "to 1/2 of the 'AXIAL PLAY' values shown above.  The clearance in the bearing is assumed to be equally "
    "distributed around the bearing so that the races can translate along the rotational axis evenly.";
constexpr const char* kReferenceComment =
    "The values shown above are for Engineering Reference only!  If specific target values for axial play or "
    "tilt of axis are required, Varden's Engineering department must be consulted.";
constexpr const char* kDemonstrationCaption =
    "CLICK HERE                                     to see visual demonstration of                     Axial "
    "Play vs. Diametral Clearance";

QLabel* commentLabel(const char* name, const char* text) {
    QLabel* const label = build::label(name, QString::fromUtf8(text));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

Form18::Form18(Screens& screens) : Form(screens, forms::kAxialPlay, "Axial Clearance") {
    auto* const above = theme::spaced(new QHBoxLayout, 0);
    above->addWidget(graphs(), 1, Qt::AlignTop);
    above->addWidget(choices());
    comments_ = build::labelFrame(
        "Frame1", "Comments",
        {commentLabel("Label2", kClearanceComment), commentLabel("Label3", kReferenceComment)});
    page().addLayout(above, 1);
    page().addWidget(comments_);
    makeButtons();
    nameScrollBar();
}

QWidget* Form18::graphs() {
    play_ = new GraphView("Picture1", QStringLiteral("Axial play against diametral clearance"));
    tilt_ = new GraphView("Picture2", QStringLiteral("Tilt of axis against diametral clearance"));
    readout_ = readoutLabel("Label1", QStringLiteral("Clearance and play at the pointer"));
    auto* const column = new QWidget;
    auto* const cells = theme::spaced(new QGridLayout(column), 0);
    for (GraphView* const graph : {play_, tilt_}) {
        followReadout(*graph, *readout_);
        cells->addWidget(graph, 0, 0);
    }
    cells->addWidget(readout_, 1, 0);
    cells->setRowStretch(0, 1);
    return column;
}

QWidget* Form18::choices() {
    playOption_ = build::option("Option1", "Axial Movement", "Switch to Axial Movement");
    tiltOption_ = build::option("Option2", "Tilt of Axis", "Switch to Tilt of Axis");
    on(playOption_, &QRadioButton::clicked, "Axial Movement", [this] { showGraph(PlayGraph::AxialPlay); });
    on(tiltOption_, &QRadioButton::clicked, "Tilt of Axis", [this] { showGraph(PlayGraph::Tilt); });
    demonstration_ = new Demonstration("Frame3");
    QPushButton* const demonstrate =
        build::linedButton("Command3", kDemonstrationCaption, "View Demonstration");
    on(demonstrate, &QPushButton::clicked, "View Demonstration",
       [this] { demonstration_->play(services().folder); });

    auto* const column = new QWidget;
    auto* const rows = theme::spaced(new QVBoxLayout(column), 0);
    QGroupBox* const graph = build::frame("Frame2", "Graph");
    auto* const options = theme::spaced(new QVBoxLayout(graph), theme::kFrameMargin);
    options->addWidget(playOption_);
    options->addWidget(tiltOption_);
    rows->addWidget(graph);
    rows->addWidget(demonstrate);
    rows->addWidget(demonstration_);
    rows->addStretch();
    return column;
}

void Form18::makeButtons() {
    commentButton_ = button("Command6", "Show Comments", "", [this] { showComments(comments_->isHidden()); });
    QPushButton* const save = button("Command2", "Save", "Save Results to file", [this] { this->save(); });
    QPushButton* const print =
        button("Command4", "P&rint", "Print results of calculations", [this] { this->print(); });
    setFooter({.mainMenu = button("Command1", "&Main Menu", "Return to Main Menu",
                                  [this] { screens().showAlone(forms::kMainMenu); }),
               .others = {commentButton_, print},
               .main = save});
}

/// The page scrolls where the screen has no room for it, a tenth of what is out of sight at a time.
void Form18::nameScrollBar() {
    QScrollBar* const bar = findChild<QScrollArea*>()->verticalScrollBar();
    bar->setObjectName(QStringLiteral("VScroll1"));
    bar->setAccessibleName(QStringLiteral("Scroll the page"));
    connect(bar, &QScrollBar::rangeChanged, bar,
            [bar](int, int most) { bar->setSingleStep(std::max(1, most / 10)); });
}

void Form18::opened() {
    computePlayCurve(state().bearing, state().units, state().play);
    play_->showGraph(playGraph(state(), PlayGraph::AxialPlay, GraphTarget::Screen), papers::kGraphPicture);
    tilt_->showGraph(playGraph(state(), PlayGraph::Tilt, GraphTarget::Screen), papers::kGraphPicture);
    showGraph(PlayGraph::AxialPlay);
    showComments(false);
    playOption_->setFocus();
}

void Form18::showGraph(PlayGraph which) {
    const bool tilt = which == PlayGraph::Tilt;
    (tilt ? tiltOption_ : playOption_)->setChecked(true);
    play_->setVisible(!tilt);
    tilt_->setVisible(tilt);
    readout_->hide();
}

PlayGraph Form18::graphOnShow() const {
    return tiltOption_->isChecked() ? PlayGraph::Tilt : PlayGraph::AxialPlay;
}

void Form18::showComments(bool shown) {
    comments_->setVisible(shown);
    commentButton_->setText(shown ? "Hide Comments" : "Show Comments");
}

void Form18::print() {
    if (!bearingInHand(screens())) return;
    printDocument(services(), playDocument(state(), graphOnShow(), services().clock));
}

void Form18::save() {
    if (!bearingInHand(screens())) return;
    saveAs(playDocument(state(), graphOnShow(), services().clock));
}

}  // namespace norlaplan
