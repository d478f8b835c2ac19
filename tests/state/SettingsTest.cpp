#include <gtest/gtest.h>

#include "numbers/RuntimeError.h"
#include "state/Settings.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::TemporaryFolder;

constexpr const char* kNineLines = "Ann\r\nEngineer\r\nMill\r\nA1\r\nA2\r\n1\r\n2\r\nsuffix\r\nMETRIC\r\n";

struct Start {
    TemporaryFolder place;
    ProgramState state;
    StartUp run() { return startUp(state, ProgramFolder(place.path())); }
};

TEST(StartUp, ReadsTheNineLinesInTheOrderOfTheFile) {
    Start start;
    start.place.write("SETTINGS.INI", kNineLines);
    start.run();
    EXPECT_EQ(start.state.user.userName, "Ann");
    EXPECT_EQ(start.state.user.userTitle, "Engineer");
    EXPECT_EQ(start.state.user.userCompany, "Mill");
    EXPECT_EQ(start.state.user.userAddress1, "A1");
    EXPECT_EQ(start.state.user.userAddress2, "A2");
    EXPECT_EQ(start.state.user.userPhone, "1");
    EXPECT_EQ(start.state.user.userFax, "2");
    EXPECT_EQ(start.state.user.userMailSuffix, "suffix");
    EXPECT_EQ(start.state.unitSystem, "METRIC");
    EXPECT_EQ(start.state.units.lengthUnit, "mm");
}

TEST(StartUp, MissingSettingsMeanUsUnitsAndNoMessage) {
    Start start;
    const StartUp outcome = start.run();
    EXPECT_EQ(start.state.unitSystem, "US");
    EXPECT_EQ(start.state.user.userName, "");
    EXPECT_EQ(outcome.notice, "");
}

TEST(StartUp, TooFewLinesEndTheStartWhereItStoodWithTheUnitsStillThoseOfANewState) {
    for (const char* content : {"", "Ann\r\nEngineer\r\nMill\r\n"}) {
        Start start;
        start.place.write("SETTINGS.INI", content);
        start.place.write("Extras.txt", "SKIP INTRO\r\n");
        const StartUp outcome = start.run();
        EXPECT_EQ(start.state.unitSystem, "");
        EXPECT_EQ(start.state.units.lengthUnit, "inches");
        EXPECT_FALSE(start.state.options.skipIntroOption) << "the options are read after the settings";
        EXPECT_FALSE(outcome.pressStart);
        EXPECT_NE(outcome.notice, "");
    }
}

TEST(StartUp, FiveThousandLinesReadAsTheFirstNine) {
    Start start;
    std::string content = kNineLines;
    for (int i = 0; i < 4991; ++i)
        content += "more\r\n";
    start.place.write("SETTINGS.INI", content);
    EXPECT_EQ(start.run().notice, "");
    EXPECT_EQ(start.state.unitSystem, "METRIC");
}

TEST(SaveSettings, WritesABlankForAnEmptyTextAndKeepsItInTheField) {
    Start start;
    start.state.user.userName = "Ann";
    SaveSettings(start.state, ProgramFolder(start.place.path()));
    EXPECT_EQ(start.place.read("SETTINGS.INI"), "Ann\r\n \r\n \r\n \r\n \r\n \r\n \r\n \r\nUS\r\n");
    EXPECT_EQ(start.state.user.userTitle, " ");
    EXPECT_EQ(start.state.unitSystem, "US");
}

TEST(SaveSettings, WritesWhatLoadSettingsReads) {
    Start start;
    start.place.write("SETTINGS.INI", kNineLines);
    const ProgramFolder folder(start.place.path());
    LoadSettings(start.state, folder);
    SaveSettings(start.state, folder);
    EXPECT_EQ(start.place.read("SETTINGS.INI"), kNineLines);
}

TEST(SaveSettings, LeavesTheOldFileWhereTheFolderCannotBeWritten) {
    Start start;
    start.place.write("SETTINGS.INI", kNineLines);
    const ProgramFolder nowhere(start.place.path() / "missing");
    EXPECT_THROW(SaveSettings(start.state, nowhere), RuntimeError);
    EXPECT_EQ(start.place.read("SETTINGS.INI"), kNineLines);
}

TEST(LoadExtras, ComparesWholeLinesAfterUpperCasing) {
    Start start;
    start.place.write("extras.TXT", "Skip Intro\r\nBALL SHOW \r\nnonsense\r\nlube film\nPATH STRESS");
    const StartUp outcome = start.run();
    EXPECT_TRUE(start.state.options.skipIntroOption);
    EXPECT_FALSE(start.state.options.ballShowOption) << "a trailing blank matches nothing";
    EXPECT_TRUE(start.state.options.lubeFilmOption);
    EXPECT_TRUE(start.state.options.pathStressOption);
    EXPECT_TRUE(outcome.pressStart);
    EXPECT_FALSE(outcome.pressEnterModelNumber);
}

TEST(LoadExtras, SetsEveryOption) {
    Start start;
    start.place.write("Extras.txt",
                      "FAX COVER\nDEFLECTION\nLARS HOFMANN\nNED GROVE\nIAN MORAY\nSKIP INTRO\nBALL SHOW\n"
                      "LUBE FILM\nPATH STRESS\nSAM LUND\nTEMPFITS\nQLX\n");
    const StartUp outcome = start.run();
    const Options& options = start.state.options;
    EXPECT_TRUE(options.faxCoverEnabled && options.deflectionOption && options.larsHofmannOption &&
                options.nedGroveOption && options.ianMorayOption && options.skipIntroOption &&
                options.ballShowOption && options.lubeFilmOption && options.pathStressOption &&
                options.samLundOption && options.tempFitsOption && options.qlxOption);
    EXPECT_TRUE(outcome.pressStart && outcome.pressEnterModelNumber && outcome.showNedGrove);
}

TEST(LoadExtras, FooterKeepsTheRestOfTheLineAsTypedAndTheLastOneWins) {
    Start start;
    start.place.write("Extras.txt", "FOOTER first\nfooter Mill & Co");
    start.run();
    EXPECT_EQ(start.state.options.footerText, " Mill & Co");
}

TEST(LoadExtras, MissingFileMeansNoPressesAndNoMessage) {
    Start start;
    const StartUp outcome = start.run();
    EXPECT_FALSE(outcome.pressStart || outcome.pressEnterModelNumber || outcome.showNedGrove);
    EXPECT_EQ(outcome.notice, "");
}

}  // namespace
}  // namespace norlaplan
