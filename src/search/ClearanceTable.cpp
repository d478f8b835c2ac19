#include "search/ClearanceTable.h"

#include <array>

#include "numbers/Text.h"

namespace norlaplan {

std::optional<Single> ClearanceTable::meanFor(Single bore) {
    if (!table_) {
        table_.emplace(folder_, "cls0.csv");
        table_->skipFields(10);
    }
    for (;;) {
        if (const auto known = means_.find(bore.stored()); known != means_.end()) return known->second;
        if (table_->AtEnd() || !watch_.goOn()) return std::nullopt;
        std::array<Single, 10> row;
        table_->NextFields(row);
        means_.emplace(Single(row[0] / 25.4).stored(), Single((row[7] + row[8]) / 2.0));
    }
}

}  // namespace norlaplan
