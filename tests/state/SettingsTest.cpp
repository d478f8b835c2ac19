#include <filesystem>
#include <string>
#include <utility>

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

TEST(StartUp, TellsOfSettingsAndOptionsThatAreTooLargeToBeAny) {
    const auto grow = [](const Start& start, const char* name) {
        std::filesystem::resize_file(start.place.path() / name, 1U << 30U);
        return (start.place.path() / name).string();
    };
    Start settings;
    settings.place.write("SETTINGS.INI", kNineLines);
    const std::string settingsFile = grow(settings, "SETTINGS.INI");
    EXPECT_EQ(settings.run().notice,
              "SETTINGS.INI could not be read (Invalid file format: it is larger than 1 MB: " + settingsFile +
                  "). US units are used until the settings are saved again.");

    Start extras;
    extras.place.write("SETTINGS.INI", kNineLines);
    extras.place.write("Extras.txt", "SKIP INTRO\r\n");
    const std::string extrasFile = grow(extras, "Extras.txt");
    const StartUp outcome = extras.run();
    EXPECT_EQ(outcome.notice, "");
    EXPECT_EQ(outcome.extrasNotice,
              "Extras.txt could not be read (Invalid file format: it is larger than 1 MB: " + extrasFile +
                  "). No option is set.");
    EXPECT_FALSE(outcome.pressStart);
    EXPECT_EQ(extras.state.unitSystem, "METRIC") << "the settings are read all the same";
}

TEST(StartUp, MissingSettingsMeanUsUnitsAndNoMessage) {
    Start start;
    const StartUp outcome = start.run();
    EXPECT_EQ(start.state.unitSystem, "US");
    EXPECT_EQ(start.state.user.userName, "");
    EXPECT_EQ(outcome.notice, "");
}

TEST(StartUp, UnitsAreReadWhateverTheirCaseAndTheBlanksAroundThem) {
    const std::pair<const char*, const char*> rows[] = {
        {"METRIC ", "METRIC"}, {" Metric", "METRIC"}, {"metric\t", "METRIC"}, {"us", "US"}, {"US  ", "US"}};
    for (const auto& [line, units] : rows) {
        Start start;
        start.place.write("SETTINGS.INI", "a\nb\nc\nd\ne\nf\ng\nh\n" + std::string(line) + "\n");
        EXPECT_EQ(start.run().notice, "") << line;
        EXPECT_EQ(start.state.unitSystem, units) << line;
        EXPECT_EQ(start.state.units.system, units) << line;
    }
}

TEST(StartUp, OtherUnitsAreToldAndUsUnitsAreUsed) {
    for (const char* const line : {"", "SI", "METRICS", "U S"}) {
        Start start;
        start.place.write("SETTINGS.INI", "a\nb\nc\nd\ne\nf\ng\nh\n" + std::string(line) + "\n");
        start.place.write("Extras.txt", "SKIP INTRO\r\n");
        const StartUp outcome = start.run();
        EXPECT_EQ(outcome.notice, "The last line of SETTINGS.INI should be US or METRIC and is \"" +
                                      std::string(line) + "\". US units are used.");
        EXPECT_EQ(start.state.unitSystem, "US");
        EXPECT_EQ(start.state.units.lengthUnit, "inches");
        EXPECT_TRUE(outcome.pressStart) << "the start goes on";
    }
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

TEST(SaveSettings, KeepsATextWithLineBreaksOnItsLine) {
    Start start;
    start.state.user.userName = "Ann\r\nB.";
    SaveSettings(start.state, ProgramFolder(start.place.path()));
    EXPECT_EQ(start.place.read("SETTINGS.INI"), "Ann  B.\r\n \r\n \r\n \r\n \r\n \r\n \r\n \r\nUS\r\n");
}

TEST(ShownUserText, LeavesOutTheBlankThatFillsALineAndNothingElse) {
    EXPECT_EQ(shownUserText(" "), "");
    EXPECT_EQ(shownUserText(""), "");
    EXPECT_EQ(shownUserText("  "), "  ");
    EXPECT_EQ(shownUserText(" a"), " a");
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

constexpr std::pair<const char*, Flag Options::*> kOptions[] = {
    {"FAX COVER", &Options::faxCoverEnabled},      {"DEFLECTION", &Options::deflectionOption},
    {"LARS HOFMANN", &Options::larsHofmannOption}, {"NED GROVE", &Options::nedGroveOption},
    {"IAN MORAY", &Options::ianMorayOption},       {"SKIP INTRO", &Options::skipIntroOption},
    {"BALL SHOW", &Options::ballShowOption},       {"LUBE FILM", &Options::lubeFilmOption},
    {"PATH STRESS", &Options::pathStressOption},   {"SAM LUND", &Options::samLundOption},
    {"TEMPFITS", &Options::tempFitsOption},        {"QLX", &Options::qlxOption}};

std::string optionsSet(const Options& options) {
    std::string found;
    for (const auto& [keyword, flag] : kOptions) {
        if (options.*flag) found += std::string(keyword) + ";";
    }
    return found;
}

TEST(LoadExtras, EachKeywordSetsItsOwnOptionAlone) {
    for (const auto& [keyword, flag] : kOptions) {
        Start start;
        start.place.write("Extras.txt", std::string(keyword) + "\n");
        start.run();
        EXPECT_EQ(optionsSet(start.state.options), std::string(keyword) + ";");
    }
}

TEST(LoadExtras, EmptyLinesSetNothingAndHideNothing) {
    for (const char* content : {"\n", "\r\n\r\n", "\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n"}) {
        Start start;
        start.place.write("Extras.txt", content);
        start.run();
        EXPECT_EQ(optionsSet(start.state.options), "");
        EXPECT_EQ(start.state.options.footerText, "");
        EXPECT_EQ(start.state.unitSystem, "US");
    }
    Start start;
    start.place.write("Extras.txt", "\r\nQLX\r\n\r\n\r\nTEMPFITS\r\n\r\n");
    start.run();
    EXPECT_EQ(optionsSet(start.state.options), "TEMPFITS;QLX;");
}

TEST(LoadExtras, SayWhatTheStartDoesNext) {
    struct {
        const char* line;
        bool pressStart, pressEnterModelNumber, showNedGrove;
    } const rows[] = {{"SKIP INTRO", true, false, false},
                      {"IAN MORAY", true, true, false},
                      {"NED GROVE", false, false, true},
                      {"QLX", false, false, false}};
    for (const auto& row : rows) {
        Start start;
        start.place.write("Extras.txt", row.line);
        const StartUp outcome = start.run();
        EXPECT_EQ(outcome.pressStart, row.pressStart) << row.line;
        EXPECT_EQ(outcome.pressEnterModelNumber, row.pressEnterModelNumber) << row.line;
        EXPECT_EQ(outcome.showNedGrove, row.showNedGrove) << row.line;
    }
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

/// Two programs that were started in one folder.
struct TwoPrograms {
    TwoPrograms() {
        place.write("SETTINGS.INI", "Ann\r\n \r\n \r\n \r\n \r\n \r\n \r\n \r\nUS\r\n");
        startUp(first, folder);
        startUp(second, folder);
    }
    TemporaryFolder place;
    ProgramFolder folder{place.path()};
    ProgramState first, second;
};

TEST(TwoProgramsInOneFolder, KeepEachOthersUserAndUnits) {
    TwoPrograms programs;
    programs.first.user.userName = "Bea";
    SaveSettings(programs.first, programs.folder, SettingsPart::User);
    programs.second.unitSystem = "METRIC";
    SaveSettings(programs.second, programs.folder, SettingsPart::Units);
    const std::string rest = "\r\n \r\n \r\n \r\n \r\n \r\n \r\n \r\nMETRIC\r\n";
    EXPECT_EQ(programs.place.read("SETTINGS.INI"), "Bea" + rest);
    EXPECT_EQ(programs.second.user.userName, "Ann") << "what a program shows is its own";
    programs.first.user.userName = "Cid";
    SaveSettings(programs.first, programs.folder, SettingsPart::User);
    EXPECT_EQ(programs.place.read("SETTINGS.INI"), "Cid" + rest);
    EXPECT_EQ(programs.first.unitSystem, "US");
}

TEST(SaveSettings, OfOnePartWritesAllOfThemWhereTheFileIsMissingOrDamaged) {
    for (const SettingsPart part : {SettingsPart::User, SettingsPart::Units}) {
        for (const char* const before : {"", "Ann\r\nEngineer\r\n", "a\nb\nc\nd\ne\nf\ng\nh\nSI\n"}) {
            Start start;
            if (*before != '\0') start.place.write("SETTINGS.INI", before);
            start.state.user = {"Bea", "x", "x", "x", "x", "x", "x", "x"};
            start.state.unitSystem = "METRIC";
            SaveSettings(start.state, ProgramFolder(start.place.path()), part);
            const std::string content = start.place.read("SETTINGS.INI");
            EXPECT_TRUE(content.ends_with("\r\nMETRIC\r\n")) << content;
            const bool usersOnFile = part == SettingsPart::Units && std::string(before).ends_with("SI\n");
            EXPECT_TRUE(content.starts_with(usersOnFile ? "a\r\nb\r\n" : "Bea\r\nx\r\n")) << content;
        }
    }
}

TEST(StartUp, ReadsSettingsAndOptionsOfOtherEncodingsAndWithAByteOrderMark) {
    for (const char* const name : {"M\xFCller", "M\xC3\xBCller", "\xEF\xBB\xBFM\xC3\xBCller"}) {
        Start start;
        start.place.write("SETTINGS.INI",
                          std::string(name) + "\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\nMETRIC\r\n");
        start.place.write("Extras.txt", "\xEF\xBB\xBFSKIP INTRO\r\nFOOTER Caf\xE9\r\n");
        start.run();
        EXPECT_EQ(start.state.user.userName, "M\xC3\xBCller");
        EXPECT_EQ(start.state.unitSystem, "METRIC");
        EXPECT_TRUE(start.state.options.skipIntroOption);
        EXPECT_EQ(start.state.options.footerText, " Caf\xC3\xA9");
    }
}

}  // namespace
}  // namespace norlaplan
