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

}  // namespace
}  // namespace norlaplan
