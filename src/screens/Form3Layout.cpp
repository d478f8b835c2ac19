#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include "screens/Accelerators.h"
#include "screens/Form2.h"
#include "screens/Form3.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kStepWidth = 380;
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
    QSizePolicy kept = mark->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    mark->setSizePolicy(kept);
    mark->hide();

    auto* const head = theme::spaced(new QHBoxLayout, 0);
    head->addWidget(build::heading("", caption), 1);
    head->addWidget(mark);
    auto* const grid = theme::spaced(new QGridLayout, 0);
    grid->setColumnStretch(1, 1);
    auto* const layout = theme::spaced(new QVBoxLayout(panel));
    layout->addLayout(head);
    layout->addLayout(grid);
    layout->addStretch();
    return {panel, grid, mark};
}

/// A row of a path: its number, if it has one, and its buttons, all of one width.
void addStep(QGridLayout& grid, int row, const QString& number, std::initializer_list<QPushButton*> buttons) {
    if (!number.isEmpty()) {
        QLabel* const label = build::label("", number);
        theme::makeStep(*label);
        grid.addWidget(label, row, 0);
    }
    auto* const together = theme::spaced(new QHBoxLayout, 0);
    for (QPushButton* const button : buttons) {
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        button->setMinimumWidth(kStepWidth / static_cast<int>(buttons.size()));
        button->setMinimumHeight(kStepHeight);
        together->addWidget(button, 1);
    }
    grid.addLayout(together, row, 1);
}

}  // namespace

Form3::Form3(Screens& screens) : Form(screens, forms::kMainMenu, "Norlaplan MM") {
    auto* const paths = new QHBoxLayout;
    paths->setSpacing(theme::kWideGap);
    // The Tab key goes in the order in which they are made.
    QWidget* const head = makeHead();
    paths->addWidget(makeKnownPath(), 1);
    paths->addWidget(makeSearchPath(), 1);
    QWidget* const foot = makeFoot();

    // They come with their options, and the window grows with them.
    for (QPushButton* const button : {thermalFits_, faxCover_, nedsPictures_})
        button->hide();

    setMenus(makeMenus());
    QVBoxLayout* const page = &this->page();
    page->setSpacing(theme::kWideGap);
    page->addWidget(head);
    page->addLayout(paths, 1);
    page->addWidget(foot);
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
    row->addWidget(partNumber_, 1);
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
    addStep(grid, 0, "1", {modelNumber_});
    addStep(grid, 1, "2",
            {makeButton("Command9", "Data Sheet", "View Data sheet (drawing)", &Form3::openDataSheet),
             makeButton("Command12", "Deflection", "Calculate Deflection Characteristics",
                        &Form3::openDeflection)});
    addStep(grid, 2, "",
            {makeButton("Command10", "Preload Torque", "Calculate torque vs. preload curve",
                        &Form3::openPreloadTorque),
             makeButton("Command11", "Axial Play", "Calculate axial movement based on radial clearance",
                        &Form3::openAxialPlay)});
    thermalFits_ = makeButton("Command19", "Temp Fits", "Shaft and Housing Fits at High or Low Temperatures",
                              &Form3::openThermalFits);
    addStep(grid, 3, "", {thermalFits_});
    addStep(grid, 4, "3",
            {makeButton("Command13", "Load Input", "Enter load case", &Form3::openKnownLoads),
             makeButton("Command14", "Static + Dynamic Life", "Safety factor and L10 life based on load case",
                        &Form3::openLife)});
    return path.panel;
}

QWidget* Form3::makeSearchPath() {
    const PathPanel path = makePathPanel("SearchPath", "Search the catalogue", "Label2");
    searchMark_ = path.mark;
    QGridLayout& grid = *path.grid;
    style_ = makeButton("Command4", "Set Style", "Select any of 6 bearing styles", &Form3::openStyle);
    theme::makeMain(*style_);
    addStep(grid, 0, "1", {style_});
    addStep(
        grid, 1, "2",
        {makeButton("Command5", "Set Sizes", "Set minimum and maximum envelope sizes", &Form3::openSizes)});
    addStep(grid, 2, "3",
            {makeButton("Command6", "Load Input", "Enter Load condition", &Form3::openSearchLoads)});
    addStep(grid, 3, "4",
            {makeButton("Command7", "Search Results", "Create and see list of possible bearings",
                        &Form3::openResults)});
    return path.panel;
}

QWidget* Form3::makeFoot() {
    auto* const foot = new QWidget;
    auto* const row = theme::spaced(new QHBoxLayout(foot), 0);
    row->addWidget(makeButton("Command1", "Introduction", "Software Introduction", &Form3::openIntroduction));
    row->addWidget(
        makeButton("Command2", "Bearing Training", "View Power Point Presentation", &Form3::openTraining));
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
    addAction(file, "makeqlx", "Create QLX file",
              [this] { services().messages.show(notInThisVersion(forms::kExport)); });
    export_ = file.actions().constLast();
    file.addSeparator();
    addAction(file, "Exit", "Exit", [this] { exitProgram(); });

    QMenu& options = *bar->addMenu("&Options");
    addAction(options, "dimensions", "Dimensions", [this] { screens().show(forms::kUnits); });
    QMenu& settings = *options.addMenu("Settings");
    settings.setObjectName("settings");
    addAction(settings, "userinfo", "User Info", [this] { screens().show(forms::kUserInfo); });

    QMenu& types = *bar->addMenu("&Bearing Types");
    for (const char* const line :
         {"Metric Series", "Inch Series Thin Section", "Slewing Rings", "Crossed Rollers", "Custom"})
        addAction(types, line, line, [this] { screens().show(forms::kProductPage); });

    QMenu& more = *bar->addMenu("&Additional Information");
    // There is no catalogue to fetch: the item does nothing.
    more.addAction("Download Catalog")->setObjectName("Catalog");
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
