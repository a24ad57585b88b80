// The table that a run ends with: each conversion beside the same work done with the C library, and the ratio.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace bench {

// Benchmarks are named "WORK/TYPE" and, for the C library's way, "WORK/TYPE/libc". Machines are noisy, so the
// fastest repetition of each counts, and only ratios within one run mean anything.
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
