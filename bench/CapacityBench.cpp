#include <benchmark/benchmark.h>

#include "capacity/capacitymodule.h"
#include "numbers/PiValue.h"
#include "support/PlainCapacity.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

constexpr double kPitch = 7.992126;
constexpr double kBall = 0.25;
constexpr double kGroove = 0.1325;
constexpr int kBalls = 81;

void capacityOfTheProgram(benchmark::State& state) {
    testing::RecordingMessages messages;
    Patience patience(messages);
    Single radial, thrust, moment, ciPlusCo;
    for (auto _ : state) {
        ComputeCapacity(kPitch, 0.0, kBall, kBalls, ThirtyDegrees, kGroove, "A", radial, thrust, moment,
                        ciPlusCo, patience);
        benchmark::DoNotOptimize(radial);
    }
}
BENCHMARK(capacityOfTheProgram);

void capacityPlainly(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(plain::capacityOfModeA(static_cast<float>(kPitch), static_cast<float>(kBall),
                                                        kBalls, ThirtyDegrees, static_cast<float>(kGroove)));
    }
}
BENCHMARK(capacityPlainly);

}  // namespace
}  // namespace norlaplan
