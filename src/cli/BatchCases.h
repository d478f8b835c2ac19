#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "cli/CommandError.h"
#include "cli/Csv.h"
#include "cli/Session.h"

namespace norlaplan::cli {

/// A row of the cases: a part number and loads in display units, as they stand there and as numbers.
struct Case {
    static constexpr std::size_t kLoads = 4;

    std::string partNumber;
    std::array<std::string, kLoads> texts;  ///< radial, axial, moment, speed
    LoadOptions loads;
    std::optional<CommandError> wrong;  ///< the row can't be read
};

/// The names of the columns that a table of cases has.
constexpr const char* kPartNumberColumn = "partNumber";
constexpr std::array<const char*, Case::kLoads> kLoadColumns = {"radial", "axial", "moment", "speed"};

/// Reads a table of cases. Its head names the columns, in any order; a load that has no column, no field or
/// an empty one is 0. Errors: those of `CsvReader`; `CommandError` for a head that isn't one.
class CaseReader {
  public:
    explicit CaseReader(const std::filesystem::path& path);

    /// Reads the next case; false at the end. A row that can't be read is a case that tells so.
    bool next(Case& row);
    double partRead() const { return reader_.partRead(); }

  private:
    void readHead();

    CsvReader reader_;
    std::string line_;
    std::vector<std::size_t> columns_;  ///< of each field: 0 the part number, from 1 the loads
};

}  // namespace norlaplan::cli
