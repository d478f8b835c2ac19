#include <algorithm>

#include "Fuzzing.h"
#include "cli/BatchCases.h"

using namespace norlaplan;

namespace {

/// A row is a line: where a field breaks one, it is written with a blank.
std::string onOneLine(std::string field) {
    std::replace(field.begin(), field.end(), '\r', ' ');
    return field;
}

/// Fields that were read are read again as they were once they are written.
void writeAgain(const cli::Case& row) {
    std::string text;
    cli::CsvLine line(text);
    line.field(row.partNumber);
    for (const std::string& field : row.texts)
        line.field(field);
    const std::vector<std::string> fields = cli::csvFields(text);
    fuzz::must(fields.size() == 1 + row.texts.size(), "a line keeps its fields");
    fuzz::must(fields[0] == onOneLine(row.partNumber), "a field is read as it was written");
}

}  // namespace

/// Reads any bytes as a table of cases.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const testing::TemporaryFolder kScratch;
    try {
        kScratch.write("cases.csv", fuzz::textOf(data, size));
        cli::CaseReader cases(kScratch.path() / "cases.csv");
        cli::Case row;
        while (cases.next(row)) {
            fuzz::must(cases.partRead() <= 1.0 + 1e-9, "no more than the file is read");
            if (!row.wrong) writeAgain(row);
        }
    } catch (const cli::CommandError&) {
        return 0;
    }
    return 0;
}
