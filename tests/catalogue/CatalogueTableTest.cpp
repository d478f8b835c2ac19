#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "catalogue/CatalogueTable.h"
#include "numbers/RuntimeError.h"
#include "support/FaultOf.h"
#include "support/ProcessorTime.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::faultOf;

class ATable : public ::testing::Test {
  protected:
    CatalogueTable open(const std::string& content) {
        files.write("Data Tables/13-x.CSV", content);
        return OpenTable(folder, "13-X.csv");
    }
    /// What the action tells of table 13-x.CSV: the path must follow a colon.
    std::string toldOfTable(auto&& action) {
        try {
            action();
        } catch (const RuntimeError& error) {
            const std::string text = error.what();
            const std::string named = ": " + (files.path() / "Data Tables" / "13-x.CSV").string();
            return text.ends_with(named) ? text.substr(0, text.size() - named.size()) : "unnamed: " + text;
        }
        return "";
    }
    testing::TemporaryFolder files;
    ProgramFolder folder{files.path()};
};

TEST_F(ATable, ThatIsAPipeIsNotWaitedFor) {
    std::filesystem::create_directory(files.path() / "Data Tables");
    ASSERT_EQ(::mkfifo((files.path() / "Data Tables" / "13-X.csv").c_str(), 0600), 0);
    EXPECT_EQ(faultOf([&] { OpenTable(folder, "13-X.csv"); }), fault::kPathAccess);
}

TEST_F(ATable, GivesTypedFieldsOneAfterTheOtherAcrossLineEnds) {
    CatalogueTable table = open("K19,1,190.1\n-7.5,+3\n");
    std::string name;
    Int16 stock;
    Single bore, next;
    Int16 last;
    table.NextFields(name, stock, bore, next, last);
    EXPECT_EQ(name, "K19");
    EXPECT_EQ(stock, 1);
    EXPECT_EQ(bore.stored(), 190.1F);
    EXPECT_EQ(next, -7.5);
    EXPECT_EQ(last, 3);
    EXPECT_TRUE(table.AtEnd());
}

TEST_F(ATable, ShiftsEverythingBehindARowThatIsAFieldShort) {
    CatalogueTable table = open("a,1\nb,2,3\n");
    std::array<std::string, 3> row;
    table.NextFields(row[0], row[1], row[2]);
    EXPECT_EQ(row[2], "b");
}

TEST_F(ATable, IsFoundWhateverTheCaseOfFolderAndName) {
    files.write("DATA TABLES/Cls0.CSV", "4\n");
    Single value;
    OpenTable(folder, "CLS0.csv").NextFields(value);
    EXPECT_EQ(value, 4.0);
}

TEST_F(ATable, BeginsBehindTheMarkThatASpreadsheetWrites) {
    CatalogueTable table = open("\xEF\xBB\xBF.024,7\n");
    Single radius, next;
    table.NextFields(radius, next);
    EXPECT_EQ(radius.stored(), .024F);
    EXPECT_EQ(next, 7.0);
    EXPECT_TRUE(table.AtEnd());

    EXPECT_TRUE(open("\xEF\xBB\xBF").AtEnd());
    CatalogueTable inside = open("1,\xEF\xBB\xBF");
    std::string text;
    inside.NextFields(next, text);
    EXPECT_EQ(text, "\xEF\xBB\xBF") << "elsewhere it is a text like any other";
}

TEST_F(ATable, ThatIsMissingIsNamedInTheFault) {
    try {
        OpenTable(folder, "CLS9.csv");
        FAIL() << "there is no such table";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.what(), "File not found: " + (files.path() / "Data Tables" / "CLS9.csv").string());
    }
}

TEST_F(ATable, TakesATextFromBetweenDoubleQuotes) {
    CatalogueTable table = open(R"(P, "P= Ribbon, brass" ,RIBBON)");
    std::string code, text, overlay;
    table.NextFields(code, text, overlay);
    EXPECT_EQ(text, "P= Ribbon, brass");
    EXPECT_EQ(overlay, "RIBBON");
}

TEST_F(ATable, PassesOverBlanksBeforeAFieldAndKeepsThoseBehindAText) {
    CatalogueTable table = open("  \tP ,   7\n");
    std::string code;
    Single number;
    table.NextFields(code, number);
    EXPECT_EQ(code, "P ");
    EXPECT_EQ(number, 7.0);
}

struct NumberCase {
    const char* field;
    double value;
};
class ANumericField : public ATable, public ::testing::WithParamInterface<NumberCase> {};

TEST_P(ANumericField, IsTheNumberAtItsStart) {
    CatalogueTable table = open(std::string(GetParam().field) + ",1");
    Single value = 99.0;
    table.NextFields(value);
    EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Fields, ANumericField,
                         ::testing::Values(NumberCase{"", 0.0}, NumberCase{"   ", 0.0},
                                           NumberCase{"190", 190.0}, NumberCase{"190 mm", 190.0},
                                           NumberCase{"12abc", 12.0}, NumberCase{"abc", 0.0},
                                           NumberCase{"-.5", -0.5}, NumberCase{"2.5E+02", 250.0},
                                           NumberCase{"\"8\"", 8.0}, NumberCase{"1.5.5", 1.5}));

TEST_F(ATable, ReadsLinesThatEndInCrLfLfOrCr) {
    CatalogueTable table = open("1\r\n2\n3\r4");
    std::array<Single, 4> values;
    table.NextFields(values);
    EXPECT_EQ(values[0], 1.0);
    EXPECT_EQ(values[1], 2.0);
    EXPECT_EQ(values[2], 3.0);
    EXPECT_EQ(values[3], 4.0);
    EXPECT_TRUE(table.AtEnd());
}

TEST_F(ATable, GivesFieldsOfAnyLengthWhereverThePiecesItIsReadByEnd) {
    // Fields of 0 to 40 characters, plain and quoted, behind one that moves all of them: each stands once in
    // every place around the ends of the pieces of 16 KB.
    for (const char* const end : {",", "\n", "\r\n", "\r"}) {
        for (std::size_t shift = 0; shift < 42; ++shift) {
            std::string content = std::string(16384 - 30 - shift, 'a') + end;
            std::vector<std::string> expected;
            for (std::size_t i = 0; i < 1200; ++i) {
                const std::string field(i % 41, static_cast<char>('b' + i % 20));
                expected.push_back(field);
                content += i % 7 == 0 ? '"' + field + "\" " + end : field + end;
            }
            CatalogueTable table = open(content + "9.5");
            table.skipFields(1);
            for (const std::string& field : expected) {
                std::string text;
                table.NextFields(text);
                ASSERT_EQ(text, field) << shift;
            }
            double last = 0.0;
            table.NextFields(last);
            ASSERT_EQ(last, 9.5);
            ASSERT_TRUE(table.AtEnd());
        }
    }
}

TEST_F(ATable, CountsAnEmptyLineAsAnEmptyField) {
    CatalogueTable table = open("1\n\n3\n");
    std::array<Single, 3> values;
    table.NextFields(values);
    EXPECT_EQ(values[1], 0.0);
    EXPECT_EQ(values[2], 3.0);
}

TEST_F(ATable, HasEverythingReadAtItsEnd) {
    CatalogueTable table = open("1,2\n");
    EXPECT_EQ(table.partRead(), 0.0);
    table.skipFields(2);
    EXPECT_EQ(table.partRead(), 1.0);
}

TEST_F(ATable, RaisesAReadPastTheEnd) {
    CatalogueTable table = open("1,2\n");
    table.skipFields(2);
    Single value;
    EXPECT_EQ(faultOf([&] { table.NextFields(value); }), 62);
}

TEST_F(ATable, RaisesAReadOfAnEmptyFile) {
    CatalogueTable table = open("");
    EXPECT_TRUE(table.AtEnd());
    EXPECT_EQ(faultOf([&] { table.skipFields(1); }), 62);
}

TEST_F(ATable, ThatIsTooShortOrHoldsAnEndlessFieldIsNamedInTheFault) {
    std::string text;
    EXPECT_EQ(toldOfTable([&] { open("").NextFields(text); }), "Input past end of file");
    EXPECT_EQ(toldOfTable([&] { open(std::string(65536, 'x')).NextFields(text); }), "Overflow");
    EXPECT_EQ(toldOfTable([&] { open('"' + std::string(65536, 'x')).NextFields(text); }), "Overflow");
}

TEST_F(ATable, OnADiskThatFailsIsNamedInTheFault) {
    // The first page of a process's memory is a plain file that can be opened and not be read.
    std::filesystem::create_directory(files.path() / "Data Tables");
    std::filesystem::create_symlink("/proc/self/mem", files.path() / "Data Tables" / "13-x.CSV");
    EXPECT_EQ(toldOfTable([&] { OpenTable(folder, "13-X.csv"); }), "Device I/O error");
}

TEST_F(ATable, RaisesAMissingFileOrFolderAsFileNotFound) {
    EXPECT_EQ(faultOf([&] { OpenTable(folder, "13-X.csv"); }), 53);
    files.write("Data Tables/other.csv", "");
    EXPECT_EQ(faultOf([&] { OpenTable(folder, "13-X.csv"); }), 53);
    files.write("elsewhere", "");
    EXPECT_EQ(faultOf([&] { OpenTable(ProgramFolder(files.path() / "elsewhere"), "13-X.csv"); }), 53);
}

TEST_F(ATable, RaisesAFolderInTheTablesPlace) {
    std::filesystem::create_directories(files.path() / "Data Tables" / "13-X.csv");
    EXPECT_EQ(faultOf([&] { OpenTable(folder, "13-X.csv"); }), 75);
}

TEST_F(ATable, RaisesANumberThatItsTargetDoesNotHold) {
    Int16 whole;
    Single single;
    EXPECT_EQ(faultOf([&] { open("32768").NextFields(whole); }), 6);
    EXPECT_EQ(faultOf([&] { open("1E39").NextFields(single); }), 6);
    EXPECT_EQ(faultOf([&] { open("1E400").NextFields(single); }), 6);
}

TEST_F(ATable, TakesBytesOfAnyKindAsUtf8Text) {
    const std::string bytes("\x01\xFF\x00\x80", 4);
    CatalogueTable table = open(bytes + ",5");
    std::string text;
    Single number;
    table.NextFields(text, number);
    EXPECT_EQ(text, std::string("\x01\u00FF\0\u20AC", 7)) << "the last is the euro of Windows";
    EXPECT_EQ(number, 5.0);
}

TEST_F(ATable, KeepsNoMoreThanAPieceOfAnEndlessField) {
    std::string text;
    EXPECT_EQ(faultOf([&] { open(std::string(65536, 'x')).NextFields(text); }), 6);
    EXPECT_EQ(faultOf([&] { open('"' + std::string(1000000, '\n')).NextFields(text); }), 6);
    open(std::string(65535, 'x') + ",").NextFields(text);
    EXPECT_EQ(text.size(), 65535U);
}

TEST_F(ATable, OfAGigabyteIsRefusedUnread) {
    files.write("Data Tables/13-X.csv", "a,b\n");
    std::filesystem::resize_file(files.path() / "Data Tables/13-X.csv", 1U << 30U);
    try {
        OpenTable(folder, "13-X.csv");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), fault::kInvalidFormat);
        EXPECT_NE(std::string(error.what()).find("larger than 64 MB"), std::string::npos);
    }
}

TEST_F(ATable, OfFiftyMegabytesIsReadThroughInAFewSeconds) {
    std::string row = "name,1,100,116,1,2,3,4,1,50\n";
    std::string content;
    while (content.size() < 50000000)
        content += row;
    CatalogueTable table = open(content);
    const double start = testing::processorSeconds();
    while (!table.AtEnd())
        table.skipFields(10);
    EXPECT_LT(testing::processorSeconds() - start, 20.0);
}

}  // namespace
}  // namespace norlaplan
