#include "screens/tlodestarballloads.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "numbers/RuntimeError.h"
#include "screens/BallLoadPicture.h"
#include "screens/ColourButton.h"
#include "screens/DocumentOutput.h"
#include "screens/FormBuilder.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr const char* kCaption = "Graph of Ball Loads vs Angular Position";
constexpr const char* kHint = "Point at a ball, or walk with the arrow keys, to read its load.";
constexpr int kDegreeStep = 5;
constexpr int kLoadSteps = 50;  // over the whole range

QScrollBar* scrollBar(const char* name, Qt::Orientation orientation) {
    auto* const bar = new QScrollBar(orientation);
    bar->setObjectName(QString::fromUtf8(name));
    bar->setFocusPolicy(Qt::StrongFocus);
    return bar;
}

void place(QScrollBar& bar, const ScrollPosition& position, int step) {
    const QSignalBlocker unheard(bar);
    bar.setRange(position.least, position.most);
    bar.setSingleStep(step);
    bar.setPageStep(5 * step);
    bar.setValue(position.value);
}

}  // namespace

tlodestarballloads::tlodestarballloads(Screens& screens) : Form(screens, forms::kBallLoadGraph, kCaption) {
    readout_ = build::valueLabel("Readout");
    picture_ = new BallLoadPicture("Picture1", "Graphical view of ball loads around bearing", state().solver,
                                   [this](const std::optional<ShownBall>& ball) { tell(ball); });
    makeScrolls();
    layOut();
    setFooter({.previous = button("Command1", "&Return", "Return to previous screen", [this] { closed(); }),
               .others = {button("Command3", "&Print", "Print the ball display", [this] { print(); })},
               .main = button("Command2", "Refresh Graph", "", [this] { refresh(); })});
}

void tlodestarballloads::makeScrolls() {
    yaw_ = scrollBar("HScroll1", Qt::Horizontal);
    pitch_ = scrollBar("VScroll1", Qt::Vertical);
    radius_ = scrollBar("VScroll2", Qt::Vertical);
    for (const auto& [bar, to] :
         {std::pair{yaw_, &BallLoadView::GraphYaw}, std::pair{pitch_, &BallLoadView::GraphPitch},
          std::pair{radius_, &BallLoadView::GraphRadius}}) {
        on(bar, &QScrollBar::valueChanged, "Refresh Graph",
           [this, bar = bar, to = to] { moved(to, bar->value()); });
    }
}

QGroupBox* tlodestarballloads::colourFrame() {
    struct Row {
        const char *name, *tip, *caption;
        Colour BallLoadColours::*colour;
    };
    QGroupBox* const frame = build::frame("Frame1", "COLORS");
    auto* const grid = theme::spaced(new QGridLayout(frame), theme::kFrameMargin);
    int row = 0;
    for (const Row& one :
         {Row{"Picture2", "Display color of ball loads for Row 1", "Row 1", &BallLoadColours::row1},
          Row{"Picture3", "Display color for ball loads for row 2", "Row 2", &BallLoadColours::row2},
          Row{"Picture4", "Display color of base Ellipse (0 load)", "Base", &BallLoadColours::base},
          Row{"Picture5", "Background display color", "Background", &BallLoadColours::background},
          Row{"Picture6", "Display color for x-y-z axis", "Axes", &BallLoadColours::axis}}) {
        const Swatch swatch{new ColourButton(one.name, one.tip), one.colour};
        on(swatch.button, &ColourButton::clicked, one.tip, [this, swatch] { pickColour(swatch); });
        swatch.button->showColour(view_.colours.*one.colour);
        swatches_.push_back(swatch);
        grid->addWidget(swatch.button, row, 0);
        auto* const caption = build::label(("Label" + QByteArray::number(4 + row)).constData(), one.caption);
        grid->addWidget(caption, row++, 1);
    }
    grid->setColumnStretch(1, 1);
    return frame;
}

QLayout* tlodestarballloads::scrollColumn(QLabel& caption, QScrollBar& bar) {
    build::buddy(caption, bar);
    caption.setWordWrap(true);
    caption.setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    auto* const column = theme::spaced(new QVBoxLayout, 0);
    column->addWidget(&caption);
    column->addWidget(&bar, 1, Qt::AlignHCenter);
    return column;
}

void tlodestarballloads::layOut() {
    QLabel* const turn = build::label("Label1", "Rotate \"3D\" graph around vertical axis");
    build::buddy(*turn, *yaw_);
    QLabel* const scale = build::label("Label2", "Vertical Scale");
    QLabel* const loads = build::label("Label3", "Ball Load Scale Modification");
    for (QLabel* const label : {scale, loads}) {
        // Both as wide as their longest word, with the bars' upper ends at one height.
        label->setFixedWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("Modification ")));
        label->setFixedHeight(3 * label->fontMetrics().lineSpacing());
    }
    auto* const bars = theme::spaced(new QHBoxLayout, 0);
    bars->addLayout(scrollColumn(*scale, *pitch_));
    bars->addLayout(scrollColumn(*loads, *radius_));
    auto* const side = theme::spaced(new QVBoxLayout, 0);
    side->addLayout(bars, 1);
    side->addWidget(colourFrame());

    auto* const grid = theme::spaced(new QGridLayout, 0);
    grid->addWidget(picture_, 0, 0, 1, 2);
    grid->addWidget(turn, 1, 0);
    grid->addWidget(yaw_, 1, 1);
    grid->addLayout(side, 0, 2, 2, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(0, 1);
    page().addLayout(grid, 1);
    page().addWidget(readout_);
}

void tlodestarballloads::opened() {
    view_.GraphRadius = state().solver.MaxBallLoad;
    showScrolls();
    refresh();
    picture_->setFocus();
}

void tlodestarballloads::moved(Single BallLoadView::*to, int value) {
    view_.*to = static_cast<double>(value);
    refresh();
}

void tlodestarballloads::pickColour(const Swatch& swatch) {
    Colour& colour = view_.colours.*swatch.colour;
    const auto chosen = services().colourDialog.askColour(swatch.button->toolTip().toStdString(), colour);
    if (!chosen) return;
    colour = *chosen;
    swatch.button->showColour(colour);
    refresh();
}

void tlodestarballloads::refresh() {
    if (draw()) return;
    resetView(view_, state().solver);
    showScrolls();
    if (!draw()) readout_->setText("No ball carries a load.");
}

bool tlodestarballloads::draw() {
    try {
        picture_->showLoads(view_);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

void tlodestarballloads::showScrolls() {
    const BallLoadScrolls scrolls = scrollsOf(view_);
    place(*yaw_, scrolls.yaw, kDegreeStep);
    place(*pitch_, scrolls.pitch, kDegreeStep);
    place(*radius_, scrolls.radius, std::max(1, scrolls.radius.most / kLoadSteps));
}

void tlodestarballloads::tell(const std::optional<ShownBall>& ball) {
    readout_->setText(ball ? QString::fromStdString(ballReadout(*ball, state().units)) : QString(kHint));
}

void tlodestarballloads::print() {
    printDocument(services(), ballLoadsDocument(state(), view_, services().clock));
}

}  // namespace norlaplan
