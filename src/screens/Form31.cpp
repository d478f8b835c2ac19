#include "screens/Form31.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>

#include "fits/FitMaterials.h"
#include "fits/ThermalFits.h"
#include "fits/ThermalFitsGraph.h"
#include "fits/ThermalFitsReport.h"
#include "numbers/RuntimeError.h"
#include "screens/Decoding.h"
#include "screens/DocumentOutput.h"
#include "screens/FitLegend.h"
#include "screens/FormBuilder.h"
#include "screens/GraphView.h"
#include "screens/NumberField.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr const char* kCoefficient = "Thermal Coefficient";
constexpr int kFieldDigits = 14;
constexpr int kCommentLines = 2;
constexpr int kOtherRow = static_cast<int>(kFitMaterials.size());

/// A grid of names, fields and units whose columns have the same width in every frame.
QGridLayout* entryGrid(QGroupBox& frame) {
    auto* const grid = theme::spaced(new QGridLayout(&frame), theme::kFrameMargin);
    const QFontMetrics metrics(QGuiApplication::font());
    const auto widthOf = [&](const char* words) {
        return metrics.horizontalAdvance(QString::fromUtf8(words));
    };
    grid->setColumnMinimumWidth(0, widthOf(kCoefficient));
    grid->setColumnMinimumWidth(2, std::max(widthOf("in/in/°F."), widthOf("m/m/°C.")));
    grid->setColumnStretch(1, 1);
    return grid;
}

/// The label leads to the field, which is spoken of by its frame, too.
void addRow(QGridLayout& grid, QLabel* label, QWidget* field, const QString& spoken, QLabel* unit = nullptr) {
    const int row = grid.count() == 0 ? 0 : grid.rowCount();
    build::buddy(*label, *field);
    field->setAccessibleName(spoken);
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(QString(kFieldDigits, QLatin1Char('0'))));
    grid.addWidget(label, row, 0);
    grid.addWidget(field, row, 1);
    if (unit != nullptr) grid.addWidget(unit, row, 2);
}

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

}  // namespace

Form31::Form31(Screens& screens) : Form(screens, forms::kThermalFits, "Modified Fitups") {
    ThermalFits& fits = state().thermalFits;
    high_ = new NumberField("Text1", "The bearing gets as warm as this", fits.highTempText);
    low_ = new NumberField("Text2", "The bearing gets as cold as this", fits.lowTempText);
    highUnit_ = build::label("Label2");
    lowUnit_ = build::label("Label4");
    shaft_ = makePart("Combo1", "Text3", "Label6", "Shaft", fits.shaftExpansionText);
    housing_ = makePart("Combo2", "Text4", "Label9", "Housing", fits.housingExpansionText);
    layOut();
    makeButtons();
}

Form31::Part Form31::makePart(const char* list, const char* field, const char* unit, const QString& spoken,
                              std::string& text) {
    const Part part{build::choice(list, spoken + " material: it fills in the coefficient"),
                    new NumberField(field, "Expansion of the " + spoken.toLower() + " per degree", text),
                    build::label(unit)};
    // Never narrower than its longest name.
    part.material->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    for (const FitMaterial& material : kFitMaterials)
        part.material->addItem(material.name);
    part.material->addItem(kOtherMaterial);
    on(part.material, &QComboBox::currentIndexChanged, "Material", [this, part] { takeMaterial(part); });
    // A coefficient of the user's own is not that of the material in the list.
    on(part.expansion, &QLineEdit::textEdited, "Coefficient", [part] {
        const QSignalBlocker quiet(part.material);
        part.material->setCurrentIndex(kOtherRow);
    });
    return part;
}

QGroupBox* Form31::temperatureFrame() {
    QGroupBox* const frame = build::frame("Frame1", "Temperature Extremes");
    QGridLayout& grid = *entryGrid(*frame);
    addRow(grid, build::label("Label1", "High Temperature"), high_, "High Temperature", highUnit_);
    addRow(grid, build::label("Label3", "Low Temperature"), low_, "Low Temperature", lowUnit_);
    return frame;
}

QGroupBox* Form31::partFrame(const char* name, const QString& caption, const Part& part,
                             std::array<const char*, 2> labels) {
    QGroupBox* const frame = build::frame(name, caption);
    QGridLayout& grid = *entryGrid(*frame);
    addRow(grid, build::label(labels[0], "Material"), part.material, caption + ", Material");
    addRow(grid, build::label(labels[1], kCoefficient), part.expansion, caption + ", " + kCoefficient,
           part.unit);
    return frame;
}

void Form31::layOut() {
    auto* const entries = theme::spaced(new QVBoxLayout, 0);
    entries->addWidget(temperatureFrame());
    entries->addWidget(partFrame("Frame2", "Shaft Data", shaft_, {"Label5", "Label7"}));
    entries->addWidget(partFrame("Frame3", "Housing Data", housing_, {"Label8", "Label21"}));
    entries->addStretch();

    QGroupBox* const drawing = build::frame("Drawing", "Size of parts vs. Temperature");
    picture_ = new GraphView("Picture1", "Size of parts vs. Temperature");
    theme::spaced(new QVBoxLayout(drawing), theme::kFrameMargin)->addWidget(picture_);

    auto* const pictures = theme::spaced(new QVBoxLayout, 0);
    pictures->addWidget(drawing, 1);
    pictures->addWidget(fitLegend("Frame6"));
    auto* const above = theme::spaced(new QHBoxLayout, 0);
    above->addLayout(entries);
    above->addLayout(pictures, 1);

    shaftLine_ = build::valueLabel("Label10");
    housingLine_ = build::valueLabel("Label11");
    comment_ = build::label("Label12");
    comment_->setWordWrap(true);
    comment_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    comment_->setMinimumHeight(kCommentLines * comment_->fontMetrics().lineSpacing());
    auto* const below = theme::spaced(new QHBoxLayout, 0);
    below->addWidget(build::labelFrame("Frame4", "Suggested Shaft and Housing Sizes at Room Temperature",
                                       {shaftLine_, housingLine_}));
    below->addWidget(build::labelFrame("Frame5", "Comments", {comment_}), 1);
    page().addLayout(above, 1);
    page().addLayout(below);
}

void Form31::makeButtons() {
    QPushButton* const calculation =
        button("Command1", "Calculate", "Perform Calculation", [this] { calculate(); });
    enterMovesTo(*high_, [this] { return low_; });
    enterMovesTo(*low_, [this] { return shaft_.expansion; });
    enterMovesTo(*shaft_.expansion, [this] { return housing_.expansion; });
    enterMovesTo(*housing_.expansion, [calculation] { return calculation; });
    setFooter({.mainMenu = button("Command2", "&Main Menu", "Return to Main Menu",
                                  [this] { screens().showAlone(forms::kMainMenu); }),
               .others = {button("Command3", "Print", "Print Results of Calculations", [this] { print(); }),
                          button("Command4", "Save", "Save Results to file", [this] { save(); })},
               .main = calculation});
}

void Form31::opened() {
    if (refreshThermalFits(state())) {
        for (const Part& part : {shaft_, housing_}) {
            const QSignalBlocker quiet(part.material);
            part.material->setCurrentIndex(0);
        }
    }
    refreshFields();
    showResults();
    drawIfPossible();
    askAgain(*high_);
}

void Form31::takeMaterial(const Part& part) {
    const int row = part.material->currentIndex();
    if (row == kOtherRow) {
        part.expansion->clear();
        part.expansion->setFocus();
    } else if (row >= 0) {
        part.expansion->setText(
            text(expansionText(kFitMaterials.at(static_cast<std::size_t>(row)), state().units)));
    }
}

void Form31::refreshFields() {
    const ThermalFits& fits = state().thermalFits;
    for (NumberField* const field : {high_, low_, shaft_.expansion, housing_.expansion})
        field->refresh();
    for (QLabel* const unit : {highUnit_, lowUnit_})
        unit->setText(text(fits.fitTempUnit));
    for (QLabel* const unit : {shaft_.unit, housing_.unit})
        unit->setText(text(fits.expansionUnit));
}

void Form31::showResults() {
    const ThermalFits& fits = state().thermalFits;
    shaftLine_->setText(text(fits.shaftLine));
    housingLine_->setText(text(fits.housingLine));
    comment_->setText(text(fits.comment));
}

void Form31::draw() {
    picture_->clear();
    picture_->showGraph(thermalFitsGraph(state()));
}

void Form31::drawIfPossible() {
    try {
        draw();
    } catch (const RuntimeError&) {
        // Temperatures without a range have sizes but no picture, which Calculate has said.
    }
}

bool Form31::compute() {
    if (!bearingInHand(screens())) return false;
    std::optional<Message> refusal;
    try {
        refusal = computeThermalFits(state());
    } catch (...) {
        refreshFields();
        throw;
    }
    refreshFields();
    if (refusal)
        services().messages.show(*refusal);
    else
        showResults();
    return !refusal;
}

void Form31::calculate() {
    if (compute()) draw();
}

void Form31::print() {
    // What is printed always belongs to the fields.
    if (!compute()) return;
    drawIfPossible();
    printDocument(services(), thermalFitsDocument(state(), services().clock));
}

void Form31::save() {
    if (!compute()) return;
    drawIfPossible();
    saveAs(thermalFitsDocument(state(), services().clock));
}

}  // namespace norlaplan
