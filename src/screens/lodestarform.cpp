#include "screens/lodestarform.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/BallGrid.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

QGroupBox* gridFrame(const char* name, const QString& caption, BallGrid& grid) {
    QGroupBox* const frame = build::frame(name, caption);
    auto* const column = theme::spaced(new QVBoxLayout(frame), theme::kGap);
    column->addWidget(&grid);
    return frame;
}

}  // namespace

lodestarform::lodestarform(Screens& screens) : Form(screens, forms::kBallResults, "INDIVIDUAL BALL DATA") {
    bearing_ = build::heading("Label1", "");
    firstRow_ = new BallGrid("MSFlexGrid1", "Balls of row 1, in columns");
    secondRow_ = new BallGrid("MSFlexGrid3", "Balls of row 2, in columns");
    page().addWidget(bearing_);
    page().addWidget(gridFrame("Frame4", "Row 1", *firstRow_), 1);
    page().addWidget(gridFrame("Frame1", "Row 2", *secondRow_), 1);
    setFooter({.previous = button("Command1", "Analysis", "Return to the load distribution analysis",
                                  [this] { this->screens().showInstead(*this, forms::kAnalysis); }),
               .others = {button("Command2", "Close", "Return to the load-life calculation",
                                 [this] { closed(); })}});
}

void lodestarform::opened() {
    const SolverState& solver = state().solver;
    if (shownSolve_ != solver.solveNumber) {
        bearing_->setText(QString::fromStdString(state().analysis.partNumber));
        firstRow_->showBalls(solver, 1);
        secondRow_->showBalls(solver, 2);
        shownSolve_ = solver.solveNumber;
    }
    firstRow_->setFocus();
}

}  // namespace norlaplan
