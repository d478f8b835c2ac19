#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "catalogue/Decoding.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::shippedFolder;

class TheShippedCatalogue : public ::testing::Test {
  protected:
    void expectDecoded(const std::string& number, const std::string& zChoice = "") {
        run.state.bearing.zSeparatorChoice = zChoice;
        run.messages.shown.clear();
        run.sheets.stored.clear();
        EXPECT_EQ(run.decode(number).end, DecodeEnd::Decoded) << number << zChoice;
        for (const Message& message : run.messages.shown)
            ADD_FAILURE() << number << ": " << message.title << ": " << message.prompt;
    }

    Decoding run{shippedFolder()};
};

std::string fitOf(const std::string& style) {
    return style == "B" || style == "F" ? "E" : "";
}

TEST_F(TheShippedCatalogue, DecodesEveryStyleMaterialAndPrecision) {
    for (const std::string style : {"A", "B", "C", "F", "T", "U", "X"}) {
        for (const std::string material : {"K", "S", "N"}) {
            for (const std::string precision : {"0", "1", "2", "4", "6"}) {
                expectDecoded(material + "19013" + style + "P" + precision + fitOf(style));
                const BearingSpec& b = run.bearing();
                EXPECT_NEAR(b.bore, 7.4803, 0.001);
                EXPECT_LT(b.boreTolerance, 0.0);
                EXPECT_LT(b.odTolerance, 0.0);
                EXPECT_GT(b.innerRadialRunout, 0.0);
            }
        }
    }
}

TEST_F(TheShippedCatalogue, DecodesEverySeparatorOfEveryStyle) {
    for (const std::string style : {"A", "B", "C", "F", "T", "U", "X"}) {
        const bool angular = style != "C" && style != "X";
        for (const std::string code : {"P", "R", "J", "N", "M", "W", "S", "F"})
            expectDecoded("K19013" + style + code + "0" + fitOf(style));
        for (const char choice : std::string(angular ? "PVS" : "TS"))
            expectDecoded("K19013" + style + "Z0" + fitOf(style), std::string(1, choice));
    }
}

TEST_F(TheShippedCatalogue, RefusesTheSpacersOfTheOtherFamily) {
    for (const char choice : std::string("PV")) {
        run.state.bearing.zSeparatorChoice = choice;
        EXPECT_EQ(run.decode("K19013XZ0").end, DecodeEnd::BackToEntry);
    }
    run.state.bearing.zSeparatorChoice = "T";
    EXPECT_EQ(run.decode("K19013AZ0").end, DecodeEnd::BackToEntry);
}

TEST_F(TheShippedCatalogue, DecodesEveryFitLetter) {
    for (const std::string style : {"B", "C", "F", "X"}) {
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            expectDecoded("K19013" + style + "P0" + letter);
            const BearingSpec& b = run.bearing();
            const bool preload = letter >= 'K' && letter <= 'Y';
            EXPECT_EQ(b.clearanceKind, preload ? "Preload" : letter == 'Z' ? "Special" : "Clearance");
            EXPECT_EQ(b.fitShaft3, 0.0);
        }
    }
}

TEST_F(TheShippedCatalogue, HasEveryBoreOfASectionInAllPrecisionAndCoatingTables) {
    for (const std::string section : {"08", "13", "20"}) {
        int bearings = 0;
        for (int bore = 1; bore <= 999; ++bore) {
            std::string digits = std::to_string(1000 + bore).substr(1);
            const std::string end = digits + section + "XP0";
            run.messages.shown.clear();
            if (run.decode("K" + end).end != DecodeEnd::Decoded) {
                ASSERT_EQ(run.messages.shown.back().prompt, "Bore size not found") << end;
                continue;
            }
            ++bearings;
            for (const std::string style : {"A", "C", "X"}) {
                for (const std::string precision : {"0", "4", "6"}) {
                    expectDecoded("N" + digits + section + style + "P" + precision);
                    // A bore that the coating table lacks would have stayed in millimetres.
                    EXPECT_NEAR(run.bearing().bore, bore / 25.4, 0.01);
                }
            }
        }
        EXPECT_GE(bearings, 15) << section;
    }
}

}  // namespace
}  // namespace norlaplan
