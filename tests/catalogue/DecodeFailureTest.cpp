#include <string>

#include <gtest/gtest.h>

#include "catalogue/SmallCatalogue.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::SmallCatalogue;

const Message kRecheck{"Please recheck validity of part number", "Unexpected error in part-number entry",
                       Icon::None};

/// A table with a number whose decode reads it.
struct TableUse {
    const char* table;
    const char* number;
};
constexpr TableUse kUses[] = {
    {"13-X.csv", "K19013XP0"},       {"13-A.csv", "K19013BP0K"},      {"13-C.csv", "K19013CP0"},
    {"CLS0.csv", "K19013XP0"},       {"CLS6.csv", "K19013XP6"},       {"CLS0N.csv", "N19013XP0"},
    {"CLS4N.csv", "N19013XP4"},      {"ASEPARATOR.CSV", "K19013AP0"}, {"XSEPARATOR.CSV", "K19013CP0"},
    {"Fitnumber.doc", "K19013XP0K"}, {"SPEEDA.CSV", "K19013AP0"},     {"SPEEDC.CSV", "K19013CP0"},
    {"SPEEDX.CSV", "K19013XP0"},
};

class ATableOfADecode : public ::testing::TestWithParam<TableUse> {
  protected:
    /// Whatever a table holds, a decode ends in one of its ways and has told the user unless it succeeded.
    void expectAnEnd() {
        const DecodeResult result = run.decode(GetParam().number);
        // What is no number in the table is told besides.
        std::erase_if(run.messages.shown,
                      [](const Message& message) { return message.title == "Catalog Tables"; });
        if (result.end == DecodeEnd::Decoded) {
            EXPECT_TRUE(run.messages.shown.empty());
            EXPECT_EQ(run.sheets.stored.size(), 1U);
            return;
        }
        EXPECT_EQ(run.messages.shown.size(), 1U);
        EXPECT_TRUE(run.sheets.stored.empty());
    }

    SmallCatalogue catalogue;
    Decoding run{catalogue.path()};
};

TEST_P(ATableOfADecode, WhenMissingSendsTheUserBackToEntry) {
    catalogue.remove(GetParam().table);
    const DecodeResult result = run.decode(GetParam().number);
    EXPECT_EQ(result.end, DecodeEnd::BackToEntry);
    EXPECT_TRUE(result.failed);
    EXPECT_EQ(result.faultNumber, 53);
    EXPECT_EQ(run.messages.shown, (std::vector<Message>{kRecheck}));
    EXPECT_EQ(run.bearing().partNumber, "");
}

TEST_P(ATableOfADecode, WhenEmptyEndsTheDecodeCleanly) {
    catalogue.write(GetParam().table, "");
    expectAnEnd();
}

TEST_P(ATableOfADecode, CutAnywhereEndsTheDecodeCleanly) {
    const std::string whole = catalogue.read(GetParam().table);
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        catalogue.write(GetParam().table, whole.substr(0, length));
        run.messages.shown.clear();
        run.sheets.stored.clear();
        expectAnEnd();
    }
}

TEST_P(ATableOfADecode, WithLettersForNumbersEndsTheDecodeCleanly) {
    std::string text = catalogue.read(GetParam().table);
    // The keys stay, so that the row is found and its values are read.
    bool key = true;
    int column = 0;
    for (char& c : text) {
        if (c == ',' || c == '\n') column = c == '\n' ? 0 : column + 1;
        key = column < 3;
        if (!key && c >= '0' && c <= '9') c = 'x';
    }
    catalogue.write(GetParam().table, text);
    expectAnEnd();
}

TEST_P(ATableOfADecode, OfBinaryBytesEndsTheDecodeCleanly) {
    std::string bytes;
    unsigned value = 12345;
    for (int i = 0; i < 200000; ++i) {
        value = value * 1664525U + 1013904223U;
        bytes += static_cast<char>(value >> 24U);
    }
    catalogue.write(GetParam().table, bytes);
    expectAnEnd();
}

INSTANTIATE_TEST_SUITE_P(Tables, ATableOfADecode, ::testing::ValuesIn(kUses));

class AFailingDecode : public ::testing::Test {
  protected:
    /// The run stops where it is, having told the fault; without its number nothing reads what is left.
    void expectStopped(const std::string& number, int fault, const std::string& description) {
        const DecodeResult result = run.decode(number);
        EXPECT_EQ(result.end, DecodeEnd::Stopped);
        EXPECT_TRUE(result.failed);
        EXPECT_EQ(result.faultNumber, fault);
        EXPECT_EQ(run.messages.shown,
                  (std::vector<Message>{
                      {"Please contact Varden with " + std::to_string(fault), description, Icon::None}}));
        EXPECT_EQ(run.bearing().partNumber, "");
    }

    SmallCatalogue catalogue;
    Decoding run{catalogue.path()};
};

TEST_F(AFailingDecode, StopsWhereItIsForAnyFaultButAMissingFile) {
    catalogue.write("13-X.csv", "0.6,,,,,,,,,\n13,,,,,,,,,\nshort,1,100\n");
    expectStopped("K19013XP0", 62,
                  "Input past end of file: " + (catalogue.path() / "Data Tables" / "13-X.csv").string());
}

TEST_F(AFailingDecode, StopsAtARowWithoutSizesAndBallsWithADivisionByZero) {
    catalogue.write("13-C.csv", "0.6,,,,,,,,,\n13,,,,,,,,,\nname,,190,,,,,,1,\n");
    // No balls: their share of the rating has nothing to be divided by.
    expectStopped("K19013CP0K", 11, "Division by zero");
}

TEST_F(AFailingDecode, StopsAtABoreOfZeroInTheSpeedsWithADivisionByZero) {
    catalogue.write("13-X.csv", "0.6,,,,,,,,,\n13,,,,,,,,,\nname,,0,216,1,1,1,1,1,80\n");
    catalogue.write("CLS0.csv", ",,,,,,,,,\n0,1,1,1,1,1,1,1,1,1\n");
    expectStopped("K00013XP0", 11, "Division by zero");
}

TEST_F(AFailingDecode, StopsAtABallCountBeyondSixteenBits) {
    catalogue.write("13-X.csv", "0.6,,,,,,,,,\n13,,,,,,,,,\nname,1,190,216,1,1,1,1,1,40000\n");
    expectStopped("K19013XP0", 6, "Overflow");
}

TEST_F(AFailingDecode, GoesBackToEntryForAMissingOverlay) {
    std::filesystem::remove(catalogue.path() / "overlays" / "X.ovl");
    const DecodeResult result = run.decode("K19013XP0");
    EXPECT_EQ(result.end, DecodeEnd::BackToEntry);
    EXPECT_EQ(result.faultNumber, 53);
    EXPECT_EQ(run.messages.shown, (std::vector<Message>{kRecheck}));
}

TEST_F(AFailingDecode, GoesBackToEntryForAMissingDataFolder) {
    std::filesystem::remove_all(catalogue.path() / "Data Tables");
    EXPECT_EQ(run.decode("K19013XP0").end, DecodeEnd::BackToEntry);
    EXPECT_EQ(run.messages.shown, (std::vector<Message>{kRecheck}));
}

TEST_F(AFailingDecode, FailsAlikeForAnOverlayWhetherAnybodyReadsTheSheetOrNot) {
    namespace fs = std::filesystem;
    const fs::path overlays = catalogue.path() / "overlays";
    const auto missing = [](const fs::path& file) { fs::remove(file); };
    const auto folderInItsPlace = [](const fs::path& file) {
        fs::remove(file);
        fs::create_directory(file);
    };
    using Damage = void (*)(const fs::path&);
    for (const char* const file : {"X.ovl", "RIBBONXC.sep"}) {
        for (const Damage damage : {Damage(missing), Damage(folderInItsPlace)}) {
            catalogue.write("../overlays/" + std::string(file), "PU0,0;PD10,10;");
            std::string read = "K19013XP0";
            std::string unread = read;
            damage(overlays / file);
            Decoding with{catalogue.path()};
            Decoding without{catalogue.path()};
            DecodeServices sheet{with.folder, with.messages, with.clock, &with.sheets};
            DecodeServices noSheet{without.folder, without.messages, without.clock, nullptr};
            const DecodeResult expected = DecodePartNumber(with.state, read, sheet);
            const DecodeResult result = DecodePartNumber(without.state, unread, noSheet);
            EXPECT_TRUE(expected.failed) << file;
            EXPECT_EQ(result.end, expected.end) << file;
            EXPECT_EQ(result.faultNumber, expected.faultNumber) << file;
            EXPECT_EQ(without.messages.shown, with.messages.shown) << file;
            EXPECT_EQ(without.bearing().partNumber, "") << file;
            fs::remove_all(overlays / file);
        }
    }
}

class FullDisk : public SheetStorePort {
    void store(const SheetFiles&) override { throw RuntimeError(61); }
};

TEST_F(AFailingDecode, StopsWhenTheSheetCannotBeWritten) {
    FullDisk disk;
    DecodeServices services{run.folder, run.messages, run.clock, &disk};
    std::string number = "K19013XP0";
    const DecodeResult result = DecodePartNumber(run.state, number, services);
    EXPECT_EQ(result.end, DecodeEnd::Stopped);
    EXPECT_EQ(result.faultNumber, 61);
    EXPECT_EQ(run.bearing().partNumber, "") << "the sheet on disk is another bearing's";
    EXPECT_EQ(run.messages.shown,
              (std::vector<Message>{{"Please contact Varden with 61", "Disk full", Icon::None}}));
}

TEST_F(AFailingDecode, LeavesTheTablesThatItReadAsTheyWere) {
    const std::string before = catalogue.read("13-X.csv");
    run.decode("K19113XP0");
    EXPECT_EQ(catalogue.read("13-X.csv"), before);
}

TEST_F(AFailingDecode, IsFollowedByAGoodOneThatSeesTheTablesAnew) {
    const std::string whole = catalogue.read("13-X.csv");
    catalogue.write("13-X.csv", "");
    EXPECT_EQ(run.decode("K19013XP0").faultNumber, 62);
    catalogue.write("13-X.csv", whole);
    EXPECT_EQ(run.decode("K19013XP0").end, DecodeEnd::Decoded);
}

TEST_F(AFailingDecode, EndsForATableOfFiftyMegabytes) {
    std::string content = "0.6,,,,,,,,,\n13,,,,,,,,,\n";
    while (content.size() < 50000000)
        content += "name,1,100,116,1,2,3,4,1,50\n";
    catalogue.write("13-X.csv", content);
    EXPECT_EQ(run.decode("K19013XP0").end, DecodeEnd::BackToEntry);
    EXPECT_EQ(run.messages.shown.back().prompt, "Bore size not found");
}

}  // namespace
}  // namespace norlaplan
