#include "screens/Form26.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "deflection/AxisRule.h"
#include "deflection/DeflectionFieldEntry.h"
#include "deflection/DeflectionReport.h"
#include "deflection/DeflectionTable.h"
#include "screens/DocumentOutput.h"
#include "screens/FormBuilder.h"
#include "screens/GraphView.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr Paper kPicture{8.5, kDeflectionPicture};

/// The graph is about as high as wide: all of it shows, rather than as much width as there is.
class WholeGraph : public GraphView {
  public:
    using GraphView::GraphView;
    bool hasHeightForWidth() const override { return false; }
};

constexpr const char* kHint =
    "Move the pointer along the curve to read off load and deflection; Ctrl+C copies the graph.";

}  // namespace

Form26::Form26(Screens& screens) : Form(screens, forms::kDeflectionGraph, "Deflection Graph") {
    graph_ = new WholeGraph("Picture1", "Deflection graph");
    graph_->onReadout([this](const std::optional<GraphMark>& mark) { showReadout(mark); });
    readout_ = build::label("Readout");
    page().addWidget(graph_, 1);
    page().addWidget(readout_, 0, Qt::AlignHCenter);
    makeButtons();
}

void Form26::makeButtons() {
    QPushButton* const previous = button("Command2", "<< &Previous", "Return to deflection constants",
                                         [this] { this->screens().show(forms::kDeflection); });
    QPushButton* const settings = button("Command3", "&Change Graph Settings", "Set the axes of the graph",
                                         [this] { changeSettings(); });
    QPushButton* const table =
        button("CopyTable", "Copy &Table", "Copy the points of the curve for a spreadsheet (Ctrl+Shift+C)",
               [this] { copyTable(); });
    QPushButton* const print = button("Command1", "P&rint", "Print the graph", [this] { this->print(); });
    QPushButton* const save = button("Command4", "&Save", "Save the graph to file", [this] { this->save(); });
    setFooter({.previous = previous, .others = {settings, table, print}, .main = save});
    auto* const copy = new QAction("Copy &Table", graph_);
    copy->setObjectName("CopyTableItem");
    copy->setShortcut(QKeySequence("Ctrl+Shift+C"));
    copy->setShortcutContext(Qt::WindowShortcut);
    addAction(copy);
    on(copy, &QAction::triggered, "Copy Table", [this] { copyTable(); });
}

QSize Form26::sizeFor(const QSize& room) const {
    return QSize(sizeHint().width(), room.height()).boundedTo(room);
}

void Form26::opened() {
    redraw();
    graph_->setFocus();
}

void Form26::cameBack() {
    redraw();
}

std::optional<DeflectionGraphData> Form26::curveData() const {
    const ProgramState& now = state();
    if (!hasDeflection(now) || !hasCurve(now.deflection, now.graphLoad)) return std::nullopt;
    return deflectionGraphData(now.deflection, now.graphLoad, now.units);
}

std::optional<Document> Form26::document() const {
    const auto curve = curveData();
    if (!curve) return std::nullopt;
    return deflectionDocument(*curve, state().graphSettings, state().user.userName, services().clock);
}

void Form26::redraw() {
    const auto curve = curveData();
    if (curve) {
        GraphSettings& settings = state().graphSettings;
        applyAxisRule(settings, curve->dataMaxX, curve->dataMaxY);
        graph_->showGraph(deflectionGraph(*curve, settings), kPicture);
    }
    graph_->setVisible(curve.has_value());
    readout_->setText(curve ? kHint : "No curve has been calculated yet.");
}

void Form26::showReadout(const std::optional<GraphMark>& mark) {
    readout_->setText(mark ? QString::fromStdString(mark->label.text) : QString(kHint));
}

void Form26::changeSettings() {
    screens().show(forms::kGraphSettings);
}

void Form26::copyTable() {
    if (const auto curve = curveData())
        QGuiApplication::clipboard()->setText(QString::fromStdString(deflectionTable(*curve)));
}

void Form26::print() {
    if (const auto paper = document()) printDocument(services(), *paper);
}

void Form26::save() {
    if (const auto file = document()) saveAs(*file);
}

}  // namespace norlaplan
