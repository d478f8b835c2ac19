#include <string>

#include <gtest/gtest.h>

#include "catalogue/SmallCatalogue.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::SmallCatalogue;

struct RefusedNumber {
    const char* number;
    const char* title;
    const char* prompt;
    Icon icon = Icon::None;
};

constexpr const char* kVerify = "Please verify Part Number and try again";
constexpr RefusedNumber kRefused[] = {
    {"", "Part Number too short", kVerify},
    {"K19013XP", "Part Number too short", kVerify},
    {"K19013XP0AB", "Part Number too long", kVerify},
    {"M19013XP0", "Material M Not valid", "Unsupported Material Type"},
    {"019013XP0", "Material 0 Not valid", "Unsupported Material Type"},
    {"K19012XP0", "Width of 12 Not Valid", "Unsupported Cross Section"},
    {"K190X3XP0", "Width of 0 Not Valid", "Unsupported Cross Section"},
    {"K1901XXP0", "Width of 1 Not Valid", "Unsupported Cross Section"},
    {"K19013DP0", "Type D not known", "Undefined Bearing Style"},
    {"K19013OP0", "Type O not known", "Undefined Bearing Style"},
    {"K19013BP0", "Please supply internal fitup", "Missing Fit"},
    {"K19013FP0", "Please supply internal fitup", "Missing Fit"},
    {"K19013BP0 ", "Please supply internal fitup", "Missing Fit"},
    {"K19013XP0?", "Invalid character entry", "Fitup character must be a letter"},
    {"K19013XP0[", "Invalid character entry", "Fitup character must be a letter"},
    {"K19013XP01", "Invalid character entry", "Fitup character must be a letter"},
    {"K19013XP0Ä", "Invalid character entry", "Fitup character must be a letter"},
    {"K19013XP3", "Precision class 3 not available", "Unsupported Precision Class"},
    {"K19013XPP", "Precision class P not available", "Unsupported Precision Class"},
    {"KA9013XP0", "character must be numeric", "Error in position 2 of the part number"},
    {"K1A013XP0", "character must be numeric", "Error in position 3 of the part number"},
    {"K1AB13XP0", "character must be numeric", "Error in position 3 of the part number"},
    {"K19A13XP0", "character must be numeric", "Error in position 4 of the part number"},
    {"K191É3XP0", "Width of 0 Not Valid", "Unsupported Cross Section"},
    {"K19113XP0", "Retry Data Entry", "Bore size not found"},
    {"K21013XP0", "Bore data not found", "Error in precision tables"},
    {"K19013XZ0", "Missing Data", "Please specify which Z separator"},
    {"K19013XQ0", "WRONG SEPARATOR CODE", "SEPARATOR NOT PERMITTED FOR THIS BEARING"},
    {"K19013XO0", "WRONG SEPARATOR CODE", "SEPARATOR NOT PERMITTED FOR THIS BEARING"},
    {"K19013XP0B", "Please correct Part Number", "Unavailable fitup", Icon::Critical},
    {"K19013XP0@", "Please correct Part Number", "Unavailable fitup", Icon::Critical},
};

class ARefusedNumber : public ::testing::TestWithParam<RefusedNumber> {};

TEST_P(ARefusedNumber, GetsItsOneMessageAndGoesBackToEntryWithAnEmptiedNumber) {
    const SmallCatalogue catalogue;
    Decoding run(catalogue.path());
    const DecodeResult result = run.decode(GetParam().number);
    EXPECT_EQ(result.end, DecodeEnd::BackToEntry);
    EXPECT_FALSE(result.failed);
    EXPECT_FALSE(result.faultNumber);
    ASSERT_EQ(run.messages.shown.size(), 1U);
    EXPECT_EQ(run.messages.shown[0], (Message{GetParam().title, GetParam().prompt, GetParam().icon}));
    EXPECT_EQ(run.bearing().partNumber, "");
    EXPECT_TRUE(run.sheets.stored.empty());
}

INSTANTIATE_TEST_SUITE_P(PartNumbers, ARefusedNumber, ::testing::ValuesIn(kRefused));

class APartNumber : public ::testing::Test {
  protected:
    bool decodes(const std::string& number) { return run.decode(number).end == DecodeEnd::Decoded; }

    SmallCatalogue catalogue;
    Decoding run{catalogue.path()};
};

TEST_F(APartNumber, IsRepairedToUpperCaseAndDigits) {
    ASSERT_TRUE(decodes("k19o13xp0"));
    EXPECT_EQ(run.bearing().partNumber, "K19013XP0");
    EXPECT_TRUE(run.messages.shown.empty());
    ASSERT_EQ(run.sheets.stored.size(), 1U);
    EXPECT_NE(run.sheets.stored[0].rtf.find("K19013XP0"), std::string::npos);
}

TEST_F(APartNumber, TakesALetterOForTheDigitInThePrecisionAndTheSectionToo) {
    ASSERT_TRUE(decodes("K1ooo8xpo"));
    EXPECT_EQ(run.bearing().partNumber, "K10008XP0");
    EXPECT_EQ(run.bearing().crossSectionCode, 8.0);
}

TEST_F(APartNumber, PassedByItsOwnTextIsRepairedThereToo) {
    std::string number = "k19013xp0";
    DecodeServices services{run.folder, run.messages, run.clock, &run.sheets};
    DecodePartNumber(run.state, number, services);
    EXPECT_EQ(number, "K19013XP0");
    EXPECT_EQ(run.bearing().partNumber, "K19013XP0");
}

TEST_F(APartNumber, OfASingleOrTandemBearingDropsItsFitLetterWithAWarningAndGoesOn) {
    for (const std::string style : {"A", "T", "U"}) {
        run.messages.shown.clear();
        ASSERT_TRUE(decodes("K19013" + style + "P0K"));
        EXPECT_EQ(run.messages.shown,
                  (std::vector<Message>{{"Dropping fitup code", "No fitup allowed", Icon::None}}));
        EXPECT_EQ(run.bearing().partNumber, "K19013" + style + "P0");
        EXPECT_EQ(run.bearing().fitLetter, " ");
    }
}

TEST_F(APartNumber, WithABlankTenthCharacterHasNoFitLetter) {
    ASSERT_TRUE(decodes("K19013AP0 "));
    EXPECT_TRUE(run.messages.shown.empty());
    EXPECT_EQ(run.bearing().partNumber, "K19013AP0");
    ASSERT_TRUE(decodes("K19013XP0 "));
    EXPECT_EQ(run.bearing().fitLetter, " ");
    EXPECT_EQ(run.bearing().partNumber, "K19013XP0");
    EXPECT_TRUE(run.messages.shown.empty());
}

TEST_F(APartNumber, ReadsTheSectionUpToTheFirstLetter) {
    ASSERT_TRUE(decodes("K1008XXP0"));
    EXPECT_EQ(run.bearing().crossSectionCode, 8.0);
    EXPECT_EQ(run.bearing().bore.stored(), static_cast<float>(100.0 / 25.4));
}

TEST_F(APartNumber, WithALetterInTheBoreHasTouchedTheBore) {
    run.decode("K19A13XP0");
    EXPECT_EQ(run.bearing().bore, 19.0);
}

TEST_F(APartNumber, PassesTheCharacterBeforeAAsAFitWhenTheTableHoldsIt) {
    catalogue.write("Fitnumber.doc", "@,.0001,.0002,Clearance\n");
    ASSERT_TRUE(decodes("K19013XP0@"));
    // Neither the clearance nor the preload form of the fits: the two columns stand.
    EXPECT_NE(run.bearing().fitShaft3, 0.0);
    EXPECT_NE(run.bearing().fitHousing4, 0.0);
}

TEST_F(APartNumber, AppendsTheChosenLetterToAnySeparator) {
    run.state.bearing.zSeparatorChoice = "T";
    ASSERT_TRUE(decodes("K19013XZ0"));
    EXPECT_EQ(run.bearing().separatorCode, "ZT");
    // The screen empties the choice; another caller that leaves it there has it appended to other codes.
    EXPECT_EQ(run.decode("K19013XP0").end, DecodeEnd::BackToEntry);
    EXPECT_EQ(run.bearing().separatorCode, "PT");
    EXPECT_EQ(run.messages.shown.back().title, "WRONG SEPARATOR CODE");
}

TEST_F(APartNumber, IsAlwaysOfLimitedAvailabilityEvenWhenTheTableSaysStock) {
    for (const std::string number : {"K19013XP0", "K20013CP0", "S19013AP4", "K10013BP0A"}) {
        ASSERT_TRUE(decodes(number)) << number;
        EXPECT_EQ(run.bearing().stockCode, 2);
        EXPECT_EQ(run.bearing().limitedFlag, "Y");
        EXPECT_EQ(run.bearing().availabilityText, "   LIMITED AVAILABILITY, PLEASE CONTACT VARDEN");
    }
}

struct CodeTextCase {
    const char* number;
    std::string BearingSpec::*field;
    const char* text;
};
class ACode : public ::testing::TestWithParam<CodeTextCase> {};

TEST_P(ACode, HasItsText) {
    const SmallCatalogue catalogue;
    Decoding run(catalogue.path());
    ASSERT_EQ(run.decode(GetParam().number).end, DecodeEnd::Decoded);
    EXPECT_EQ(run.bearing().*(GetParam().field), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ACode,
    ::testing::Values(
        CodeTextCase{"K19013XP0", &BearingSpec::materialText, "K = Vacuum Degassed 52100 Steel"},
        CodeTextCase{"S19013XP0", &BearingSpec::materialText, "S = 440C Steel"},
        CodeTextCase{"N19013XP0", &BearingSpec::materialText, "N = Vacuum Degassed 52100 Steel w/ Armorline"},
        CodeTextCase{"K19013AP0", &BearingSpec::styleText, "A= Angular Contact Ball Radial Bearing"},
        CodeTextCase{"K19013BP0A", &BearingSpec::styleText, "B= Back-to-Back Duplexed pair"},
        CodeTextCase{"K19013CP0", &BearingSpec::styleText, "C= Radial Contact Ball Bearing"},
        CodeTextCase{"K19013FP0A", &BearingSpec::styleText, "F= Face-to-Face Duplexed pair"},
        CodeTextCase{"K19013TP0", &BearingSpec::styleText, "T= Tandem Pair of Angular Contact Bearings"},
        CodeTextCase{"K19013UP0", &BearingSpec::styleText, "U= Universal Ground Angular Contact Bearing"},
        CodeTextCase{"K19013XP0", &BearingSpec::styleText, "X= 4-Point Contact Ball Radial Bearing"},
        CodeTextCase{"K19013XP0", &BearingSpec::precisionText, "0= Precision Class 1"},
        CodeTextCase{"K19013XP1", &BearingSpec::precisionText, "1= Precision Class 1 With Class 4 Runouts"},
        CodeTextCase{"K19013XP2", &BearingSpec::precisionText, "2= Precision Class 1 With Class 6 Runouts"},
        CodeTextCase{"K19013XP4", &BearingSpec::precisionText, "4= Precision Class 4"},
        CodeTextCase{"K19013XP6", &BearingSpec::precisionText, "6= Precision Class 6"},
        CodeTextCase{"K19013XP0", &BearingSpec::familyCode, "X"},
        CodeTextCase{"K19013CP0", &BearingSpec::familyCode, "C"},
        CodeTextCase{"K19013AP0", &BearingSpec::familyCode, "A"},
        CodeTextCase{"K19013BP0A", &BearingSpec::familyCode, "A"},
        CodeTextCase{"K19013FP0A", &BearingSpec::familyCode, "A"},
        CodeTextCase{"K19013TP0", &BearingSpec::familyCode, "A"},
        CodeTextCase{"K19013UP0", &BearingSpec::familyCode, "A"},
        CodeTextCase{"K19013XP0", &BearingSpec::separatorText, "P= Ribbon, brass"},
        CodeTextCase{"K19013XP0", &BearingSpec::separatorOverlay, "RIBBON"},
        CodeTextCase{"K19013XP0", &BearingSpec::fitRangeText, "Standard .0008-.0019 Clearance"},
        CodeTextCase{"K19013XP0A", &BearingSpec::fitRangeText, "A= .0001-.0005 Clearance"},
        CodeTextCase{"K19013XP0A", &BearingSpec::clearanceKind, "Clearance"},
        CodeTextCase{"K19013CP0K", &BearingSpec::fitRangeText, "K= .0002-.0006 Preload"},
        CodeTextCase{"K19013BP0A", &BearingSpec::fitRangeText, "A= .0001-.0005 Clearance (AXIAL)"},
        CodeTextCase{"K19013FP0K", &BearingSpec::fitRangeText, "K= .0002-.0006 Preload (AXIAL)"},
        CodeTextCase{"K19013XP0Z", &BearingSpec::fitRangeText, "Z= .0003-.0007 Special"}));

TEST_F(APartNumber, TakesTheExpansionOfStainlessForTheCoatedSteel) {
    ASSERT_TRUE(decodes("K19013XP0"));
    EXPECT_EQ(run.bearing().bearingExpansion.stored(), 7.0e-6F);
    ASSERT_TRUE(decodes("S19013XP0"));
    EXPECT_EQ(run.bearing().bearingExpansion.stored(), 5.6e-6F);
    ASSERT_TRUE(decodes("N19013XP0"));
    EXPECT_EQ(run.bearing().bearingExpansion.stored(), 5.6e-6F);
}

TEST_F(APartNumber, InMetricDividesTheLimitsOfAFitLetterButMultipliesTheStandardOnes) {
    ApplyUnitSystem("METRIC", run.state.units);
    catalogue.write("Fitnumber.doc", "A,.0254,.0508,Clearance\n");
    ASSERT_TRUE(decodes("K19013XP0A"));
    EXPECT_EQ(run.bearing().fitRangeText, "A= 0.001-0.002 Clearance");
    ASSERT_TRUE(decodes("K19013XP0"));
    EXPECT_EQ(run.bearing().fitRangeText, "Standard 0.020-0.048 Clearance");
}

}  // namespace
}  // namespace norlaplan
