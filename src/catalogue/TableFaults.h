#pragma once

#include <string>
#include <vector>

#include "state/Ports.h"
#include "state/ProgramFolder.h"

namespace norlaplan {

/// Something in a table that can't be what its maker meant. It is read as it stands.
struct TableFault {
    std::string table;   ///< "13-X.csv"
    int row, column;     ///< as a spreadsheet counts them, from 1
    std::string text;    ///< what stands there
    std::string saying;  ///< what is wrong with it: "is not a number and reads as 0"

    bool operator==(const TableFault&) const = default;
};

/// What was found wrong in the tables in one decode or search, for the one warning at its end.
class TableFaults {
  public:
    void add(const TableFault& fault);
    void add(const std::vector<TableFault>& faults);

    /// Shows the warning, if there is something to tell, and forgets it.
    void tell(MessagePort& messages);

  private:
    std::vector<TableFault> told_;  ///< each once, as far as a message has room for them
    bool more_ = false;
};

/// Where the tables are, and where what is wrong in them is noted.
struct CatalogueSource {
    const ProgramFolder& folder;
    TableFaults& faults;
};

}  // namespace norlaplan
