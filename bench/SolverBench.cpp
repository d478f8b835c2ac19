#include <benchmark/benchmark.h>

#include "loaddist/radlodestar2.h"
#include "support/PlainSolver.h"
#include "support/RecordingPorts.h"
#include "support/SolverCases.h"

namespace norlaplan {
namespace {

plain::Bearing bearingOf(char style) {
    return {style, 7.992126F, 0.25F, 81, 0.1325F, 0.51181102F, 0.00135F, 30.0F, 1200.0F, 300.0F, 900.0F};
}

void lifeOfTheProgram(benchmark::State& state, char style) {
    const SolveArguments arguments = testing::argumentsOf(bearingOf(style));
    testing::RecordingMessages messages;
    ProgramState program;
    for (auto _ : state)
        benchmark::DoNotOptimize(SolveCoupledRows(program, arguments, messages));
}
BENCHMARK_CAPTURE(lifeOfTheProgram, X, 'X');
BENCHMARK_CAPTURE(lifeOfTheProgram, B, 'B');
BENCHMARK_CAPTURE(lifeOfTheProgram, F, 'F');

void lifePlainly(benchmark::State& state, char style) {
    const plain::Bearing bearing = bearingOf(style);
    for (auto _ : state)
        benchmark::DoNotOptimize(plain::solveCoupledRows(bearing));
}
BENCHMARK_CAPTURE(lifePlainly, X, 'X');
BENCHMARK_CAPTURE(lifePlainly, B, 'B');
BENCHMARK_CAPTURE(lifePlainly, F, 'F');

void radialLifeOfTheProgram(benchmark::State& state) {
    const SolveArguments arguments = testing::argumentsOf(bearingOf('C'));
    testing::RecordingMessages messages;
    ProgramState program;
    for (auto _ : state)
        benchmark::DoNotOptimize(SolveRadialRow(program, arguments, messages));
}
BENCHMARK(radialLifeOfTheProgram);

void radialLifePlainly(benchmark::State& state) {
    const plain::Bearing bearing = bearingOf('C');
    for (auto _ : state)
        benchmark::DoNotOptimize(plain::solveRadialRow(bearing));
}
BENCHMARK(radialLifePlainly);

}  // namespace
}  // namespace norlaplan
