#include "screens/Form15.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include "documents/SearchReport.h"
#include "numbers/Text.h"
#include "screens/BusyPointer.h"
#include "screens/Decoding.h"
#include "screens/DocumentOutput.h"
#include "screens/EqualSigns.h"
#include "screens/FlowRow.h"
#include "screens/FormBuilder.h"
#include "screens/HitModel.h"
#include "screens/HitTable.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/SearchProgress.h"
#include "screens/Theme.h"
#include "search/HitChoice.h"
#include "search/HitSort.h"
#include "search/SearchEngine.h"
#include "state/StyleTable.h"

namespace norlaplan {
namespace {

/// The list stands low on the screen, so that the screens before it stay in view: 9405 twips.
constexpr int kLowestTop = 627;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

}  // namespace

Form15::Form15(Screens& screens) : Form(screens, forms::kResults, "Life Calculation Results") {
    layOut();
    connectChoice();
}

QGroupBox* Form15::requirementsFrame() {
    return build::labelFrame(
        "Frame1", "SIZE REQUIREMENTS",
        {minBore_ = build::valueLabel("Label1"), maxOd_ = build::valueLabel("Label2"),
         minHeight_ = build::valueLabel("Label3"), maxHeight_ = build::valueLabel("Label4")},
        "Sizes entered to limit search");
}

QGroupBox* Form15::loadsFrame() {
    return build::labelFrame("Frame2", "LOADS",
                             {radial_ = build::valueLabel("Label5"), axial_ = build::valueLabel("Label6"),
                              moment_ = build::valueLabel("Label7"), speed_ = build::valueLabel("Label8")},
                             "Loads entered for analysis");
}

QGroupBox* Form15::styleFrame() {
    styleGroup_ =
        build::labelFrame("Frame4", "BEARING STYLE", {}, "Image of bearing style chosen for analysis");
    picture_ = new Picture("Image1", "Section of the chosen style", {180, 104});
    picture_->setToolTip("Image of bearing style chosen for analysis");
    build::columnOf(*styleGroup_).insertWidget(0, picture_, 1);
    return styleGroup_;
}

QGroupBox* Form15::resultsFrame() {
    QGroupBox* const frame = build::frame("Frame3", "RESULTS OF SEARCH");
    listHead_ = build::label("Label9", "BEARING         L10  LIFE              L10  LIFE");
    list_ = build::choice("Combo1", "Bearings that fit, with their life", "Bearings that fit");
    // The names of one list are longer than those of another; the window keeps its width.
    list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    rows_ = new QStandardItemModel(this);
    list_->setModel(rows_);
    table_ = new HitTable("List1");
    table_->setModel(rows_);
    auto* const column = theme::spaced(new QVBoxLayout(frame), theme::kGap);
    column->setSpacing(2);
    column->addWidget(listHead_);
    column->addWidget(list_);
    column->addSpacing(theme::kGap);
    column->addWidget(table_, 1);
    return frame;
}

QGroupBox* Form15::chosenFrame() {
    chosenGroup_ = build::frame("Frame5", "CHOSEN BEARING");
    chosenGroup_->setToolTip("Envelope size of selected bearing");
    hint_ = build::label("Label14");
    // The blanks that once broke the hint into lines are passed over; it stays the stated text.
    hint_->setTextFormat(Qt::RichText);
    hint_->setWordWrap(true);
    warning_ = build::label("Warning1");
    warning_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    build::makeBold(*warning_);
    warning_->setWordWrap(true);
    warning_->setMinimumHeight(warning_->fontMetrics().height());
    theme::makeWarning(*warning_);
    auto* const sizes = new FlowRow;
    sizes->setFilled(true);
    for (QLabel* const label :
         {chosenBore_ = build::valueLabel("Label11"), chosenOd_ = build::valueLabel("Label12"),
         chosenHeight_ = build::valueLabel("Label13")})
        sizes->addWidget(label);
    auto* const column = theme::spaced(new QVBoxLayout(chosenGroup_), theme::kGap);
    column->addLayout(sizes);
    column->addWidget(hint_);
    column->addWidget(warning_);
    // The list stays where it is when a choice appears.
    build::keepRoom(*chosenGroup_);
    return chosenGroup_;
}

void Form15::layOut() {
    auto* const top = new FlowRow;
    top->setFilled(true);
    for (QGroupBox* const frame : {requirementsFrame(), loadsFrame(), styleFrame()}) {
        frame->layout()->setContentsMargins(theme::kGap, theme::kGap, theme::kGap, theme::kGap);
        top->addWidget(frame);
    }
    page().addLayout(top);
    page().addWidget(resultsFrame(), 1);
    page().addWidget(chosenFrame());
    shortCut_ = button("Command4", "&Short-cut to Data Sheet", "Create data sheet for chosen bearing",
                       [this] { showDataSheet(); });
    setFooter(
        {.mainMenu = button("Command1", "&Main Menu", "Return to Main Menu", [this] { goToMainMenu(); }),
         .previous = button("Command2", "<< &Previous", "Go back to Load input", [this] { goToPrevious(); }),
         .others = {button("Command5", "&Sort List", "Sort list of bearings", [this] { sort(); }),
                    button("Command3", "P&rint Results", "Print results from search", [this] { print(); }),
                    button("Command6", "Save", "Save Results to file", [this] { save(); })},
         .main = shortCut_});
}

void Form15::connectChoice() {
    connect(list_, &QComboBox::currentIndexChanged, this,
            [this](int index) { run("Choose bearing", [this, index] { choose(index); }); });
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& row) { list_->setCurrentIndex(row.row()); });
    connect(table_->header(), &QHeaderView::sectionClicked, this,
            [this](int column) { run("Sort List", [this, column] { sortByHead(column); }); });
    on(table_, &QTreeView::doubleClicked, "Short-cut to Data Sheet", [this] { showDataSheet(); });
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
    fillList(false, 1);
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
    rows_->setRowCount(0);
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
        fillList(true, std::max(1, entryOf(state().search, state().search.chosenName)));
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
    alignEqualSigns(std::vector{minBore_, maxOd_, minHeight_, maxHeight_});
    alignEqualSigns(std::vector{radial_, axial_, moment_, speed_});
    styleGroup_->setTitle(text(caption));
    for (QWidget* const widget : {static_cast<QWidget*>(listHead_), static_cast<QWidget*>(list_)})
        widget->setFont(theme::listFont(hasSpacers(caption)));
    if (const StyleRow* const style = styleByCaption(caption)) {
        picture_->showFile(services().folder, stylePicture(*style, 'T'));
    }
}

void Form15::fillList(bool fresh, int entry) {
    {
        const QSignalBlocker quietList(list_);
        const QSignalBlocker quietTable(table_->selectionModel());
        fillHitModel(*rows_, state(), fresh);
        // The widths that the user gave the columns are kept as long as the rows are the same.
        const bool checks = hasChecks(state());
        if (fresh) table_->layOutColumns(state().loads.speed != 0.0, checks);
        // The table stays where it is when a marked row is chosen.
        build::keepRoom(*warning_, checks);
        table_->showOrder(state().search);
        list_->setCurrentIndex(-1);
    }
    list_->setCurrentIndex(entry - 1);
    shortCut_->setEnabled(true);
    table_->setFocus();
}

void Form15::choose(int index) {
    const std::optional<ChosenBearing> chosen = chosenHit(state(), index + 1);
    if (!chosen) return;
    state().search.chosenName = chosen->caption;
    table_->setCurrentIndex(rows_->index(index, kNameColumn));
    chosenGroup_->setTitle(text(chosen->caption));
    chosenBore_->setText(text(chosen->boreLine));
    chosenOd_->setText(text(chosen->odLine));
    chosenHeight_->setText(text(chosen->heightLine));
    hint_->setText(text(chosen->spacerHint));
    hint_->setVisible(!chosen->spacerHint.empty());
    QString warning = checkSentencesOf(state().search.rows[static_cast<std::size_t>(index)]);
    warning_->setText(warning.replace(QLatin1Char('\n'), QLatin1String("  ")));
    warning_->setVisible(!warning.isEmpty());
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

void Form15::sortByHead(int column) {
    SearchResults& results = state().search;
    if (const int wanted = sortColumnOf(column); wanted != 0) {
        const bool upward = results.sorted && results.sortColumn == wanted && results.sortDirection == "UP";
        results.sortColumn = wanted;
        results.sortDirection = upward ? "DOWN" : "UP";
        sortHits(results);
        results.listOnlyFlag = false;
        fillList(false, std::max(1, entryOf(results, results.chosenName)));
    }
    // A click moves the arrow by itself, also on a head that nothing is sorted by.
    table_->showOrder(results);
}

void Form15::showDataSheet() {
    // The sheet on show is that of the last decode, so the chosen bearing is decoded first.
    if (list_->currentIndex() < 0 || decodeChosen() != DecodeEnd::Decoded) return;
    // The list stays open beneath: who closes the sheet is back at the choice.
    screens().show(forms::kDataSheet);
}

void Form15::print() {
    printDocument(services(), searchDocument(state(), services().clock));
}

void Form15::save() {
    saveAs(searchDocument(state(), services().clock));
}

}  // namespace norlaplan
