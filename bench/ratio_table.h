// The table at the end of a run: each conversion, the same work done by the C library, and the ratio.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace bench {

// Expects benchmarks named "TASK/TYPE" and, for the C library, "TASK/TYPE/libc". Machines are noisy, so it takes
// the fastest repetition of each. Compare ratios within one run, not times of two runs.
class ratio_reporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(std::vector<Run> const& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (auto const& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      std::string const name = run.run_name.function_name;
      double const nanoseconds = 1e9 / run.counters.at("items_per_second");
      auto const [known, is_new] = fastest_.emplace(name, nanoseconds);
      if (is_new) names_.push_back(name);
      if (nanoseconds < known->second) known->second = nanoseconds;
    }
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    std::printf("\n%-28s %10s %14s %8s\n", "nanoseconds a label", "labelsbase", "snprintf/sscanf", "times");
    for (auto const& name : names_) {
      auto const other = fastest_.find(name + "/libc");
      if (other == fastest_.end()) continue;
      double const own = fastest_.at(name);
      std::printf("%-28s %10.2f %14.1f %8.1f\n", name.c_str(), own, other->second, other->second / own);
    }
  }

 private:
  std::map<std::string, double> fastest_;
  std::vector<std::string> names_;
};

}  // namespace bench
