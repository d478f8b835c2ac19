#include "screens/Form13.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include "screens/BusyPointer.h"
#include "screens/FormBuilder.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "search/HitSort.h"

namespace norlaplan {

Form13::Form13(Screens& screens) : Form(screens, forms::kSort, "List Sort Options") {
    columns_ = {{{build::option("Option1", "Bore Diameter"), kSortByBore},
                 {build::option("Option2", "Outer Diameter"), kSortByOd},
                 {build::option("Option3", "L10 Life"), kSortByLife},
                 {build::option("Option4", "Availability"), kSortByAvailability}}};
    ascending_ = build::option("Option5", "Ascending");
    descending_ = build::option("Option6", "Decending");
    process_ = button("Command1", "Process", "Sort the list and go back to it", [this] { process(); });
    columns_.front().option->setChecked(true);
    ascending_->setChecked(true);

    QGroupBox* const columns = build::frame("Frame1", "Sort by");
    auto* const columnBox = theme::spaced(new QVBoxLayout(columns), theme::kFrameMargin);
    for (const auto& [option, column] : columns_)
        columnBox->addWidget(option);
    QGroupBox* const order = build::frame("Frame2", "Order");
    auto* const orderBox = theme::spaced(new QVBoxLayout(order), theme::kFrameMargin);
    for (QRadioButton* const option : {ascending_, descending_})
        orderBox->addWidget(option);
    orderBox->addStretch();
    auto* const frames = theme::spaced(new QHBoxLayout, 0);
    frames->addWidget(columns);
    frames->addWidget(order);
    setWidth(Width::Own);
    page().addLayout(frames);
    setFooter({.main = process_});
}

void Form13::opened() {
    // The marks say how the list stands, also where it was sorted by a click on a head.
    const SearchResults& results = state().search;
    if (results.sorted) {
        for (const auto& [option, column] : columns_) {
            if (column == results.sortColumn) option->setChecked(true);
        }
        (results.sortDirection == "UP" ? ascending_ : descending_)->setChecked(true);
    }
    process_->setFocus();
}

void Form13::process() {
    const BusyPointer busy;
    SearchResults& results = state().search;
    for (const auto& [option, column] : columns_) {
        if (option->isChecked()) results.sortColumn = column;
    }
    results.sortDirection = ascending_->isChecked() ? "UP" : "DOWN";
    sortHits(results);
    screens().hide(*this);
}

}  // namespace norlaplan
