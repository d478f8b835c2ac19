#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "screens/DataForm.h"
#include "screens/FormBuilder.h"
#include "screens/Theme.h"

namespace norlaplan {

/// A row of entry: caption, field and unit, and where there is one the same in the other unit.
struct EntrySpec {
    const char *control, *caption, *unit;
    const char *other = nullptr, *otherUnit = nullptr;
    const char* tip = "";
    bool pairOnly = false;
};

/// A row of results: caption and one field a column, each column with its name.
struct ResultSpec {
    const char *caption, *subcaption;
    std::vector<const char*> controls;
    const char* captionName = nullptr;  ///< of a label whose text changes with the units
};

namespace {

constexpr int kEntryDigits = 13;  // "0.00040000002": all that a 32-bit number shows
constexpr int kOtherDigits = 10;
constexpr int kResultDigits = 10;
constexpr int kCheckDigits = 19;
constexpr int kBetweenRows = 4;
constexpr int kBetweenColumns = 6;
enum EntryColumn { kCaption, kValue, kUnit, kOther, kOtherUnit, kEntryColumns };

constexpr EntrySpec kBearingEntries[] = {
    {"Text1", "Ball Diameter", "in.", "Text15", "mm", "Diameter of a ball"},
    {"Text2", "Pitch Diameter", "in.", "Text16", "mm", "Diameter of the circle of the ball centers"},
    {"Text3", "No. of Balls", "", nullptr, nullptr, "Balls of one row"},
    {"Text4", "Free Contact Angle, deg.", "", "Text17", "rad",
     "Contact angle without load; it sets the diametral clearance"},
    {"Text5", "Conformity: Inner Race", "%", nullptr, nullptr,
     "Groove radius of the inner race in per cent of the ball diameter"},
    {"Text6", "Conformity: Outer Race", "%", nullptr, nullptr,
     "Groove radius of the outer race in per cent of the ball diameter"},
    {"Text43", "DC (+) or Preload (-)", "in.", "Text44", "mm",
     "Diametral clearance, negative for a preload; it sets the contact angle"},
    {"Text13", "Gap Distance", "in.", "Text45", "mm", "Gap between the rings of a pair", true},
    {"Text66", "Centerline Spacing", "in.", "Text65", "mm", "Distance of the ball rows of a pair", true},
};
constexpr EntrySpec kLoadEntries[] = {
    {"Text14", "Radial, lbs.", "", "Text20", "N", "Load across the axis"},
    {"Text48", "Axial, lbs.", "", "Text50", "N", "Load along the axis"},
    {"Text49", "Moment, in-lbs.", "", "Text51", "N-m", "Overturning moment"},
};

constexpr EntrySpec kFrictionEntries[] = {
    {"Text63", "Starting", "", nullptr, nullptr, "Coefficient of friction at the start"},
    {"Text64", "Running", "", nullptr, nullptr, "Coefficient of friction while running"},
};

void setDigits(QWidget& field, int digits) {
    // The margins of a field beside its digits.
    const int margins = field.sizeHint().height() / 2;
    field.setFixedWidth(field.fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0'))) + margins);
}

QLabel* captionLabel(const QString& control, const char* caption) {
    return build::label(("Caption" + control).toUtf8().constData(), QString::fromUtf8(caption));
}

QLabel* unitLabel(const char* control, const char* unit) {
    return build::label(("Unit" + QByteArray(control)).constData(), QString::fromUtf8(unit));
}

QGridLayout* tightGrid(QGroupBox& frame) {
    auto* const grid = theme::spaced(new QGridLayout(&frame), theme::kGap);
    grid->setHorizontalSpacing(kBetweenColumns);
    grid->setVerticalSpacing(kBetweenRows);
    return grid;
}

QLabel* columnHead(const char* caption) {
    QLabel* const head = build::label("", caption);
    head->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    return head;
}

}  // namespace

QGridLayout* DataForm::entryGrid(QGroupBox& frame) {
    QGridLayout* const grid = tightGrid(frame);
    // Values and units line up over all frames of a column: the captions take what is left.
    grid->setColumnStretch(kCaption, 1);
    grid->setColumnMinimumWidth(kUnit, QLabel(QStringLiteral("in.")).sizeHint().width());
    grid->setColumnMinimumWidth(kOtherUnit, QLabel(QStringLiteral("N-m")).sizeHint().width());
    return grid;
}

QLineEdit* DataForm::entryField(const EntrySpec& spec, const char* control, const char* unit) {
    QString spoken = QString::fromUtf8(spec.caption);
    if (*unit != '\0') spoken += QStringLiteral(", ") + QString::fromUtf8(unit);
    QLineEdit* const field = build::edit(control, QString::fromUtf8(spec.tip), spoken);
    field->setAlignment(Qt::AlignRight);
    setDigits(*field, control == spec.control ? kEntryDigits : kOtherDigits);
    entries_.push_back(field);
    if (spec.pairOnly) pairOnly_.push_back(field);
    for (const AnalysisNumber& number : analysisNumbers()) {
        if (QString::fromUtf8(number.control) == field->objectName()) numbers_.push_back({&number, field});
    }
    return field;
}

QLineEdit* DataForm::addEntry(QGridLayout& grid, const EntrySpec& spec) {
    const int row = grid.rowCount();
    QLineEdit* const field = entryField(spec, spec.control, spec.unit);
    QLabel* const caption = captionLabel(field->objectName(), spec.caption);
    caption->setBuddy(field);
    if (spec.pairOnly) pairOnly_.push_back(caption);
    grid.addWidget(caption, row, kCaption);
    grid.addWidget(field, row, kValue);
    grid.addWidget(unitLabel(spec.control, spec.unit), row, kUnit);
    if (spec.other != nullptr) {
        grid.addWidget(entryField(spec, spec.other, spec.otherUnit), row, kOther);
        grid.addWidget(unitLabel(spec.other, spec.otherUnit), row, kOtherUnit);
    }
    return field;
}

void DataForm::addChoices(QGridLayout& grid, const char* caption, QButtonGroup& group,
                          std::initializer_list<QRadioButton*> options) {
    const int row = grid.rowCount();
    auto* const line = theme::spaced(new QHBoxLayout, 0);
    line->addWidget(build::label("", caption));
    line->addStretch();
    int id = 0;
    for (QRadioButton* const option : options) {
        group.addButton(option, id++);
        line->addWidget(option);
    }
    grid.addLayout(line, row, kCaption, 1, kEntryColumns);
}

QLineEdit* DataForm::resultField(const char* control, const QString& spoken) {
    QLineEdit* const field = build::edit(control, {}, spoken);
    field->setReadOnly(true);
    field->setPalette(theme::paper());
    field->setAlignment(Qt::AlignRight);
    setDigits(*field, kResultDigits);
    results_.push_back(field);
    return field;
}

QLabel* DataForm::addResults(QGridLayout& grid, const ResultSpec& spec) {
    const int row = grid.rowCount();
    QLabel* const caption = captionLabel(QString::fromUtf8(spec.controls.front()), spec.caption);
    grid.addWidget(caption, row, 0);
    if (*spec.subcaption != '\0') grid.addWidget(build::label("", spec.subcaption), row, 1);
    int column = 2;
    for (const char* const control : spec.controls) {
        const auto* const head = grid.itemAtPosition(0, column) == nullptr
                                     ? nullptr
                                     : dynamic_cast<QLabel*>(grid.itemAtPosition(0, column)->widget());
        QStringList spoken = {QString::fromUtf8(spec.caption), QString::fromUtf8(spec.subcaption),
                              head == nullptr ? QString() : head->text()};
        spoken.removeAll(QString());
        grid.addWidget(resultField(control, spoken.join(QStringLiteral(", "))), row, column++,
                       Qt::AlignHCenter);
    }
    return caption;
}

QGroupBox* DataForm::customerFrame() {
    QGroupBox* const frame = build::frame("Frame3", "Customer Data");
    auto* const line = theme::spaced(new QHBoxLayout(frame), theme::kGap);
    const auto add = [&](const char* control, const char* caption, const char* tip, int stretch) {
        QLineEdit* const field = build::edit(control, tip);
        QLabel* const label = captionLabel(field->objectName(), caption);
        build::buddy(*label, *field);
        line->addWidget(label);
        line->addWidget(field, stretch);
        entries_.push_back(field);
    };
    add("Text22", "Part Number", "Bearing of the last solve", 3);
    add("Text24", "Date", "Day of the last solve", 2);
    return frame;
}

QGroupBox* DataForm::bearingFrame() {
    QGroupBox* const frame = build::frame("Frame1", "Bearing Data");
    QGridLayout* const grid = entryGrid(*frame);
    addChoices(*grid, "Style", styles_,
               {build::option("Option5", "Four-point", "Four-point contact: style X"),
                build::option("Option6", "Back-to-back", "Back-to-back pair: style B"),
                build::option("Option7", "Face-to-face", "Face-to-face pair: style F")});
    for (const EntrySpec& spec : kBearingEntries)
        addEntry(*grid, spec);
    QRadioButton* const positive =
        build::option("Option3", "Positive", "The spacing is stored as its amount");
    QRadioButton* const negative = build::option("Option4", "Negative", "The spacing is stored below zero");
    addChoices(*grid, "Sign of the spacing", spacingSigns_, {positive, negative});
    pairOnly_.push_back(positive);
    pairOnly_.push_back(negative);
    return frame;
}

QGroupBox* DataForm::loadFrame() {
    QGroupBox* const frame = build::frame("Frame2", "Applied Loads");
    QGridLayout* const grid = entryGrid(*frame);
    for (const EntrySpec& spec : kLoadEntries)
        addEntry(*grid, spec);
    return frame;
}

QGroupBox* DataForm::materialFrame(const char* name, const QString& caption, QComboBox*& list) {
    const bool ball = QString::fromUtf8(name) == QStringLiteral("Frame8");
    QGroupBox* const frame = build::frame(name, caption);
    QGridLayout* const grid = entryGrid(*frame);
    list = build::choice(ball ? "Combo1" : "Combo2", "Fills in name, modulus and Poisson's ratio", caption);
    for (const AnalysisMaterial& material : kAnalysisMaterials)
        list->addItem(QString::fromUtf8(material.name));
    list->addItem(QString());
    auto* const line = theme::spaced(new QHBoxLayout, 0);
    QLineEdit* const field =
        build::edit(ball ? "Text7" : "Text10", "Name of the material", caption + QStringLiteral(", name"));
    entries_.push_back(field);
    line->addWidget(build::label("", "Material"));
    line->addWidget(list, 1);
    line->addWidget(field, 1);
    grid->addLayout(line, grid->rowCount(), kCaption, 1, kEntryColumns);
    addEntry(*grid, {ball ? "Text8" : "Text11", "Elastic Modulus, MPsi", "", ball ? "Text18" : "Text19",
                     "GPa", "Young's modulus"});
    addEntry(*grid, {ball ? "Text9" : "Text12", "Poisson's Ratio", ""});
    return frame;
}

QGroupBox* DataForm::frictionFrame() {
    QGroupBox* const frame = build::frame("Frame10", "Coefficient of Friction");
    auto* const line = theme::spaced(new QHBoxLayout(frame), theme::kGap);
    for (const EntrySpec& spec : kFrictionEntries) {
        QLineEdit* const field = entryField(spec, spec.control, spec.unit);
        QLabel* const caption = captionLabel(field->objectName(), spec.caption);
        caption->setBuddy(field);
        line->addWidget(caption);
        line->addWidget(field);
        line->addStretch();
    }
    return frame;
}

QGroupBox* DataForm::unitFrame() {
    QGroupBox* const frame = build::frame("Frame11", "Output Units");
    auto* const line = theme::spaced(new QHBoxLayout(frame), theme::kGap);
    int id = 0;
    for (QRadioButton* const option :
         {build::option("Option1", "English", "Show the results in pounds, psi and inches"),
          build::option("Option2", "Metric", "Show the results in newtons, MPa and millimeters")}) {
        units_.addButton(option, id++);
        line->addWidget(option);
    }
    line->addStretch();
    return frame;
}

QGroupBox* DataForm::lifeFrame() {
    QGroupBox* const frame = build::frame("Frame4", "L10 Life (Revolutions)");
    QGridLayout* const grid = tightGrid(*frame);
    grid->setColumnStretch(0, 1);
    grid->addWidget(columnHead("Inner Race\nRotation"), 0, 2);
    grid->addWidget(columnHead("Outer Race\nRotation"), 0, 3);
    meanLoads_ = columnHead("");
    meanLoads_->setObjectName(QStringLiteral("CaptionText27"));
    grid->addWidget(meanLoads_, 0, 4);
    addResults(*grid, {"Row 1", "", {"Text25", "Text26", "Text27"}});
    addResults(*grid, {"Row 2", "", {"Text55", "Text56", "Text28"}});
    return frame;
}

QGroupBox* DataForm::staticFrame() {
    QGroupBox* const frame = build::frame("Frame5", "Static Analysis");
    QGridLayout* const grid = tightGrid(*frame);
    grid->setColumnStretch(0, 1);
    grid->addWidget(columnHead("Inner Race"), 0, 2);
    grid->addWidget(columnHead("Outer Race"), 0, 3);
    maxBallLoad_ = addResults(*grid, {"Max. Ball Load", "", {"Text29", "Text30"}});
    addResults(*grid, {"Capacity", "", {"Text31", "Text32"}});
    addResults(*grid, {"Safety Factor", "", {"Text33", "Text34"}});
    stress_ = addResults(*grid, {"Hertz Stress", "Maximum", {"Text35", "Text36"}});
    addResults(*grid, {"", "Mean", {"Text37", "Text38"}});
    ellipse_ = addResults(*grid, {"Contact Ellipse", "Major Dia.", {"Text39", "Text40"}});
    addResults(*grid, {"", "Minor Dia.", {"Text41", "Text42"}});
    return frame;
}

QGroupBox* DataForm::deflectionFrame() {
    QGroupBox* const frame = build::frame("Frame6", "Deflections");
    auto* const line = theme::spaced(new QHBoxLayout(frame), theme::kGap);
    const auto add = [&](const char* control, const char* caption) {
        QLabel* const label = captionLabel(QString::fromUtf8(control), caption);
        line->addWidget(label);
        line->addWidget(resultField(control, QString::fromUtf8(caption)));
        line->addStretch();
        return label;
    };
    radial_ = add("Text52", "Radial");
    axial_ = add("Text53", "Axial");
    tilt_ = add("Text54", "Tilt");
    return frame;
}

QGroupBox* DataForm::checkFrame() {
    QGroupBox* const frame = build::frame("Frame7", "Checks");
    QGridLayout* const grid = tightGrid(*frame);
    const auto add = [&](const char* control, const char* caption, int row, int column) {
        QLineEdit* const field = resultField(control, QString::fromUtf8(caption));
        setDigits(*field, kCheckDigits);
        grid->addWidget(captionLabel(field->objectName(), caption), row, column);
        grid->addWidget(field, row, column + 1);
        return field;
    };
    add("Text57", "Fr =", 0, 0);
    add("Text58", "Fa =", 1, 0);
    add("Text59", "Moment =", 2, 0);
    add("Text60", "Kn =", 0, 3);
    add("Text61", "CiCo =", 1, 3);
    grid->setColumnStretch(2, 1);
    auto* const line = theme::spaced(new QHBoxLayout, 0);
    QLabel* const before = build::label("Label79", "Convergence Achieved in:");
    QLineEdit* const passes = resultField("Text62", "Iterations until convergence");
    QLabel* const behind = build::label("Label80", "Iterations");
    for (QWidget* const part :
         {static_cast<QWidget*>(before), static_cast<QWidget*>(passes), static_cast<QWidget*>(behind)}) {
        line->addWidget(part);
        afterSolve_.push_back(part);
    }
    line->addStretch();
    grid->addLayout(line, 3, 0, 1, 5);
    return frame;
}

void DataForm::layOut() {
    const auto column = [](std::initializer_list<QWidget*> frames) {
        auto* const made = theme::spaced(new QVBoxLayout, 0);
        for (QWidget* const frame : frames)
            made->addWidget(frame);
        made->addStretch();
        return made;
    };
    const auto beside = [](QLayout* left, QLayout* right) {
        auto* const made = theme::spaced(new QHBoxLayout, 0);
        made->addLayout(left, 1);
        made->addLayout(right, 1);
        return made;
    };
    // One by one, in the order of the Tab key.
    QGroupBox* const customer = customerFrame();
    QGroupBox* const bearing = bearingFrame();
    QGroupBox* const loads = loadFrame();
    QGroupBox* const balls = materialFrame("Frame8", "Ball Material", ballList_);
    QGroupBox* const races = materialFrame("Frame9", "Race Material", raceList_);
    QGroupBox* const friction = frictionFrame();
    page().addLayout(beside(column({customer, bearing}), column({loads, balls, races, friction})));
    QGroupBox* const units = unitFrame();
    QGroupBox* const deflections = deflectionFrame();
    auto* const line = theme::spaced(new QHBoxLayout, 0);
    line->addWidget(units);
    line->addWidget(deflections, 1);
    page().addLayout(line);
    QGroupBox* const statics = staticFrame();
    QGroupBox* const lives = lifeFrame();
    QGroupBox* const checks = checkFrame();
    page().addLayout(beside(column({statics}), column({lives, checks})));
    page().addStretch();
    for (QGroupBox* const frame : {lives, statics, deflections, checks})
        afterSolve_.push_back(frame);
    for (const AnalysisText& text : analysisTexts())
        texts_.push_back({&text, findChild<QLineEdit*>(QString::fromUtf8(text.control))});
}

}  // namespace norlaplan
