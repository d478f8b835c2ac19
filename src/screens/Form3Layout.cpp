#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <vector>

#include "help/ProductLines.h"
#include "screens/Accelerators.h"
#include "screens/Form2.h"
#include "screens/Form3.h"
#include "screens/Form7.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/StepMark.h"
#include "screens/Theme.h"
#include "screens/Training.h"

namespace norlaplan {
namespace {

constexpr int kHubWidth = 900;
constexpr int kStepWidth = 330;
constexpr int kHalfStepWidth = (kStepWidth - theme::kGap) / 2;
constexpr int kStepGap = 14;
constexpr int kValueGap = 3;
constexpr int kStepHeight = 42;

/// A light panel for one path: its name, the mark that shows when the user has chosen it, its steps.
struct PathPanel {
    QWidget* panel;
    QGridLayout* grid;
    QLabel* mark;
};

PathPanel makePathPanel(const char* panelName, const QString& caption, const char* markName) {
    QWidget* const panel = theme::makePanel(panelName);
    auto* const mark = build::label(markName, "Start here");
    theme::makeMark(*mark);
    build::keepRoom(*mark);
    mark->hide();

    auto* const head = theme::spaced(new QHBoxLayout, 0);
    head->addWidget(build::heading("", caption), 1);
    head->addWidget(mark);
    auto* const grid = theme::spaced(new QGridLayout, 0);
    grid->setVerticalSpacing(kStepGap);
    grid->setColumnStretch(1, 1);
    auto* const layout = theme::spaced(new QVBoxLayout(panel));
    layout->addLayout(head);
    layout->addLayout(grid);
    layout->addStretch();
    return {panel, grid, mark};
}

using Buttons = std::vector<QPushButton*>;

/// What was set at a step, under its buttons; the line is kept free for it.
QLabel* makeValue(const char* name) {
    QLabel* const value = build::label(name, QStringLiteral(" "));
    value->setFont(theme::noteFont());
    value->setWordWrap(true);
    return value;
}

/// A step of a path: its mark, rows of buttons that share the width, and what was set there, if it shows
/// that.
void addStep(QGridLayout& grid, StepMark& mark, const std::vector<Buttons>& rows, QLabel* value = nullptr) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(theme::kGap);
    for (const Buttons& buttons : rows) {
        auto* const together = theme::spaced(new QHBoxLayout, 0);
        for (QPushButton* const button : buttons) {
            button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
            button->setMinimumWidth(buttons.size() == 1 ? kStepWidth : kHalfStepWidth);
            button->setMinimumHeight(kStepHeight);
            together->addWidget(button, 1);
        }
        column->addLayout(together);
    }
    auto* const cell = new QVBoxLayout;
    cell->setSpacing(kValueGap);
    cell->addLayout(column);
    if (value != nullptr) cell->addWidget(value);
    const int row = grid.rowCount();
    grid.addWidget(&mark, row, 0, Qt::AlignTop);
    grid.addLayout(cell, row, 1);
}

}  // namespace

Form3::Form3(Screens& screens) : Form(screens, forms::kMainMenu, "Norlaplan MM") {
    // However large the window, the menu keeps its size and stands in the middle.
    auto* const hub = new QWidget;
    hub->setMaximumWidth(kHubWidth);
    hub->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* const column = new QVBoxLayout(hub);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::kWideGap);
    // The Tab key goes in the order in which they are made.
    column->addWidget(makeHead());
    auto* const paths = new QHBoxLayout;
    paths->setSpacing(theme::kWideGap);
    paths->addWidget(makeKnownPath(), 1);
    paths->addWidget(makeSearchPath(), 1);
    column->addLayout(paths);
    column->addWidget(makeFoot());

    // They come with their options, and the window grows with them.
    for (QPushButton* const button : {thermalFits_, faxCover_, nedsPictures_})
        button->hide();

    setMenus(makeMenus());
    auto* const middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addWidget(hub, kHubWidth);
    middle->addStretch(1);
    page().addStretch(1);
    page().addLayout(middle);
    page().addStretch(1);
}

QPushButton* Form3::makeButton(const char* name, const QString& caption, const QString& tip,
                               void (Form3::*action)()) {
    return button(name, caption, tip, [this, action] { (this->*action)(); });
}

QWidget* Form3::makeHead() {
    QWidget* const head = theme::makePanel("Head");
    auto* const row = theme::spaced(new QHBoxLayout(head));
    auto* const what = build::heading("", "Bearing in hand:");
    partNumber_ = build::label("Label3");
    partNumber_->setFont(theme::numberFont());
    partNumber_->setAccessibleDescription(QStringLiteral("Part number of the current bearing"));
    auto* const help = makeButton("Command18", "Is Part Number Known ?", "Directional flow for data entry",
                                  &Form3::askForPath);
    setMainButton(*help);
    row->addWidget(what);
    units_ = build::label("Units");
    row->addWidget(partNumber_, 1);
    row->addWidget(units_);
    row->addWidget(help);
    return head;
}

QWidget* Form3::makeKnownPath() {
    const PathPanel path = makePathPanel("KnownPath", "Part number known", "Label1");
    knownMark_ = path.mark;
    QGridLayout& grid = *path.grid;
    modelNumber_ = makeButton("Command8", "Enter Model Number", "Enter 9 or 10 digit model number",
                              &Form3::openModelNumber);
    theme::makeMain(*modelNumber_);
    thermalFits_ = makeButton("Command19", "Temp Fits", "Shaft and Housing Fits at High or Low Temperatures",
                              &Form3::openThermalFits);
    bearingStep_ = {new StepMark("BearingStep", 1), makeValue("BearingValue")};
    addStep(grid, *bearingStep_.mark, {{modelNumber_}}, bearingStep_.value);
    addStep(grid, *new StepMark("SheetStep", 2),
            {{makeButton("Command9", "Data Sheet", "View Data sheet (drawing)", &Form3::openDataSheet),
              makeButton("Command12", "Deflection", "Calculate Deflection Characteristics",
                         &Form3::openDeflection)},
             {makeButton("Command10", "Preload Torque", "Calculate torque vs. preload curve",
                         &Form3::openPreloadTorque),
              makeButton("Command11", "Axial Play", "Calculate axial movement based on radial clearance",
                         &Form3::openAxialPlay)},
             {thermalFits_}});
    lifeStep_ = {new StepMark("LifeStep", 3), makeValue("LifeValue")};
    addStep(grid, *lifeStep_.mark,
            {{makeButton("Command13", "Load Input", "Enter load case", &Form3::openKnownLoads),
              makeButton("Command14", "Static + Dynamic Life",
                         "Safety factor and L10 life based on load case", &Form3::openLife)}},
            lifeStep_.value);
    return path.panel;
}

QWidget* Form3::makeSearchPath() {
    const PathPanel path = makePathPanel("SearchPath", "Search the catalog", "Label2");
    searchMark_ = path.mark;
    QGridLayout& grid = *path.grid;
    style_ = makeButton("Command4", "Set Style", "Select any of 6 bearing styles", &Form3::openStyle);
    theme::makeMain(*style_);
    styleStep_ = {new StepMark("StyleStep", 1), makeValue("StyleValue")};
    addStep(grid, *styleStep_.mark, {{style_}}, styleStep_.value);
    sizesStep_ = {new StepMark("SizesStep", 2), makeValue("SizesValue")};
    addStep(
        grid, *sizesStep_.mark,
        {{makeButton("Command5", "Set Sizes", "Set minimum and maximum envelope sizes", &Form3::openSizes)}},
        sizesStep_.value);
    loadsStep_ = {new StepMark("LoadsStep", 3), makeValue("LoadsValue")};
    addStep(grid, *loadsStep_.mark,
            {{makeButton("Command6", "Load Input", "Enter Load condition", &Form3::openSearchLoads)}},
            loadsStep_.value);
    resultsStep_ = {new StepMark("ResultsStep", 4), makeValue("ResultsValue")};
    addStep(grid, *resultsStep_.mark,
            {{makeButton("Command7", "Search Results", "Create and see list of possible bearings",
                         &Form3::openResults)}},
            resultsStep_.value);
    return path.panel;
}

QWidget* Form3::makeFoot() {
    auto* const foot = new QWidget;
    auto* const row = theme::spaced(new QHBoxLayout(foot), 0);
    row->addWidget(makeButton("Command1", "Introduction", "Software Introduction", &Form3::openIntroduction));
    QPushButton* const training =
        makeButton("Command2", "Bearing Training", "View Power Point Presentation", &Form3::openTraining);
    training_ = new Training(screens(), *training);
    row->addWidget(training);
    row->addWidget(makeButton("Command3", "Application Form", "Fill out Application form to send to Varden",
                              &Form3::openApplicationForm));
    faxCover_ = makeButton("Command16", "Fax Cover Page", "Print out Fax Cover Page", &Form3::openFaxCover);
    row->addWidget(faxCover_);
    nedsPictures_ =
        makeButton("Command17", "Ned's Stuff", "Ned Grove's Bearing Pictures", &Form3::openNedsPictures);
    row->addWidget(nedsPictures_);
    row->addStretch();
    row->addWidget(makeButton("Command15", "Quit", "Exit Program", &Form3::askToQuit));
    return foot;
}

void Form3::addAction(QMenu& menu, const char* name, const QString& caption, std::function<void()> action) {
    QAction* const item = menu.addAction(caption);
    item->setObjectName(QString::fromUtf8(name));
    const std::string spoken = caption.toStdString();
    connect(item, &QAction::triggered, this,
            [this, spoken, action = std::move(action)] { screens().runAction(spoken, action); });
}

QMenuBar* Form3::makeMenus() {
    auto* const bar = new QMenuBar;
    QMenu& file = *bar->addMenu("&File");
    addAction(file, "New", "New", [this] { clearAll(); });
    QMenu& sendTo = *file.addMenu("Send To");
    sendTo.setObjectName("Sendto");
    addAction(sendTo, "mail", "Mail Recipient", [this] { sendMail(); });
    addAction(file, "makeqlx", "Create QLX file", [this] { exportBearing(); });
    export_ = file.actions().constLast();
    file.addSeparator();
    addAction(file, "Exit", "Exit", [this] { exitProgram(); });

    QMenu& options = *bar->addMenu("&Options");
    addAction(options, "dimensions", "Dimensions", [this] { screens().show(forms::kUnits); });
    QMenu& settings = *options.addMenu("Settings");
    settings.setObjectName("settings");
    addAction(settings, "userinfo", "User Info", [this] { screens().show(forms::kUserInfo); });

    QMenu& types = *bar->addMenu("&Bearing Types");
    for (const std::string& line : productLineNames(services().folder))
        addAction(types, line.c_str(), QString::fromStdString(line),
                  [this, line] { showProductLine(screens(), line); });

    QMenu& more = *bar->addMenu("&Additional Information");
    // There is no catalogue to fetch: the item does nothing.
    more.addAction("Download Catalog")->setObjectName("Catalog");
    addAction(more, "CatalogIntroduction", "Catalog Introduction",
              [this] { screens().show(forms::kCatalogPages); });
    addAction(more, "DistributorInformation", "Distributor Information", [this] {
        showText(this->screens(), "\\help\\Distributor.rtf", "Varden Distributor Information",
                 "Exit Distributor Information");
    });
    addAction(more, "warranty", "Warranty",
              [this] { showText(this->screens(), "\\help\\warranty.rtf", "Warranty", "Exit Warranty"); });

    QMenu& help = *bar->addMenu("&Help");
    addAction(help, "kmetrichelp", "Help", [this] { screens().show(forms::kHelpIndex); });
    addAction(help, "About", "About", [this] { screens().show(forms::kAbout); });
    for (QMenu* const menu : {&file, &options, &types, &more, &help})
        accelerators::mark(*menu);
    return bar;
}

}  // namespace norlaplan
