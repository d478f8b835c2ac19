#include <set>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "state/BearingFields.h"
#include "state/SolverFields.h"

namespace norlaplan {
namespace {

/// Stands for a value of any type, so that the compiler says how many members a record takes.
struct Anything {
    template <typename Value>
    operator Value() const;  // NOLINT(google-explicit-constructor): that is its purpose
};
template <std::size_t>
using AnythingAt = Anything;

template <typename Record, std::size_t... I>
constexpr bool takes(std::index_sequence<I...>) {
    return requires {
        Record{AnythingAt<I>{}...};
    };
}

/// The number of members of a plain record.
template <typename Record, std::size_t N = 1>
constexpr std::size_t memberCount() {
    if constexpr (takes<Record>(std::make_index_sequence<N>{})) {
        return memberCount<Record, N + 1>();
    } else {
        return N - 1;
    }
}

TEST(BearingFields, NameEveryFieldOfTheRecordOnce) {
    std::set<std::string> names;
    std::size_t visited = 0;
    visitBearing(BearingSpec{}, [&](const char* name, const auto&) {
        names.insert(name);
        ++visited;
    });
    EXPECT_EQ(visited, memberCount<BearingSpec>());
    EXPECT_EQ(names.size(), visited);
}

TEST(SolverFields, GiveTheFieldsThatTheyName) {
    SolverState solver;
    solver.Kn = 2.5;
    solver.MaxInnerStressMpa = 7.0;
    solver.MaxBallRow = 2;
    std::set<std::string> names;
    visitSolver(solver, [&](const std::string& name, const auto& value) {
        EXPECT_TRUE(names.insert(name).second) << name;
        const double expected = name == "Kn"                  ? 2.5
                                : name == "MaxInnerStressMpa" ? 7.0
                                : name == "MaxBallRow"        ? 2
                                                              : 0;
        EXPECT_EQ(static_cast<double>(value), expected) << name;
    });
    EXPECT_TRUE(names.contains("SafetyOuter"));
}

}  // namespace
}  // namespace norlaplan
