#include <gtest/gtest.h>

#include "catalogue/PartNumberMeaning.h"
#include "catalogue/SmallCatalogue.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::SmallCatalogue;

class APartNumberBeingTyped : public ::testing::Test {
  protected:
    PartNumberMeaning explain(const std::string& typed, const std::string& zChoice = "") {
        return explainPartNumber(typed, zChoice, units, folder);
    }
    /// The meanings of the seven codes.
    std::vector<std::string> meanings(const std::string& typed, const std::string& zChoice = "") {
        std::vector<std::string> texts;
        for (const NumberCode& code : explain(typed, zChoice).codes)
            texts.push_back(code.meaning);
        return texts;
    }
    /// One letter a place: "+" good, "x" wrong, "-" missing, "o" dropped.
    std::string verdicts(const std::string& typed) {
        std::string marks;
        for (const NumberPlace& place : explain(typed).places)
            marks += "-+xo"[static_cast<int>(place.verdict)];
        return marks;
    }

    SmallCatalogue catalogue;
    ProgramFolder folder{catalogue.path()};
    UnitMode units = initialUnits();
};

TEST_F(APartNumberBeingTyped, SaysWhatEachCodeMeans) {
    EXPECT_EQ(meanings("K19013XP0K"),
              (std::vector<std::string>{"Vacuum Degassed 52100 Steel", "190 mm", "13 mm",
                                        "4-Point Contact Ball Radial Bearing", "Ribbon, brass",
                                        "Precision Class 1", ".0002-.0006 Preload"}));
    EXPECT_EQ(meanings("S10008XW4"),
              (std::vector<std::string>{"440C Steel", "100 mm", "8 mm", "4-Point Contact Ball Radial Bearing",
                                        "Wire", "Precision Class 4", "Standard .0010-.0020 Clearance"}));
    EXPECT_EQ(
        meanings("N19013BP1A"),
        (std::vector<std::string>{
            "Vacuum Degassed 52100 Steel w/ Armorline", "190 mm", "13 mm", "Back-to-Back Duplexed pair",
            "Ribbon, brass", "Precision Class 1 With Class 4 Runouts", ".0001-.0005 Clearance (AXIAL)"}));
}

TEST_F(APartNumberBeingTyped, TellsClearanceInTheUnitsInForce) {
    ApplyUnitSystem("METRIC", units);
    // 0.001 in and 0.002 in are 0.0254 mm and 0.0508 mm.
    EXPECT_EQ(meanings("K10013XP0")[6], "Standard 0.025-0.051 Clearance");
}

TEST_F(APartNumberBeingTyped, ShowsItsCharactersUpperCasedAndRepaired) {
    const PartNumberMeaning meaning = explain("k19o13xp0");
    std::string shown;
    for (const NumberPlace& place : meaning.places)
        shown += place.character;
    EXPECT_EQ(shown, "K19013XP0");
    EXPECT_TRUE(meaning.complete);
}

TEST_F(APartNumberBeingTyped, HasNothingWrongAsLongAsItIsTheStartOfAGoodOne) {
    for (const std::string number : {"K19013XP0K", "S10008XW4", "N20013FP6A", "K1008XXP0"}) {
        for (std::size_t length = 0; length <= number.size(); ++length) {
            const PartNumberMeaning meaning = explain(number.substr(0, length));
            EXPECT_EQ(meaning.wrongPosition, 0U) << number.substr(0, length);
            EXPECT_EQ(meaning.reason, "");
        }
    }
    EXPECT_EQ(verdicts("K190"), "++++------");
    EXPECT_EQ(verdicts(""), "----------");
}

struct NearMiss {
    const char* number;
    const char* verdicts;
    std::size_t position;
    const char* reason;
};

constexpr NearMiss kNearMisses[] = {
    {"M", "x---------", 1, "Material: K, S or N"},
    {"K1A0", "++x+------", 3, "Bore: 3 digits, mm"},
    {"K1903", "++++x-----", 5, "Section: 08, 13 or 20"},
    {"K19014", "+++++x----", 6, "Section: 08, 13 or 20"},
    {"K190123", "+++++xx---", 6, "Section: 08, 13 or 20"},
    {"K19013D", "++++++x---", 7, "Style: A, B, C, F, T, U or X"},
    {"K19013O", "++++++x---", 7, "Style: A, B, C, F, T, U or X"},
    {"K19013XQ", "+++++++x--", 8, "Separator: no Q for this style"},
    {"K19013XP3", "++++++++x-", 9, "Precision: 0, 1, 2, 4 or 6"},
    {"K19013XP01", "+++++++++x", 10, "Fit: a letter or none"},
    {"K19013XP0Ä", "+++++++++x", 10, "Fit: a letter or none"},
    {"K19013BP01", "+++++++++x", 10, "Fit: a letter"},
    {"K19013XP0@", "+++++++++x", 10, "Fit: no @ in the table of fits"},
    {"K19013XP0B", "+++++++++x", 10, "Fit: no B in the table of fits"},
    {"K19113X", "+xxx+++---", 2, "Bore: no 191 mm in this section and style"},
    {"K21013XP0", "++++++++x-", 9, "Precision: no class 0 for this bore"},
    {"K19013XP0AB", "++++++++++", 11, "A part number has 9 or 10 characters"},
    {"MA9A13DP7", "xx+x++x+x-", 1, "Material: K, S or N"},
};

TEST_F(APartNumberBeingTyped, MarksEveryWrongPlaceAndNamesTheFirst) {
    for (const NearMiss& miss : kNearMisses) {
        const PartNumberMeaning meaning = explain(miss.number);
        EXPECT_EQ(verdicts(miss.number), miss.verdicts) << miss.number;
        EXPECT_EQ(meaning.wrongPosition, miss.position) << miss.number;
        EXPECT_EQ(meaning.reason, miss.reason) << miss.number;
        EXPECT_FALSE(meaning.complete) << miss.number;
    }
}

TEST_F(APartNumberBeingTyped, ShowsAFitLetterThatWillBeDropped) {
    EXPECT_EQ(verdicts("K19013AP0K"), "+++++++++o");
    const PartNumberMeaning meaning = explain("K19013AP0K");
    EXPECT_EQ(meaning.codes[6].allowed, "none");
    EXPECT_EQ(meaning.codes[6].meaning, "Standard .0008-.0019 Clearance");
    EXPECT_TRUE(meaning.complete);
}

TEST_F(APartNumberBeingTyped, TakesABlankInTheTenthPlaceForNoFitLetter) {
    EXPECT_EQ(verdicts("K19013XP0 "), "+++++++++-");
    EXPECT_TRUE(explain("K19013XP0 ").complete);
    EXPECT_FALSE(explain("K19013BP0 ").complete);
}

TEST_F(APartNumberBeingTyped, OfADuplexPairIsNotCompleteWithoutAFitLetter) {
    const PartNumberMeaning meaning = explain("K19013BP0");
    EXPECT_FALSE(meaning.complete);
    EXPECT_EQ(meaning.wrongPosition, 0U);
    EXPECT_EQ(meaning.codes[6].allowed, "a letter");
}

TEST_F(APartNumberBeingTyped, WithAZSeparatorWaitsForTheChoiceOfWhichZ) {
    const PartNumberMeaning open = explain("K19013XZ0");
    EXPECT_FALSE(open.complete);
    EXPECT_EQ(open.wrongPosition, 0U);
    EXPECT_EQ(open.codes[4].allowed, "choose which Z below");
    EXPECT_EQ(meanings("K19013XZ0", "T")[4], "Slugs");
    EXPECT_TRUE(explain("K19013XZ0", "T").complete);
    EXPECT_EQ(explain("K19013XZ0", "V").reason, "Separator: no Z for this style");
}

TEST_F(APartNumberBeingTyped, IsJudgedByItsCharactersAloneWhereATableIsMissing) {
    for (const char* const table : {"13-X.csv", "CLS0.csv", "XSEPARATOR.CSV", "Fitnumber.doc"})
        catalogue.remove(table);
    EXPECT_EQ(verdicts("K19113XQ0B"), "++++++++++");
    EXPECT_EQ(meanings("K19113XQ0B"),
              (std::vector<std::string>{"Vacuum Degassed 52100 Steel", "191 mm", "13 mm",
                                        "4-Point Contact Ball Radial Bearing", "", "Precision Class 1", ""}));
}

/// Every number that differs from a good one in two codes.
std::vector<std::string> numbersAround(const std::array<std::string, 7>& good) {
    const std::array<std::vector<std::string>, 7> others = {{{"N", "k", "M", "5"},
                                                             {"1O0", "191", "210", "1A0", "É90"},
                                                             {"08", "8X", "O8", "12", "31"},
                                                             {"A", "B", "c", "F", "T", "U", "X", "D", "O"},
                                                             {"F", "w", "ZS", "Z", "Q", "O"},
                                                             {"O", "1", "2", "4", "6", "3", "P"},
                                                             {"", " ", "k", "Y", "B", "@", "[", "1", "AB"}}};
    std::vector<std::string> numbers;
    const auto add = [&](const std::array<std::string, 7>& codes) {
        std::string number;
        for (const std::string& code : codes)
            number += code;
        numbers.push_back(number);
    };
    for (std::size_t first = 0; first < good.size(); ++first) {
        for (std::size_t second = first + 1; second < good.size(); ++second) {
            for (const std::string& one : others[first]) {
                for (const std::string& two : others[second]) {
                    std::array<std::string, 7> codes = good;
                    codes[first] = one;
                    codes[second] = two;
                    add(codes);
                }
            }
        }
    }
    return numbers;
}

TEST_F(APartNumberBeingTyped, IsCompleteJustWhenTheDecoderTakesIt) {
    Decoding run(catalogue.path());
    int taken = 0, refused = 0;
    for (const char* const style : {"X", "A", "B", "C"}) {
        const std::string fit = std::string(style) == "B" ? "K" : "";
        for (const std::string& number : numbersAround({"K", "190", "13", style, "P", "0", fit})) {
            const DecodeResult result = run.decode(number);
            // The tables of a section that this catalogue lacks say nothing to somebody who types.
            if (result.failed) continue;
            const bool decodes = result.end == DecodeEnd::Decoded;
            ASSERT_EQ(explain(number).complete, decodes) << number;
            ++(decodes ? taken : refused);
        }
    }
    EXPECT_GT(taken, 500);
    EXPECT_GT(refused, 1000);
}

}  // namespace
}  // namespace norlaplan
