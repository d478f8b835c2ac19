#include "screens/Form24.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "deflection/ConstantsReport.h"
#include "deflection/DeflectionFieldEntry.h"
#include "deflection/DeflectionGraph.h"
#include "numbers/FormatNumber.h"
#include "screens/BusyPointer.h"
#include "screens/Decoding.h"
#include "screens/DocumentOutput.h"
#include "screens/FormBuilder.h"
#include "screens/GraphPicture.h"
#include "screens/NumberField.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kEntryDigits = 9;
constexpr int kResultDigits = 11;
constexpr int kAxialPointCharacters = 33;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

void makeAsWideAs(QWidget& widget, int characters) {
    widget.setFixedWidth(widget.fontMetrics().horizontalAdvance(QString(characters, QChar('0'))) + 16);
}

/// A field that shows a value, to be selected and copied but not changed.
QLineEdit* valueField(const char* name) {
    QLineEdit* const field = build::edit(name);
    field->setReadOnly(true);
    field->setFont(theme::valueFont());
    field->setAlignment(Qt::AlignRight);
    QPalette colours = field->palette();
    colours.setColor(QPalette::Base, colours.color(QPalette::Window));
    field->setPalette(colours);
    makeAsWideAs(*field, kResultDigits);
    return field;
}

QLabel* unitLabel(const char* field) {
    return build::label((std::string(field) + "Unit").c_str());
}

template <typename Value>
Value valueOf(const char* name) {
    return {valueField(name), unitLabel(name)};
}

QLabel* heading(const char* name, const QString& caption, Qt::AlignmentFlag side) {
    QLabel* const label = build::label(name, caption);
    build::makeBold(*label);
    label->setAlignment(side | Qt::AlignVCenter);
    return label;
}

void showAll(const std::vector<QWidget*>& widgets, bool shown) {
    for (QWidget* const widget : widgets)
        widget->setVisible(shown);
}

/// The graph that a small picture shows: all of the curve, whatever axes the large one has.
Graph graphOf(const DeflectionGraphData& data) {
    GraphSettings settings;
    settings.xMax = settings.xMajor = data.dataMaxX;
    settings.yMax = settings.yMajor = data.dataMaxY;
    return deflectionGraph(data, settings);
}

}  // namespace

Form24::Form24(Screens& screens)
    : Form(screens, forms::kDeflection, "Deflection due to Load for Preloaded Bearings") {
    auto* const above = theme::spaced(new QHBoxLayout, 0);
    above->addWidget(entryFrame());
    above->addWidget(rateFrame(), 1);
    page().addLayout(above);
    page().addWidget(curveFrame(), 1);
    page().addWidget(constantFrame());
    makeButtons();
}

QLabel* Form24::addEntry(QGridLayout& grid, int row, const char* caption, NumberField& field) {
    const QByteArray name = field.objectName().toUtf8();
    QLabel* const label = build::label((name + "Label").constData(), caption);
    build::buddy(*label, field);
    makeAsWideAs(field, kEntryDigits);
    QLabel* const unit = unitLabel(name.constData());
    grid.addWidget(label, row, 0);
    grid.addWidget(&field, row, 1);
    grid.addWidget(unit, row, 2);
    on(&field, &QLineEdit::returnPressed, "Calculate", [this] { calculate(); });
    if (row > 1) notRadial_.insert(notRadial_.end(), {label, &field, unit});
    return unit;
}

QGroupBox* Form24::entryFrame() {
    DeflectionFields& fields = state().deflectionFields;
    entries_ = build::frame("Frame1", "PRELOAD AND MAXIMUM LOADS");
    auto* const grid = theme::spaced(new QGridLayout(entries_), theme::kFrameMargin);
    preload_ = new NumberField("Text3", "", fields.preload);
    maxRadial_ = new NumberField("Text14", "Radial load at the end of its curve", fields.maxRadialLoad);
    maxAxial_ = new NumberField("Text15", "Axial load at the end of its curve", fields.maxAxialLoad);
    maxMoment_ = new NumberField("Text16", "Moment at the end of its curve", fields.maxMomentLoad);
    entryUnits_ = {
        addEntry(*grid, 0, "Preload", *preload_), addEntry(*grid, 1, "Max Radial Load", *maxRadial_),
        addEntry(*grid, 2, "Max Axial Load", *maxAxial_), addEntry(*grid, 3, "Max Moment Load", *maxMoment_)};
    preloads_ = build::choice("Combo2", "Usual preloads; the one that is chosen goes into the field",
                              "List of preloads");
    preloads_->setPlaceholderText("List");
    makeAsWideAs(*preloads_, kEntryDigits);
    on(preloads_, &QComboBox::currentIndexChanged, "Preload",
       [this] { choosePreload(preloads_->currentIndex()); });
    connect(preload_, &QLineEdit::textChanged, this, [this] { showPreloads(); });
    grid->addWidget(preloads_, 0, 3);
    grid->setRowStretch(4, 1);
    return entries_;
}

void Form24::addRates(QGridLayout& grid, int row, const char* load, const Value& rate, const Value& relief) {
    QLabel* const label = heading((std::string(load) + "Rates").c_str(), load, Qt::AlignLeft);
    grid.addWidget(label, row, 0);
    int column = 1;
    for (const Value& value : {rate, relief}) {
        const bool isRate = column == 1;
        value.field->setAccessibleName(QString(load) + (isRate ? " spring rate" : " relief load"));
        value.field->setToolTip(isRate ? "Load per deflection up to the relief load"
                                       : "Load at which the preload is gone");
        value.field->setAccessibleDescription(value.field->toolTip());
        grid.addWidget(value.field, row, column++);
        grid.addWidget(value.unit, row, column++);
    }
    if (row > 1)
        notRadial_.insert(notRadial_.end(), {label, rate.field, rate.unit, relief.field, relief.unit});
}

QGroupBox* Form24::rateFrame() {
    QGroupBox* const frame = build::frame("Frame2", "SPRING RATES AND RELIEF LOADS");
    auto* const grid = theme::spaced(new QGridLayout(frame), theme::kFrameMargin);
    grid->addWidget(heading("RateHead", "Spring Rate", Qt::AlignRight), 0, 1);
    grid->addWidget(heading("ReliefHead", "Relief Load", Qt::AlignRight), 0, 3);
    addRates(*grid, 1, "Radial", radialRate_ = valueOf<Value>("Text8"),
             radialRelief_ = valueOf<Value>("Text9"));
    addRates(*grid, 2, "Axial", axialRate_ = valueOf<Value>("Text10"),
             axialRelief_ = valueOf<Value>("Text11"));
    addRates(*grid, 3, "Moment", momentRate_ = valueOf<Value>("Text12"),
             momentRelief_ = valueOf<Value>("Text13"));
    resultsFor_ = build::label("ResultsFor");
    resultsFor_->setFont(theme::noteFont());
    grid->addWidget(resultsFor_, 4, 0, 1, 5);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(5, 1);
    return frame;
}

Form24::Curve Form24::addCurve(QGridLayout& grid, int column, DeflectionLoad load, const char* picture,
                               const char* name) {
    const QString named(name);
    const Curve curve{load,
                      new GraphPicture(picture, named + " deflection graph",
                                       "Click here to view and print " + named + " Graph"),
                      build::label((std::string(picture) + "End").c_str())};
    curve.end->setFont(theme::noteFont());
    curve.end->setAlignment(Qt::AlignRight);
    grid.addWidget(heading((std::string(picture) + "Head").c_str(), named, Qt::AlignLeft), 0, column);
    grid.addWidget(curve.picture, 1, column);
    grid.addWidget(curve.end, 2, column);
    grid.setColumnStretch(column, 1);
    on(curve.picture, &QToolButton::clicked, name + std::string(" deflection graph"),
       [this, load] { openGraph(load); });
    return curve;
}

QGroupBox* Form24::curveFrame() {
    QGroupBox* const frame = build::frame("Frame3", "DEFLECTION CURVES");
    auto* const grid = theme::spaced(new QGridLayout(frame), theme::kFrameMargin);
    curves_ = {addCurve(*grid, 0, DeflectionLoad::Radial, "Picture1", "Radial"),
               addCurve(*grid, 1, DeflectionLoad::Axial, "Picture2", "Axial"),
               addCurve(*grid, 2, DeflectionLoad::Moment, "Picture3", "Moment")};
    grid->setRowStretch(1, 1);
    return frame;
}

void Form24::addConstant(QGridLayout& grid, int row, int column, const char* caption, const Value& value) {
    QLabel* const label =
        build::label((value.field->objectName() + "Label").toUtf8().constData(), QString(caption));
    build::buddy(*label, *value.field);
    grid.addWidget(label, row, column);
    grid.addWidget(value.field, row, column + 1);
    grid.addWidget(value.unit, row, column + 2);
    const bool ofFourPoint = column > 0;
    if (ofFourPoint) fourPoint_.insert(fourPoint_.end(), {label, value.field, value.unit});
    if (!ofFourPoint && row > 0) notRadial_.insert(notRadial_.end(), {label, value.field, value.unit});
}

QGroupBox* Form24::constantFrame() {
    constants_ = build::frame("Frame4", "NON-LINEAR CONSTANTS");
    auto* const grid = theme::spaced(new QGridLayout(constants_), theme::kFrameMargin);
    addConstant(*grid, 0, 0, "RADIAL CONST.", radialConstant_ = valueOf<Value>("Text2"));
    addConstant(*grid, 1, 0, "MOMENT CONST. 1", momentConstant1_ = valueOf<Value>("Text4"));
    addConstant(*grid, 2, 0, "MOMENT CONST. 2", momentConstant2_ = valueOf<Value>("Text5"));
    addConstant(*grid, 0, 3, "INITIAL TILT", initialTilt_ = valueOf<Value>("Text6"));
    addConstant(*grid, 1, 3, "INITAL ANGLE", initialAngle_ = valueOf<Value>("Text7"));
    initialTilt_.unit->setText("radians");
    initialAngle_.unit->setText("degrees");
    axialPoints_ = build::choice("Combo1", "Load, contact angle in degrees and deflection");
    axialPoints_->setFont(theme::valueFont());
    makeAsWideAs(*axialPoints_, kAxialPointCharacters);
    QLabel* const label = build::label("Combo1Label", "AXIAL DATA PTS.");
    build::buddy(*label, *axialPoints_);
    auto* const points = theme::spaced(new QHBoxLayout, 0);
    points->addWidget(label);
    points->addWidget(axialPoints_);
    points->addStretch();
    grid->addLayout(points, 2, 3, 1, 4);
    notRadial_.insert(notRadial_.end(), {label, axialPoints_});
    grid->setColumnStretch(6, 1);
    return constants_;
}

void Form24::makeButtons() {
    print_ = button("Command2", "&Print", "Print the constants", [this] { print(); });
    setFooter(
        {.mainMenu = button("Command1", "&Main Menu", "Return to Main Menu", [this] { goToMainMenu(); }),
         .others = {print_},
         .main = button("Command3", "&Calculate", "Create deflection graphs", [this] { calculate(); })});
}

QSize Form24::sizeFor(const QSize& room) const {
    QSize size = sizeHint();
    if (!state().options.deflectionOption) size -= QSize(0, constants_->sizeHint().height());
    return size.boundedTo(room);
}

void Form24::opened() {
    prepareDeflectionFields(state());
    showUnits();
    showStyle();
    showFields();
    showResults();
    askAgain(*preload_);
}

void Form24::showFields() {
    const QSignalBlocker silent(preloads_);
    preloads_->clear();
    for (const std::string& preload : offeredPreloads(state().units))
        preloads_->addItem(text(preload));
    for (NumberField* const field : {preload_, maxRadial_, maxAxial_, maxMoment_})
        field->refresh();
    showPreloads();
}

void Form24::showPreloads() {
    const QSignalBlocker silent(preloads_);
    preloads_->setCurrentIndex(preloads_->findText(preload_->text()));
}

void Form24::showUnits() {
    const UnitMode& units = state().units;
    const DeflectionUnits of = deflectionUnits(units);
    const std::pair<QLabel*, const std::string&> all[] = {
        {entryUnits_[0], units.lengthUnit},         {entryUnits_[1], units.loadUnitWord},
        {entryUnits_[2], units.loadUnitWord},       {entryUnits_[3], units.momentUnitWord},
        {radialRate_.unit, of.springRate},          {radialRelief_.unit, units.loadUnitWord},
        {axialRate_.unit, of.springRate},           {axialRelief_.unit, units.loadUnitWord},
        {momentRate_.unit, of.momentSpringRate},    {momentRelief_.unit, units.momentUnitWord},
        {radialConstant_.unit, of.radialConstant},  {momentConstant1_.unit, of.momentConstant1},
        {momentConstant2_.unit, of.momentConstant2}};
    for (const auto& [label, unit] : all)
        label->setText(text(unit));
}

void Form24::showStyle() {
    const BearingSpec& bearing = state().bearing;
    const QString tip = text(preloadTip(bearing.styleLetter, state().units));
    preload_->setToolTip(tip);
    preload_->setAccessibleDescription(tip);
    entries_->setTitle(text("PRELOAD AND MAXIMUM LOADS OF " + bearing.partNumber));
    showAll(notRadial_, bearing.styleLetter != "C");
    showAll(fourPoint_, bearing.styleLetter == "X");
}

void Form24::showResults() {
    const bool there = hasDeflection(state());
    const DeflectionTexts texts =
        there ? deflectionTexts(state().deflection, state().units) : DeflectionTexts{};
    radialRate_.field->setText(text(texts.radialSpringRate));
    radialRelief_.field->setText(text(texts.radialReliefLoad));
    axialRate_.field->setText(text(texts.axialSpringRate));
    axialRelief_.field->setText(text(texts.axialReliefLoad));
    momentRate_.field->setText(text(texts.momentSpringRate));
    momentRelief_.field->setText(text(texts.momentReliefLoad));
    resultsFor_->setText(resultsFor());
    showConstants(texts);
    for (const Curve& curve : curves_)
        showCurve(curve);
    print_->setEnabled(there);
}

void Form24::showConstants(const DeflectionTexts& texts) {
    radialConstant_.field->setText(text(texts.radialConstant));
    momentConstant1_.field->setText(text(texts.momentConstant1));
    momentConstant2_.field->setText(text(texts.momentConstant2));
    initialTilt_.field->setText(text(texts.initialTilt));
    initialAngle_.field->setText(text(texts.initialAngle));
    axialPoints_->clear();
    for (const std::string& row : texts.axialPoints)
        axialPoints_->addItem(text(row));
}

QString Form24::resultsFor() const {
    if (!hasDeflection(state())) return {};
    const DeflectionResult& result = state().deflection;
    if (result.input.preload == 0.0) return "With no preload there are none: the curves bend from the start.";
    return text(
        (isPreloadAxial(result.styleLetter) ? "At an axial preload of " : "At a diametral preload of ") +
        FormatNumber(result.input.preload * state().units.lengthFactor, "0.0000##") + " " +
        state().units.lengthUnit);
}

void Form24::showCurve(const Curve& curve) {
    curve.end->setText(" ");
    const bool mayBe = state().bearing.styleLetter != "C" || curve.load == DeflectionLoad::Radial;
    if (!mayBe) return curve.picture->showWords("NO GRAPH");
    if (!hasDeflection(state())) return curve.picture->showWords("Not calculated yet");
    const DeflectionGraphData shown = deflectionGraphData(state().deflection, curve.load, state().units);
    if (shown.dataMaxX <= 0.0 || shown.dataMaxY <= 0.0) return curve.picture->showWords("NO GRAPH");
    curve.picture->showGraph(graphOf(shown));
    curve.end->setText(text(FormatNumber(shown.dataMaxX, "#,##0.0") + " " + shown.loadUnit + ": " +
                            FormatNumber(shown.dataMaxY, "0.000000") + " " + shown.deflectionUnit));
}

void Form24::choosePreload(int row) {
    if (row >= 0) preload_->setText(preloads_->itemText(row));
}

void Form24::calculate() {
    if (!bearingInHand(screens())) return;
    const auto entered = enteredDeflection(state());
    if (const auto* const refusal = std::get_if<DeflectionRefusal>(&entered)) {
        services().messages.show(*refusal);
        for (NumberField* const field : {preload_, maxRadial_, maxAxial_, maxMoment_}) {
            if (field->shows(state().deflectionFields.*refusal->field)) askAgain(*field);
        }
        return;
    }
    state().deflection = {};
    showResults();
    const BusyPointer busy;
    solveDeflection(state(), std::get<DeflectionEntry>(entered), services().messages);
    showResults();
}

void Form24::openGraph(DeflectionLoad load) {
    state().graphLoad = load;
    state().graphSettings.settingsAdjusted = "N";
    screens().show(forms::kDeflectionGraph);
}

void Form24::print() {
    const ProgramState& now = state();
    if (hasDeflection(now))
        printDocument(services(),
                      deflectionConstantsDocument(now.deflection, now.bearing, now.units, services().clock));
}

void Form24::goToMainMenu() {
    screens().showAlone(forms::kMainMenu);
}

void Form24::closed() {
    goToMainMenu();
}

}  // namespace norlaplan
