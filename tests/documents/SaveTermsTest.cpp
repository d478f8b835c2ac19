#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "documents/ApplicationReport.h"
#include "documents/DataSheet.h"
#include "documents/FaxCover.h"
#include "documents/LoadLifeReport.h"
#include "documents/SearchReport.h"
#include "support/RecordingPorts.h"

/// What the save dialog and the printer are told of each document of this folder.
namespace norlaplan {
namespace {

using Filters = std::vector<std::pair<std::string, std::string>>;

struct Terms {
    const char* test;
    std::string title, fileName, folder, saveTitle;
    Filters filters;
    bool hasRtf;
    std::function<Document(const ProgramState&, const ProgramFolder&, ClockPort&)> make;
};

void PrintTo(const Terms& terms, std::ostream* out) {
    *out << terms.test;
}

const Filters kRtfAlone = {{"Rich Text Files (*.rtf)", "*.rtf"}};

class SaveTerms : public ::testing::TestWithParam<Terms> {};

INSTANTIATE_TEST_SUITE_P(
    Documents, SaveTerms,
    ::testing::Values(
        Terms{"ApplicationForm", "Application Form", "Application Form.rtf", "\\save",
              "Save Application Form As", kRtfAlone, true,
              [](const auto& state, const auto&, auto& clock) { return applicationDocument(state, clock); }},
        Terms{"DataSheet",
              "Data sheet  k19013xp0 ",
              "K19013XP0",
              "\\",
              "Save Data Sheet As",
              {{"Rich Text File(*.rtf)", "*.rtf"}, {"Bitmap File(*.bmp)", "*.bmp"}},
              true,
              [](const auto&, const auto&, auto&) {
                  return dataSheetDocument(" k19013xp0 ", "ALLDONE\r\n", [] { return std::string("sheet"); });
              }},
        Terms{"FaxCover",
              "Fax Cover Sheet",
              "Fax Cover Sheet.pdf",
              "\\save",
              "Save Results As",
              {},
              false,
              [](const auto& state, const auto&, auto& clock) {
                  return faxCoverDocument({}, state.user, clock);
              }},
        Terms{"LoadLife", "Load-life calculation for K19013XP0", "K19013XP0-load.rtf", "\\save",
              "Save Results As", kRtfAlone, true,
              [](const auto& state, const auto& folder, auto& clock) {
                  return loadLifeDocument(state, folder, clock);
              }},
        Terms{"SearchResults", "Results of bearing search", "Search Results.rtf", "\\save", "Save Results As",
              kRtfAlone, true,
              [](const auto& state, const auto&, auto& clock) { return searchDocument(state, clock); }}),
    [](const auto& one) { return std::string(one.param.test); });

TEST_P(SaveTerms, AreThoseOfTheDocument) {
    const testing::TemporaryFolder place;
    const ProgramFolder folder(place.path());
    testing::FixedClock clock;
    ProgramState state;
    state.bearing.partNumber = "K19013XP0";
    const Document document = GetParam().make(state, folder, clock);
    EXPECT_EQ(document.title, GetParam().title);
    EXPECT_EQ(document.fileName, GetParam().fileName);
    EXPECT_EQ(document.folder, GetParam().folder);
    EXPECT_EQ(document.saveTitle, GetParam().saveTitle);
    EXPECT_EQ(document.defaultExtension, ".rtf");
    Filters filters;
    for (const FileFilter& filter : document.filters)
        filters.emplace_back(filter.label, filter.pattern);
    EXPECT_EQ(filters, GetParam().filters);
    EXPECT_EQ(static_cast<bool>(document.rtf), GetParam().hasRtf);
    EXPECT_EQ(document.pages.paper, papers::kLetter);
    EXPECT_TRUE(document.pages.draw);
    EXPECT_FALSE(document.picture) << "a bitmap shows the pages";
    EXPECT_FALSE(document.pictureArea);
}

}  // namespace
}  // namespace norlaplan
