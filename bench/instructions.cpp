// Counts the instructions of each work. Runs under callgrind, which writes a profile for each, named after the
// work.

#include <valgrind/callgrind.h>

#include <string>

#include "bench/work.h"

namespace {

void count(std::string const& name, bench::pass const& pass) {
  pass();  // builds the registry, and resolves the symbols
  CALLGRIND_ZERO_STATS;
  pass();
  CALLGRIND_DUMP_STATS_AT(name.c_str());
}

}  // namespace

int main() {
  count("loop", bench::over(bench::random_samples(1'000'000), [](int sample) { return sample; }));
  for (auto const& work : bench::all_works()) {
    count(work.name, work.own());
    if (work.other) count(work.name + "|" + work.beside, work.other());
  }
  CALLGRIND_ZERO_STATS;
}
