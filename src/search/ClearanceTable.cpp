#include "search/ClearanceTable.h"

#include <array>
#include <utility>

#include "numbers/Text.h"

namespace norlaplan {

std::optional<Single> ClearanceTable::meanFor(Single bore) {
    if (!table_) {
        table_.emplace(source_.folder, "cls0.csv");
        table_->skipFields(10);
    }
    for (;;) {
        if (const auto known = lines_.find(bore.stored()); known != lines_.end()) {
            source_.faults.add(known->second.faults);
            return known->second.mean;
        }
        if (table_->AtEnd()) {
            source_.faults.add(boreFaults_);
            return std::nullopt;
        }
        if (!watch_.goOn()) return std::nullopt;
        readLine();
    }
}

void ClearanceTable::readLine() {
    Single bore, low, high, last;
    std::array<Single, 6> tolerances;
    table_->NextFields(bore);
    Line line{0.0, table_->takeFaults()};
    boreFaults_.insert(boreFaults_.end(), line.faults.begin(), line.faults.end());
    table_->NextFields(tolerances);
    table_->takeFaults();
    table_->NextFields(low, high);
    const std::vector<TableFault> ofBand = table_->takeFaults();
    line.faults.insert(line.faults.end(), ofBand.begin(), ofBand.end());
    table_->NextFields(last);
    table_->takeFaults();
    line.mean = (low + high) / 2.0;
    lines_.emplace(Single(bore / 25.4).stored(), std::move(line));
}

}  // namespace norlaplan
