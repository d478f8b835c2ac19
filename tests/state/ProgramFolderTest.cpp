#include <gtest/gtest.h>

#include "numbers/RuntimeError.h"
#include "state/ProgramFolder.h"
#include "support/FaultOf.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::faultOf;
using testing::TemporaryFolder;

TEST(ProgramFolder, MatchesNamesWithoutRegardToCase) {
    TemporaryFolder place;
    place.write("Data Tables/13-X.csv", "table");
    const ProgramFolder folder(place.path());
    EXPECT_EQ(folder.read("\\DATA TABLES\\13-x.CSV"), "table");
    EXPECT_EQ(folder.read("data tables/13-X.csv"), "table");
}

TEST(ProgramFolder, PrefersTheExactNameOverOneThatDiffersInCase) {
    TemporaryFolder place;
    place.write("A.csv", "upper");
    place.write("a.csv", "lower");
    EXPECT_EQ(ProgramFolder(place.path()).read("a.csv"), "lower");
    EXPECT_EQ(ProgramFolder(place.path()).read("A.csv"), "upper");
}

TEST(ProgramFolder, MissingFileOrFolderIsFileNotFound) {
    TemporaryFolder place;
    const ProgramFolder folder(place.path());
    EXPECT_EQ(faultOf([&] { folder.read("none.csv"); }), fault::kFileNotFound);
    EXPECT_EQ(faultOf([&] { folder.read("\\Data Tables\\none.csv"); }), fault::kFileNotFound);
}

TEST(ProgramFolder, FindsWhatIsThereAndNamesWhatIsMissing) {
    TemporaryFolder place;
    place.write("Help/HELP1.RTF", "help");
    const ProgramFolder folder(place.path());
    EXPECT_EQ(folder.root(), place.path());
    EXPECT_EQ(folder.find("\\help\\help1.rtf"), place.path() / "Help" / "HELP1.RTF");
    EXPECT_EQ(folder.find("help//help1.rtf"), place.path() / "Help" / "HELP1.RTF");
    EXPECT_EQ(folder.find("\\help\\New.RTF"), place.path() / "Help" / "New.RTF");
    EXPECT_EQ(folder.find("missing\\New.RTF"), place.path() / "missing" / "New.RTF");
    EXPECT_EQ(folder.find(""), place.path());
}

}  // namespace
}  // namespace norlaplan
