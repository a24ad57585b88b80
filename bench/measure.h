// Runs each task on 4096 random labels, once by the library and once by the C library.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace bench {

// Returns 4096 random samples from 0 to end - 1, the same ones in every run.
[[nodiscard]] inline std::vector<int> random_samples(int end) {
  std::mt19937 random{4096};
  std::vector<int> samples(4096);
  for (int& sample : samples) sample = static_cast<int>(random() % static_cast<unsigned>(end));
  return samples;
}

// Calls `convert` for every label, as often as the benchmark asks.
template <class Labels, class Convert>
void measure(benchmark::State& state, Labels const& labels, Convert convert) {
  for (auto _ : state)
    for (auto const& label : labels) benchmark::DoNotOptimize(convert(label));
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(labels.size()));
}

// A task, done by the library and by the C library, on labels of one kind.
template <class Kind>
struct work {
  char const* name;
  void (*own)(benchmark::State&, Kind const&);
  void (*libc)(benchmark::State&, Kind const&);
};

// Registers every task on every kind, under the names that ratio_reporter expects. Returns true.
template <class Works, class Kinds>
bool register_all(Works const& works, Kinds const& kinds) {
  for (auto const& w : works)
    for (auto const& kind : kinds) {
      std::string const name = std::string{w.name} + "/" + kind.name;
      benchmark::RegisterBenchmark(name.c_str(), w.own, kind)->Repetitions(5);
      benchmark::RegisterBenchmark((name + "/libc").c_str(), w.libc, kind)->Repetitions(5);
    }
  return true;
}

}  // namespace bench
