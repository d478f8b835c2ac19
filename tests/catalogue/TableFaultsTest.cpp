#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "catalogue/CatalogueTable.h"
#include "catalogue/PartNumberMeaning.h"
#include "catalogue/SmallCatalogue.h"
#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::SmallCatalogue;

Message warning(const std::string& lines) {
    return {"Catalog Tables", lines, Icon::Warning};
}

/// A decode in a small catalogue of which one text was replaced by another.
struct Damaged {
    Damaged(const std::string& table, const std::string& text, const std::string& by) {
        std::string content = tables.read(table);
        const std::size_t at = content.find(text);
        EXPECT_NE(at, std::string::npos) << text;
        tables.write(table, content.replace(at, text.size(), by));
    }
    std::vector<Message> messagesOf(const std::string& number) {
        Decoding run(tables.path());
        ApplyUnitSystem("US", run.state.units);
        run.decode(number);
        bearing = run.bearing();
        return run.messages.shown;
    }

    SmallCatalogue tables;
    BearingSpec bearing;
};

TEST(AFieldThatIsNoNumber, IsToldOnceWithTableRowAndColumnByADecodeThatUsedIt) {
    struct Row {
        const char *table, *text, *by, *number, *sentence;
    };
    const Row rows[] = {
        {"13-X.csv", "0.6,,,,,,,,,", "nan,,,,,,,,,", "K19013XP0",
         "Table 13-X.csv, row 1, column 1: \"nan\" is not a number and is read as 0."},
        {"13-X.csv", "\r\n13,", "\r\n13mm,", "K19013XP0",
         "Table 13-X.csv, row 2, column 1: \"13mm\" is not a number and is read as 13."},
        {"13-X.csv", "190,216,198.5", "190,216,O198.5", "K19013XP0",
         "Table 13-X.csv, row 5, column 5: \"O198.5\" is not a number and is read as 0."},
        {"13-X.csv", "big,1,190,", "big,1,190x,", "K19013XP0",
         "Table 13-X.csv, row 5, column 3: \"190x\" is not a number and is read as 190."},
        {"CLS0.csv", "190,-.0012", "190,-.0O12", "K19013XP0",
         "Table CLS0.csv, row 3, column 2: \"-.0O12\" is not a number and is read as 0."},
        {"CLS0N.csv", "190,-.0002", "190,-.0002\"", "N19013XP0",
         "Table CLS0N.csv, row 2, column 2: \"-.0002\"\" is not a number and is read as -0.0002."},
        {"Fitnumber.doc", "A,.0001,.0005", "A,.0001,inf", "K19013XP0A",
         "Table Fitnumber.doc, row 1, column 3: \"inf\" is not a number and is read as 0."}};
    for (const Row& row : rows) {
        Damaged damaged(row.table, row.text, row.by);
        EXPECT_EQ(damaged.messagesOf(row.number), std::vector<Message>{warning(row.sentence)}) << row.by;
        EXPECT_EQ(damaged.bearing.partNumber, row.number) << "decoded all the same";
    }
}

TEST(AFieldThatIsNoNumber, IsToldOfTheLineOfTheSpeedTable) {
    Damaged damaged("SPEEDX.CSV", ",301,", ",3O1,");
    EXPECT_EQ(damaged.messagesOf("K19013XJ0"),
              std::vector<Message>{
                  warning("Table SPEEDX.CSV, row 2, column 73: \"3O1\" is not a number and is read as 3.")});
    EXPECT_EQ(damaged.messagesOf("K19013XP0"), std::vector<Message>{}) << "another line";
}

TEST(AFieldThatIsNoNumber, IsNotToldByADecodeThatDidNotUseIt) {
    for (const auto& [text, by] : {std::pair{"first,1,100,126", "first,x,100x,y"},   // a row before
                                   std::pair{"blank,,200,226", "blank,x,2O0,226"},   // a row behind
                                   std::pair{"0.6,,,,,,,,,", "0.6,mm,x,y,z,,,,,"}})  // the rest of a head row
        EXPECT_EQ(Damaged("13-X.csv", text, by).messagesOf("K19013XP0"), std::vector<Message>{}) << by;
}

TEST(AFieldThatIsNoNumber, IsNoMatterWhereItIsEmptyOrATextOrANumberWithBlanks) {
    for (const auto& [text, by] :
         {std::pair{"big,1,190", "big, ,190"}, std::pair{"big,1,190", "big,\" 1 \",190"},
          std::pair{"big,1,190", "nan,+1, 1.9E2 "}, std::pair{"0.6,3,81", "6.0e-1 ,3,81\t"}})
        EXPECT_EQ(Damaged("13-X.csv", text, by).messagesOf("K19013XP0"), std::vector<Message>{}) << by;
}

TEST(AFieldThatIsNoNumber, IsToldBeforeARefusalThatItMayExplain) {
    Damaged damaged("13-X.csv", "big,1,190,", "big,1,l90,");
    EXPECT_EQ(damaged.messagesOf("K19013XP0"),
              (std::vector<Message>{
                  warning("Table 13-X.csv, row 5, column 3: \"l90\" is not a number and is read as 0."),
                  {"Retry Data Entry", "Bore size not found"}}));
    EXPECT_EQ(damaged.messagesOf("K20013XP0"), std::vector<Message>{}) << "found without it";
}

TEST(FieldsThatAreNoNumbers, AreToldInOneMessageAsFarAsOneReads) {
    Damaged few("13-X.csv", "1,190,216,198.5", "a,190,b,c");
    EXPECT_EQ(few.messagesOf("K19013XP0").at(0),
              warning("Table 13-X.csv, row 5, column 2: \"a\" is not a number and is read as 0.\n"
                      "Table 13-X.csv, row 5, column 4: \"b\" is not a number and is read as 0.\n"
                      "Table 13-X.csv, row 5, column 5: \"c\" is not a number and is read as 0."));
    Damaged many("CLS0.csv", "190,-.0012,-.0014,.0016,.0017,.0018,.0019,.0008,.0019,-.005",
                 "190,x,x,x,x,x,x,x,x,x");
    const std::string told = many.messagesOf("K19013XP0").at(0).prompt;
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 8);
    EXPECT_TRUE(told.ends_with("column 9: \"x\" is not a number and is read as 0.\nThere are more."));
}

TEST(AFieldThatIsNoNumber, IsCutInTheMessageWhereItIsLong) {
    Damaged damaged("13-X.csv", "0.6,3,81", std::string(5000, 'x') + ",3,81");
    const std::string told = damaged.messagesOf("K19013XP0").at(0).prompt;
    EXPECT_LT(told.size(), 200U);
    EXPECT_NE(told.find("xxx\u2026\" is not a number"), std::string::npos);
}

TEST(AFieldThatIsNoNumber, IsNotToldWhileSomebodyTypes) {
    const Damaged damaged("13-X.csv", "190,216", "190,x");
    const PartNumberMeaning meaning =
        explainPartNumber("K19013XP0", "", initialUnits(), ProgramFolder(damaged.tables.path()));
    EXPECT_TRUE(meaning.complete);
}

TEST(ATableOfASpreadsheet, MayBeginWithAByteOrderMark) {
    const SmallCatalogue plain, marked;
    for (const char* const table : {"13-X.csv", "CLS0.csv", "XSEPARATOR.CSV", "SPEEDX.CSV", "Fitnumber.doc"})
        marked.write(table, "\xEF\xBB\xBF" + plain.read(table));
    Decoding one(plain.path()), other(marked.path());
    for (Decoding* const run : {&one, &other}) {
        run->decode("K19013XP0K");
        EXPECT_TRUE(run->messages.shown.empty());
    }
    EXPECT_EQ(other.bearing().filletRadius, one.bearing().filletRadius);
    EXPECT_GT(other.bearing().filletRadius, 0.0);
    EXPECT_EQ(other.bearing().tableSpeedGrease, one.bearing().tableSpeedGrease);
}

TEST(ATextOfATable, IsUtf8WhateverEncodingItsFileHas) {
    for (const char* const text : {"P= K\xE4"
                                   "fig",
                                   "P= K\xC3\xA4"
                                   "fig"}) {
        Damaged damaged("XSEPARATOR.CSV", "P= Ribbon, brass", text);
        damaged.messagesOf("K19013XP0");
        EXPECT_EQ(damaged.bearing.separatorText,
                  "P= K\xC3\xA4"
                  "fig");
    }
}

TEST(AnOverlayOfTheSeparatorTable, CannotLeadOutOfTheFolderOfOverlays) {
    for (const std::string& name :
         {std::string("../RIBBON"), std::string("..\\RIBBON"), std::string("/RIBBON"),
          std::string("x/RIBBON"), std::string("x\\RIBBON"), std::string(".."), std::string("RIBBON\0", 7)}) {
        const SmallCatalogue tables;
        tables.write("XSEPARATOR.CSV", "P,P= Ribbon," + name + "\n");
        Decoding run(tables.path());
        const DecodeResult result = run.decode("K19013XP0");
        EXPECT_TRUE(result.failed);
        EXPECT_EQ(result.faultNumber, fault::kBadFileName) << name;
        ASSERT_EQ(run.messages.shown.size(), 1U);
        std::string shown = name;
        std::replace(shown.begin(), shown.end(), '\0', '?');
        EXPECT_NE(
            run.messages.shown[0].prompt.find("the separator table names the overlay \"" + shown + "\""),
            std::string::npos);
    }
}

}  // namespace
}  // namespace norlaplan
