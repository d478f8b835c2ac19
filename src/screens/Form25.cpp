#include "screens/Form25.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "screens/FormBuilder.h"
#include "screens/NumberField.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kDigits = 20;

QComboBox* formatChoice(const char* name, const QString& tip, const QStringList& pictures) {
    QComboBox* const choice = build::choice(name, tip);
    choice->addItems(pictures);
    return choice;
}

void addRow(QGridLayout& grid, int row, const char* caption, QWidget& field) {
    QLabel* const label = build::label((field.objectName() + "Label").toUtf8().constData(), caption);
    build::buddy(*label, field);
    grid.addWidget(label, row, 0);
    grid.addWidget(&field, row, 1);
}

}  // namespace

Form25::Form25(Screens& screens) : Form(screens, forms::kGraphSettings, "Graph Adjustment") {
    setWidth(Width::Own);
    xMax_ = new NumberField("Text1", "Load at the end of the axis", fields_.xMax);
    xMajor_ = new NumberField("Text2", "Load from grid line to grid line", fields_.xMajor);
    yMax_ = new NumberField("Text3", "Deflection at the end of the axis", fields_.yMax);
    yMajor_ = new NumberField("Text4", "Deflection from grid line to grid line", fields_.yMajor);
    xFormat_ =
        formatChoice("Combo1", "Picture of the numbers along the axis", {"#,###", "#,###.0", "#.00E+##"});
    yFormat_ = formatChoice("Combo2", "Picture of the numbers along the axis", {"0.00E-00", "0.####0"});
    auto* const axes = theme::spaced(new QHBoxLayout, 0);
    axes->addWidget(axisFrame("Frame1", "X AXIS", *xMax_, *xMajor_, "Numeric Format:", *xFormat_));
    axes->addWidget(axisFrame("Frame2", "Y AXIS", *yMax_, *yMajor_, "Numeric Format", *yFormat_));
    page().addLayout(axes);
    page().addStretch();
    setFooter({.previous = button("Command2", "Cancel", "Retain old settings", [this] { closed(); }),
               .main = button("Command1", "Redraw Graphs", "Draw the graph with these axes",
                              [this] { redrawGraphs(); })});
}

QGroupBox* Form25::axisFrame(const char* name, const char* caption, NumberField& maximum, NumberField& major,
                             const char* formatCaption, QComboBox& format) {
    QGroupBox* const frame = build::frame(name, caption);
    auto* const grid = theme::spaced(new QGridLayout(frame), theme::kFrameMargin);
    addRow(*grid, 0, "Maximum:", maximum);
    addRow(*grid, 1, "Major Unit:", major);
    addRow(*grid, 2, formatCaption, format);
    grid->setRowStretch(3, 1);
    for (NumberField* const field : {&maximum, &major}) {
        field->setMinimumWidth(field->fontMetrics().horizontalAdvance(QString(kDigits, QChar('0'))));
        on(field, &QLineEdit::returnPressed, "Redraw Graphs", [this] { redrawGraphs(); });
    }
    return frame;
}

void Form25::opened() {
    const GraphSettings& settings = state().graphSettings;
    fields_ = graphFields(settings);
    for (NumberField* const field : {xMax_, xMajor_, yMax_, yMajor_})
        field->refresh();
    xFormat_->setCurrentText(QString::fromStdString(settings.xFormat));
    yFormat_->setCurrentText(QString::fromStdString(settings.yFormat));
    askAgain(*xMax_);
}

void Form25::redrawGraphs() {
    const auto adjusted = adjustedSettings(state().graphSettings, fields_);
    if (const auto* const refusal = std::get_if<GraphRefusal>(&adjusted)) {
        services().messages.show(*refusal);
        for (NumberField* const field : {xMax_, xMajor_, yMax_, yMajor_}) {
            if (field->shows(fields_.*refusal->field)) askAgain(*field);
        }
        return;
    }
    GraphSettings& settings = state().graphSettings;
    settings = std::get<GraphSettings>(adjusted);
    settings.xFormat = xFormat_->currentText().toStdString();
    settings.yFormat = yFormat_->currentText().toStdString();
    screens().hide(*this);
}

}  // namespace norlaplan
