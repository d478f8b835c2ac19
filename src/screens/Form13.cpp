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
    bore_ = build::option("Option1", "Bore Diameter");
    od_ = build::option("Option2", "Outer Diameter");
    life_ = build::option("Option3", "L10 Life");
    availability_ = build::option("Option4", "Availability");
    ascending_ = build::option("Option5", "Ascending");
    descending_ = build::option("Option6", "Decending");
    process_ = button("Command1", "Process", "Sort the list and go back to it", [this] { process(); });
    bore_->setChecked(true);
    ascending_->setChecked(true);

    QGroupBox* const columns = build::frame("Frame1", "Sort by");
    auto* const columnBox = theme::spaced(new QVBoxLayout(columns));
    for (QRadioButton* const option : {bore_, od_, life_, availability_})
        columnBox->addWidget(option);
    QGroupBox* const order = build::frame("Frame2", "Order");
    auto* const orderBox = theme::spaced(new QVBoxLayout(order));
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
    process_->setFocus();
}

void Form13::process() {
    const BusyPointer busy;
    SearchResults& results = state().search;
    results.sortColumn = od_->isChecked()             ? kSortByOd
                         : life_->isChecked()         ? kSortByLife
                         : availability_->isChecked() ? kSortByAvailability
                                                      : kSortByBore;
    results.sortDirection = ascending_->isChecked() ? "UP" : "DOWN";
    sortHits(results);
    screens().hide(*this);
}

}  // namespace norlaplan
