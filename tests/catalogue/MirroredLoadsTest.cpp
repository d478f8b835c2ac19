#include <exception>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "capacity/LoadLife.h"
#include "catalogue/Decoding.h"

namespace norlaplan {
namespace {

using testing::Decoding;
using testing::shippedFolder;

/// A load case and its image in the plane between the rows: what row 1 carries in one, row 2 carries in the
/// other. Only row 1's life is shown, so just one of the two shows the shorter life.
struct Life {
    double first = 0.0, second = 0.0;
    bool warns = false;
    bool balanced = true;
};

std::optional<Life> lifeUnder(Decoding& run, double radial, double moment) {
    LoadCase& loads = run.state.loads;
    loads = LoadCase{};
    loads.radialLoad = loads.radialLoadDisplay = radial;
    loads.momentLoad = loads.momentLoadDisplay = moment;
    try {
        if (!computeLoadLife(run.state, run.messages)) return std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
    Life life;
    life.first = run.state.solver.L10OuterRotationRow1;
    life.second = run.state.solver.L10OuterRotationRow2;
    for (const std::string& warning : run.state.life.warnings) {
        if (warning.starts_with("Row 2 has the shorter life: ")) {
            life.warns = true;
        } else {
            life.balanced = false;
        }
    }
    return life;
}

class MirroredLoads : public ::testing::TestWithParam<const char*> {};

TEST_P(MirroredLoads, OneOfTheTwoLivesWarnsWheneverTheyDiffer) {
    const std::string style = GetParam();
    const std::string fit = style == "X" ? "" : "A";
    Decoding run(shippedFolder());
    int compared = 0;
    for (const std::string section : {"08", "13", "20"}) {
        for (int bore = 20; bore <= 360; bore += 10) {
            const std::string size = std::to_string(1000 + bore).substr(1);
            if (run.decode("K" + size + section + style + "P0" + fit).end != DecodeEnd::Decoded) continue;
            for (const double moment : {200.0, 1500.0}) {
                const auto straight = lifeUnder(run, 800.0, moment);
                const auto mirrored = lifeUnder(run, 800.0, -moment);
                // Where the loads don't balance, the two solves end in different places.
                if (!straight || !mirrored || !straight->balanced || !mirrored->balanced) continue;
                ++compared;
                SCOPED_TRACE(run.bearing().partNumber + " " + std::to_string(moment));
                EXPECT_NEAR(straight->first / mirrored->second, 1.0, 1e-5);
                EXPECT_NEAR(straight->second / mirrored->first, 1.0, 1e-5);
                if (straight->first < mirrored->first * (1.0 - 1e-6)) {
                    EXPECT_FALSE(straight->warns);
                    EXPECT_TRUE(mirrored->warns);
                } else if (mirrored->first < straight->first * (1.0 - 1e-6)) {
                    EXPECT_TRUE(straight->warns);
                    EXPECT_FALSE(mirrored->warns);
                }
            }
        }
    }
    EXPECT_GT(compared, 50);
}

INSTANTIATE_TEST_SUITE_P(Styles, MirroredLoads, ::testing::Values("X", "B", "F"));

}  // namespace
}  // namespace norlaplan
