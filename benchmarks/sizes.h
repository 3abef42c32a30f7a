// The sizes that everything is measured at, and what is counted of a run.
#pragma once

#include <benchmark/benchmark.h>

#include <initializer_list>

namespace bench {

inline int Version(const benchmark::State& state) {
  return static_cast<int>(state.range(0));
}
inline int Registers(const benchmark::State& state) {
  return static_cast<int>(state.range(1));
}

inline void CountRegisters(benchmark::State& state) {
  state.counters["per_register"] =
      benchmark::Counter(static_cast<double>(Registers(state)),
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// 1,000 to 100,000 registers, in these versions of the format.
inline void AddSizes(benchmark::internal::Benchmark* run, std::initializer_list<int> versions) {
  run->ArgNames({"version", "registers"})->Unit(benchmark::kMillisecond)->MinWarmUpTime(0.2)->MinTime(0.4);
  for (const int version : versions) {
    for (const int registers : {1000, 10000, 100000}) run->Args({version, registers});
  }
}

}  // namespace bench
