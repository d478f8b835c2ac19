#include <array>

#include "Fuzzing.h"
#include "catalogue/PartNumberMeaning.h"
#include "catalogue/Subroutines.h"
#include "documents/SheetRecords.h"
#include "numbers/RuntimeError.h"
#include "search/SearchEngine.h"
#include "state/LoadEntry.h"
#include "support/Folders.h"

using namespace norlaplan;

namespace {

/// A table, and a bearing of the sample catalogue whose decode reads it.
struct Row {
    const char* table;
    const char* partNumber;
    const char* searchLetter;  ///< of the search that reads it
};
constexpr std::array<Row, 13> kRows = {{{"13-X.csv", "K19013XP0K", "X"},
                                        {"13-C.csv", "K19013CP0K", "C"},
                                        {"13-A.csv", "K19013BR0A", "A"},
                                        {"CLS0.csv", "K19013XP0K", "C"},
                                        {"CLS4.csv", "K19013XP4K", ""},
                                        {"CLS0N.csv", "N19013XP0K", ""},
                                        {"CLS4N.csv", "N19013CP4K", ""},
                                        {"XSEPARATOR.CSV", "K19013XP0K", ""},
                                        {"ASEPARATOR.CSV", "K19013BR0A", ""},
                                        {"Fitnumber.doc", "K19013XP0K", ""},
                                        {"SPEEDX.CSV", "K19013XP0K", "X"},
                                        {"SPEEDC.CSV", "K19013CP0K", "C"},
                                        {"SPEEDA.CSV", "K19013BR0A", "A"}}};

/// The program folder of a fuzzer: one table is its own, the others are those of the sample catalogue.
class Tables {
  public:
    explicit Tables(const Row& row) : folder_(scratch_.path(), testing::sourceFolder() / "data") {
        place_ = std::filesystem::path("Data Tables") / row.table;
        // Searches of one bearing, or of the own table alone, are short.
        const std::string letter = row.searchLetter;
        if (letter.empty()) return;
        const std::string head = "0.6,,,,,,,,,\n13,,,,,,,,,\n";
        scratch_.write("Data Tables/8-" + letter + ".csv", head);
        scratch_.write("Data Tables/20-" + letter + ".csv", head);
        scratch_.write("Data Tables/13-" + letter + ".csv",
                       head + "K19013" + letter + "P0,2,190,216,198.4125,207.5875,0,0.6045,3,81\n");
    }

    const ProgramFolder& holding(const std::string& content) const {
        scratch_.write(place_, content);
        return folder_;
    }

  private:
    testing::TemporaryFolder scratch_;
    ProgramFolder folder_;
    std::filesystem::path place_;
};

class PaintedSheets : public SheetStorePort {
  public:
    void store(const SheetFiles& sheet) override {
        fuzz::NoCanvas canvas;
        paintSheet(sheet.records, canvas);
    }
};

void decode(const Row& row, const ProgramFolder& folder) {
    ProgramState state;
    explainPartNumber(row.partNumber, "", state.units, folder);
    std::string number = row.partNumber;
    fuzz::Impatient messages;
    testing::FixedClock clock;
    PaintedSheets sheets;
    DecodeServices services{folder, messages, clock, &sheets};
    const DecodeResult result = DecodePartNumber(state, number, services);
    fuzz::must(state.bearing.partNumber.empty() == (result.end != DecodeEnd::Decoded),
               "a decode that failed leaves no bearing");
}

class Onlooker : public SearchWatch {
  public:
    bool goOn(double done) override {
        fuzz::must(done >= 0.0 && done <= 1.0, "a search is between its begin and its end");
        return true;
    }
};

void search(const Row& row, const ProgramFolder& folder) {
    const std::string letter = row.searchLetter;
    if (letter.empty()) return;
    ProgramState state;
    state.style = {letter == "C"   ? "RADIAL CONTACT"
                   : letter == "X" ? "4-POINT CONTACT"
                                   : "BACK-TO-BACK SET",
                   letter};
    state.criteria = {0.1, 1000.0, 0.1, 3.0, 0.1, 1000.0, 0.1, 3.0};
    state.loads.radialLoadDisplay = 100.0;
    if (letter != "C") state.loads.axialLoadDisplay = 50.0;
    convertLoads(state);
    fuzz::Impatient messages;
    Onlooker watch;
    try {
        const SearchEnd end = RunBearingSearch(state, folder, messages, watch);
        fuzz::must((end == SearchEnd::Found) == !state.search.rows.empty(), "what is found is listed");
    } catch (const RuntimeError&) {
        fuzz::must(state.search.rows.empty(), "a search that failed leaves no rows");
    }
}

}  // namespace

/// Puts any bytes in place of a table, which the first byte chooses: a bearing is decoded from it, with its
/// data sheet, and a search reads it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    static const auto kTables = [] {
        std::array<std::unique_ptr<Tables>, kRows.size()> tables;
        for (std::size_t i = 0; i < kRows.size(); ++i)
            tables[i] = std::make_unique<Tables>(kRows[i]);
        return tables;
    }();
    const std::size_t chosen = data[0] % kRows.size();
    const ProgramFolder& folder = kTables[chosen]->holding(fuzz::textOf(data + 1, size - 1));
    decode(kRows[chosen], folder);
    search(kRows[chosen], folder);
    return 0;
}
