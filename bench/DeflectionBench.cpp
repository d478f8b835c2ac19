#include <benchmark/benchmark.h>

#include "deflection/AngleSearch.h"
#include "deflection/AxisRule.h"
#include "deflection/DeflectionGraph.h"
#include "deflection/DeflectionTexts.h"
#include "deflection/NonLinearConstants.h"
#include "support/DeflectionCases.h"
#include "support/PlainDeflection.h"
#include "support/ProcessorTime.h"

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

/// Everything that the deflection screen shows of a bearing: rates, constants, table, texts and three graphs.
void showAll(const BearingSpec& bearing, const DeflectionInput& input, MessagePort& messages) {
    const UnitMode units = initialUnits();
    const DeflectionResult result = computeDeflection(bearing, input, Patience(messages));
    benchmark::DoNotOptimize(deflectionTexts(result, units));
    for (const DeflectionLoad load :
         {DeflectionLoad::Radial, DeflectionLoad::Axial, DeflectionLoad::Moment}) {
        const DeflectionGraphData data = deflectionGraphData(result, load, units);
        GraphSettings settings;
        applyAxisRule(settings, data.dataMaxX, data.dataMaxY);
        benchmark::DoNotOptimize(deflectionGraph(data, settings));
    }
}

/// Processor seconds of one run of `work`, of the mean of many.
template <typename Work>
double secondsOf(const Work& work) {
    constexpr int kRuns = 50;
    const double begin = testing::processorSeconds();
    for (int i = 0; i < kRuns; ++i)
        work();
    return (testing::processorSeconds() - begin) / kRuns;
}

/// All that the screen shows of a pair, which is to take less than 20 ms. Beside it stand how many times as
/// long as the calculation alone the plain transcription of its formulas takes, and which share of the
/// calculation the angle searches of the axial table are; those for the relief load come on top.
void deflectionScreenOfAPair(benchmark::State& state, const char* number) {
    const BearingSpec bearing = testing::bearingOf(number);
    const DeflectionInput input = inputOf(bearing);
    testing::RecordingMessages messages;
    for (auto _ : state)
        showAll(bearing, input, messages);

    const double calculation =
        secondsOf([&] { benchmark::DoNotOptimize(computeDeflection(bearing, input, Patience(messages))); });
    const double plain = secondsOf([&] {
        testing::PlainDeflectionSolver solver(bearing, input.preload);
        benchmark::DoNotOptimize(solver.solve(input.maxRadialLoad, input.maxAxialLoad, input.maxMomentLoad));
    });
    const DeflectionResult result = testing::deflectionOf(bearing, input);
    const DeflectionModel model(bearing);
    const double table = secondsOf([&] {
        AngleSearch search(model, axialRingSum(model), Patience(messages));
        for (const AxialPoint& row : result.axialPoints)
            if (row.load > 0.0) benchmark::DoNotOptimize(search.find(row.load, 0.1));
    });
    state.counters["plain / calculation"] = plain / calculation;
    state.counters["angle searches of table / calculation"] = table / calculation;
}
BENCHMARK_CAPTURE(deflectionScreenOfAPair, B, "K19013BP0T")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(deflectionScreenOfAPair, F, "K19013FP0T")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norlaplan
