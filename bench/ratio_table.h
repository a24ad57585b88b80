// The table of a run: each work, the same work done another way, and the ratio.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace bench {

// Prints a row as its benchmarks end. Expects "WORK/TYPE" and, behind it, "WORK/TYPE|WAY" for the other way.
// Machines are noisy, so it takes the fastest repetition of each. Compare ratios within one run, not times of two
// runs.
class ratio_reporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(Context const&) override {
    std::printf("%-28s %10s %10s %8s %8s", "nanoseconds a label", "labelsbase", "beside", "", "times");
    return true;
  }

  void ReportRuns(std::vector<Run> const& runs) override {
    double fastest = 0.0;
    for (auto const& run : runs)
      if (run.run_type == Run::RT_Iteration && !run.error_occurred)
        fastest = std::max(fastest, run.counters.at("items_per_second").value);
    if (fastest == 0.0) return;

    std::string const name = runs.front().run_name.function_name;
    auto const bar = std::min(name.find('|'), name.size());
    double const nanoseconds = 1e9 / fastest;
    if (bar == name.size()) {
      std::printf("\n%-28s %10.2f", name.c_str(), nanoseconds);
      own_name_ = name;
      own_ = nanoseconds;
    } else if (name.substr(0, bar) == own_name_) {
      std::printf(" %10.2f %-8s %8.1f", nanoseconds, name.c_str() + bar + 1, nanoseconds / own_);
    }
    std::fflush(stdout);
  }

  void Finalize() override { std::puts(""); }

 private:
  std::string own_name_;
  double own_ = 0.0;
};

}  // namespace bench
