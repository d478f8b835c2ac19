#include "screens/Form15.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QTreeView>

#include "documents/SearchReport.h"
#include "numbers/Text.h"
#include "screens/BusyPointer.h"
#include "screens/Decoding.h"
#include "screens/DocumentOutput.h"
#include "screens/FormBuilder.h"
#include "screens/HitModel.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/SearchProgress.h"
#include "screens/Theme.h"
#include "search/HitChoice.h"
#include "search/SearchEngine.h"
#include "state/StyleTable.h"

namespace norlaplan {
namespace {

/// The list stands low on the screen, so that the screens before it stay in view: 9405 twips.
constexpr int kLowestTop = 627;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QGroupBox* frameOf(const char* name, const char* caption, const char* tip,
                   std::initializer_list<QLabel*> labels) {
    QGroupBox* const frame = build::frame(name, QString::fromUtf8(caption));
    frame->setToolTip(QString::fromUtf8(tip));
    auto* const column = theme::spaced(new QVBoxLayout(frame));
    for (QLabel* const label : labels) {
        label->setFont(theme::valueFont());
        column->addWidget(label);
    }
    column->addStretch();
    return frame;
}

}  // namespace

Form15::Form15(Screens& screens) : Form(screens, forms::kResults, "Life Calculation Results") {
    layOut();
    connectActions();
}

QGroupBox* Form15::requirementsFrame() {
    return frameOf("Frame1", "SIZE REQUIREMENTS", "Sizes entered to limit search",
                   {minBore_ = build::label("Label1"), maxOd_ = build::label("Label2"),
                    minHeight_ = build::label("Label3"), maxHeight_ = build::label("Label4")});
}

QGroupBox* Form15::loadsFrame() {
    return frameOf("Frame2", "LOADS", "Loads entered for analysis",
                   {radial_ = build::label("Label5"), axial_ = build::label("Label6"),
                    moment_ = build::label("Label7"), speed_ = build::label("Label8")});
}

QGroupBox* Form15::styleFrame() {
    styleGroup_ = frameOf("Frame4", "BEARING STYLE", "Image of bearing style chosen for analysis", {});
    picture_ = new Picture("Image1", "Section of the chosen style", {200, 130});
    picture_->setToolTip("Image of bearing style chosen for analysis");
    static_cast<QVBoxLayout*>(styleGroup_->layout())->insertWidget(0, picture_, 1);
    return styleGroup_;
}

QGroupBox* Form15::resultsFrame() {
    QGroupBox* const frame = build::frame("Frame3", "RESULTS OF SEARCH");
    QLabel* const head = build::label("Label9", "BEARING         L10  LIFE              L10  LIFE");
    head->setFont(theme::valueFont());
    list_ = build::choice("Combo1", "Bearings that fit, with their life", "Bearings that fit");
    rows_ = new QStandardItemModel(this);
    list_->setModel(rows_);
    table_ = new QTreeView;
    table_->setObjectName("List1");
    table_->setAccessibleName("Bearings that fit, in columns");
    table_->setModel(rows_);
    table_->setRootIsDecorated(false);
    table_->setUniformRowHeights(true);
    table_->setAlternatingRowColors(true);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setMinimumSize(600, 200);
    auto* const column = theme::spaced(new QVBoxLayout(frame));
    column->addWidget(head);
    column->addWidget(list_);
    column->addWidget(table_, 1);
    return frame;
}

QGroupBox* Form15::chosenFrame() {
    chosenGroup_ = frameOf("Frame5", "CHOSEN BEARING", "Envelope size of selected bearing",
                           {chosenBore_ = build::label("Label11"), chosenOd_ = build::label("Label12"),
                            chosenHeight_ = build::label("Label13"), hint_ = build::label("Label14")});
    hint_->setFont(font());
    hint_->setWordWrap(true);
    hint_->setMinimumWidth(180);
    return chosenGroup_;
}

void Form15::layOut() {
    mainMenu_ = build::button("Command1", "&Main Menu", "Return to Main Menu");
    previous_ = build::button("Command2", "<< &Previous", "Go back to Load input");
    print_ = build::button("Command3", "P&rint Results", "Print results from search");
    shortCut_ = build::button("Command4", "&Short-cut to Data Sheet", "Create data sheet for chosen bearing");
    sort_ = build::button("Command5", "&Sort List", "Sort list of bearings");
    save_ = build::button("Command6", "Save", "Save Results to file");
    auto* const top = theme::spaced(new QHBoxLayout, 0);
    top->addWidget(requirementsFrame(), 2);
    top->addWidget(loadsFrame(), 2);
    top->addWidget(styleFrame(), 2);
    auto* const middle = theme::spaced(new QHBoxLayout, 0);
    middle->addWidget(resultsFrame(), 5);
    middle->addWidget(chosenFrame(), 2);
    auto* const buttons = theme::spaced(new QHBoxLayout, 0);
    for (QPushButton* const button : {mainMenu_, previous_})
        buttons->addWidget(button);
    buttons->addStretch();
    for (QPushButton* const button : {sort_, print_, save_, shortCut_})
        buttons->addWidget(button);
    auto* const page = theme::spaced(new QVBoxLayout(this));
    page->addLayout(top);
    page->addLayout(middle, 1);
    page->addLayout(buttons);
}

void Form15::connectActions() {
    on(mainMenu_, &QPushButton::clicked, "Main Menu", [this] { goToMainMenu(); });
    on(previous_, &QPushButton::clicked, "Previous", [this] { goToPrevious(); });
    on(sort_, &QPushButton::clicked, "Sort List", [this] { sort(); });
    on(shortCut_, &QPushButton::clicked, "Short-cut to Data Sheet", [this] { showDataSheet(); });
    on(print_, &QPushButton::clicked, "Print Results", [this] { print(); });
    on(save_, &QPushButton::clicked, "Save", [this] { save(); });
    connect(list_, &QComboBox::currentIndexChanged, this,
            [this](int index) { run("Choose bearing", [this, index] { choose(index); }); });
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) { list_->setCurrentIndex(row.row()); });
}

void Form15::opened() {
    keepLow();
    if (state().search.noResultFlag)
        screens().showInstead(*this, forms::kSizes);
    else if (!takeSortedList())
        search();
}

void Form15::cameBack() {
    keepLow();
    takeSortedList();
}

bool Form15::takeSortedList() {
    if (!state().search.listOnlyFlag) return false;
    state().search.listOnlyFlag = false;
    fillList(false);
    return true;
}

void Form15::keepLow() {
    const int room = screen()->availableGeometry().bottom() - frameGeometry().height();
    // Never so low that the buttons would leave the screen.
    const int top = std::min(kLowestTop, std::max(0, room));
    if (y() < top) move(x(), top);
}

void Form15::search() {
    chosenGroup_->hide();
    rows_->clear();
    showRequirements();
    SearchEnd end = SearchEnd::Stopped;
    try {
        SearchProgress progress(*this);
        end = RunBearingSearch(state(), services().folder, services().messages, progress);
    } catch (...) {
        screens().showInstead(*this, forms::kLoads);
        throw;
    }
    if (end == SearchEnd::Found) {
        fillList(true);
        return;
    }
    screens().showInstead(*this, end == SearchEnd::NoneFound ? forms::kSizes : forms::kLoads);
}

void Form15::showRequirements() {
    const ProgramState& now = state();
    const UnitMode& units = now.units;
    const SearchCriteria& sizes = now.criteria;
    const auto entered = [&](const char* name, Single value, const std::string& unit) {
        return text(name + plainText(value) + " " + unit);
    };
    const std::string& caption = now.style.searchStyleCaption;
    setWindowTitle(text("LIFE CALCULATION RESULTS FOR " + caption));
    minBore_->setText(entered("MINIMUM BORE   = ", sizes.minBoreDisplay, units.lengthUnit));
    maxOd_->setText(entered("MAXIMUM O.D.   = ", sizes.maxOdDisplay, units.lengthUnit));
    minHeight_->setText(entered("MINIMUM HEIGHT = ", sizes.minHeightDisplay, units.lengthUnit));
    maxHeight_->setText(entered("MAXIMUM HEIGHT = ", sizes.maxHeightDisplay, units.lengthUnit));
    radial_->setText(entered("RADIAL = ", now.loads.radialLoadDisplay, units.loadUnit));
    axial_->setText(entered("AXIAL =  ", now.loads.axialLoadDisplay, units.loadUnit));
    moment_->setText(entered("MOMENT = ", now.loads.momentLoadDisplay, units.momentUnit));
    speed_->setText(text("SPEED =  " + plainText(now.loads.speed) + " RPM"));
    speed_->setVisible(now.loads.speed > 0.0);
    styleGroup_->setTitle(text(caption));
    list_->setFont(theme::listFont(hasSpacers(caption)));
    if (const StyleRow* const style = styleByCaption(caption)) {
        picture_->showFile(services().folder, stylePicture(*style, 'T'));
    }
}

void Form15::fillList(bool fresh) {
    {
        const QSignalBlocker quietList(list_);
        const QSignalBlocker quietTable(table_->selectionModel());
        fillHitModel(*rows_, state(), fresh);
        layOutHitTable(*table_, state());
        list_->setCurrentIndex(-1);
    }
    list_->setCurrentIndex(0);
    shortCut_->setEnabled(true);
    list_->setFocus();
}

void Form15::choose(int index) {
    const std::optional<ChosenBearing> chosen = chosenHit(state(), index + 1);
    if (!chosen) return;
    table_->setCurrentIndex(rows_->index(index, kNameColumn));
    chosenGroup_->setTitle(text(chosen->caption));
    chosenBore_->setText(text(chosen->boreLine));
    chosenOd_->setText(text(chosen->odLine));
    chosenHeight_->setText(text(chosen->heightLine));
    hint_->setText(text(chosen->spacerHint));
    hint_->setVisible(!chosen->spacerHint.empty());
    chosenGroup_->show();
}

DecodeEnd Form15::decodeChosen() {
    return decodeBearing(screens(), chosenHit(state(), list_->currentIndex() + 1)->partNumber);
}

void Form15::goToMainMenu() {
    const bool chosen = list_->currentIndex() >= 0;
    if (!chosen || decodeChosen() != DecodeEnd::BackToEntry) screens().showAlone(forms::kMainMenu);
}

void Form15::goToPrevious() {
    screens().showInstead(*this, forms::kLoads);
}

void Form15::sort() {
    screens().show(forms::kSort);
}

void Form15::showDataSheet() {
    // The sheet on show is that of the last decode, so the chosen bearing is decoded first.
    if (list_->currentIndex() < 0 || decodeChosen() != DecodeEnd::Decoded) return;
    screens().showInstead(*this, forms::kDataSheet);
}

void Form15::print() {
    printDocument(services(), searchDocument(state(), services().clock));
}

void Form15::save() {
    saveDocument(services(), searchDocument(state(), services().clock));
}

}  // namespace norlaplan
