#include <benchmark/benchmark.h>

#include "deflection/AngleSearch.h"
#include "deflection/NonLinearConstants.h"
#include "support/DeflectionCases.h"
#include "support/PlainDeflection.h"

namespace norlaplan {
namespace {

constexpr double kPreload = 0.001;

DeflectionInput inputOf(const BearingSpec& bearing) {
    return testing::usualInput(bearing, kPreload);
}

void deflectionOfTheProgram(benchmark::State& state, const char* number) {
    const BearingSpec bearing = testing::bearingOf(number);
    const DeflectionInput input = inputOf(bearing);
    testing::RecordingMessages messages;
    for (auto _ : state)
        benchmark::DoNotOptimize(computeDeflection(bearing, input, Patience(messages)));
}
BENCHMARK_CAPTURE(deflectionOfTheProgram, X, "K19013XP0");
BENCHMARK_CAPTURE(deflectionOfTheProgram, C, "K19013CP0");
BENCHMARK_CAPTURE(deflectionOfTheProgram, B, "K19013BP0T");
BENCHMARK_CAPTURE(deflectionOfTheProgram, F, "K19013FP0T");

void deflectionPlainly(benchmark::State& state, const char* number) {
    const BearingSpec bearing = testing::bearingOf(number);
    const DeflectionInput input = inputOf(bearing);
    for (auto _ : state) {
        testing::PlainDeflectionSolver solver(bearing, input.preload);
        benchmark::DoNotOptimize(solver.solve(input.maxRadialLoad, input.maxAxialLoad, input.maxMomentLoad));
    }
}
BENCHMARK_CAPTURE(deflectionPlainly, X, "K19013XP0");
BENCHMARK_CAPTURE(deflectionPlainly, C, "K19013CP0");
BENCHMARK_CAPTURE(deflectionPlainly, B, "K19013BP0T");
BENCHMARK_CAPTURE(deflectionPlainly, F, "K19013FP0T");

/// The part of a pair's calculation that lies in the angle search: the loads of its axial table once more.
/// Divided by their number and multiplied by the searches of the whole calculation it is the search's share.
void angleSearchOfAPair(benchmark::State& state) {
    const BearingSpec bearing = testing::bearingOf("K19013BP0T");
    const DeflectionResult result = testing::deflectionOf(bearing, inputOf(bearing));
    const DeflectionModel model(bearing);
    testing::RecordingMessages messages;
    for (auto _ : state) {
        AngleSearch search(model, axialRingSum(model), Patience(messages));
        for (const AxialPoint& row : result.axialPoints)
            if (row.load > 0.0) benchmark::DoNotOptimize(search.find(row.load, 0.1));
    }
    const DeflectionInput input = inputOf(bearing);
    testing::PlainDeflectionSolver plain(bearing, input.preload);
    plain.solve(input.maxRadialLoad, input.maxAxialLoad, input.maxMomentLoad);
    state.counters["here"] = static_cast<double>(result.axialPoints.size() - 1);
    state.counters["in all"] = plain.angleSearches;
}
BENCHMARK(angleSearchOfAPair);

}  // namespace
}  // namespace norlaplan
