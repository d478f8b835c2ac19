#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/TableFaults.h"
#include "numbers/Int16.h"
#include "numbers/Single.h"
#include "state/Descriptor.h"
#include "state/ProgramFolder.h"

namespace norlaplan {

/// A catalogue table, read as a stream of fields from the top. Fields end at commas and line ends, so a row
/// is what a reader takes. Blanks before a field are passed over; a text may stand in double quotes; a number
/// is what stands at the start of its field, 0 for none; an empty line is an empty field. Texts are UTF-8,
/// whatever encoding the file has.
///
/// The file is read piece by piece, whatever its size. Errors: 53 when the file or its folder is missing, 62
/// past the end, 6 for a number that its target doesn't hold and for a field of more than 65535 characters,
/// 75 for a folder in the table's place, 321 for a file of more than 64 MB, 70 and 57 as the platform raises
/// them. Their texts name the file, but that of a number that is too large.
class CatalogueTable {
  public:
    /// Opens "13-X.csv" and the like in the data folder; names are matched without regard to case.
    CatalogueTable(const ProgramFolder& folder, std::string_view name);

    /// Reads the next fields into the targets, one after the other: texts, 32-bit floats, 16-bit whole
    /// numbers, or arrays of floats.
    template <typename... Targets>
    void NextFields(Targets&... targets) {
        (take(targets), ...);
    }
    void skipFields(int count);

    /// The fields that were read as numbers and hold something else, since these were last taken.
    const std::vector<TableFault>& faults() const { return faults_; }
    std::vector<TableFault> takeFaults() { return std::exchange(faults_, {}); }

    /// Whether the file is exhausted; told between rows.
    bool AtEnd();

    /// The row of the next field, as a spreadsheet counts them, from 1.
    int row() const { return row_; }

    /// The part of the file that is read, 0 to 1.
    double partRead() const;

  private:
    void take(std::string& target);
    void take(Single& target);
    void take(double& target);
    void take(Int16& target);
    template <typename Number, std::size_t N>
    void take(std::array<Number, N>& targets) {
        for (Number& target : targets)
            take(target);
    }
    /// The next field as a number; what is none is noted.
    double number();
    /// The text of the next field, good until something else is read.
    std::string_view nextField();
    std::string_view plainField();
    std::string_view quotedField();
    void keep();
    void endField();
    /// Passes over the mark that spreadsheets write at the head of a UTF-8 text.
    void skipByteOrderMark();
    /// The next character without taking it; -1 at the end.
    int peek();
    int get();
    void readBlock();

    Descriptor file_;
    std::array<char, 16384> block_;
    std::size_t at_ = 0, filled_ = 0;
    double size_ = 0.0, read_ = 0.0;
    std::string field_;  ///< what doesn't stand in the block in one piece
    std::filesystem::path path_;
    std::string name_;
    int row_ = 1, column_ = 1;  ///< of the next field
    std::vector<TableFault> faults_;
};

/// Opens a table of the data folder.
inline CatalogueTable OpenTable(const ProgramFolder& folder, std::string_view name) {
    return {folder, name};
}

}  // namespace norlaplan
