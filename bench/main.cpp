// Measures the time of each work.

#include <benchmark/benchmark.h>

#include "bench/ratio_table.h"
#include "bench/work.h"

namespace {

void measure(benchmark::State& state, std::function<bench::pass()> const& prepare) {
  auto const pass = prepare();
  for (auto _ : state) pass();
  state.SetItemsProcessed(state.iterations() * bench::labels_per_pass);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  for (auto const& work : bench::all_works()) {
    benchmark::RegisterBenchmark(work.name.c_str(), measure, work.own)->Repetitions(5);
    if (work.other)
      benchmark::RegisterBenchmark((work.name + "|" + work.beside).c_str(), measure, work.other)->Repetitions(5);
  }
  bench::ratio_reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
}
