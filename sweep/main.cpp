// Checks every sample of every label type: writes its label, reads that back, and compares with the rule of the
// type.

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "labelnames/names.h"
#include "sweep/record.h"

namespace {

using namespace sweep;
using clock_type = std::chrono::steady_clock;

std::atomic<bool> is_stopped{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

// A block of one type, still to be checked.
struct task {
  label_t type;
  int block;
};

// Checks the block of a task. Returns nothing if the sweep was stopped.
std::optional<type_record> checked(task const& job, bool thin) {
  auto const processor_seconds = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
  };
  double const start = processor_seconds();
  type_check check{job.type};
  auto const stretch = [&](wide first, wide last, wide step) {
    check.check(first, last, step);
    return !is_stopped;
  };
  if (!(thin ? thinned(job.type, job.block, stretch) : every_sample(job.block, stretch))) return {};
  return type_record{{}, check.found(), processor_seconds() - start};
}

void add(type_record& all, type_record const& one, int block) {
  all.done.set(static_cast<std::size_t>(block));
  all.seconds += one.seconds;
  all.found.checked += one.found.checked;
  all.found.wrong += one.found.wrong;
  auto& kept = all.found.first;
  kept.insert(kept.end(), one.found.first.begin(), one.found.first.end());
  kept.resize(std::min(kept.size(), kept_wrong_samples));
}

// Threads that take blocks of the sweep until none is left.
class crew {
 public:
  crew(record& all, std::vector<task> tasks, bool thin) : all_{all}, tasks_{std::move(tasks)}, thin_{thin} {
    auto const count = std::max(1U, std::thread::hardware_concurrency());
    working_ = count;
    for (unsigned i = 0; i < count; ++i) threads_.emplace_back([this] { work(); });
  }

  // Calls `report` with the number of blocks done by the crew, once a second and at the end. Until it returns, the
  // record stands still.
  void wait(std::function<void(std::size_t)> const& report) {
    std::unique_lock lock{mutex_};
    while (working_ > 0) {
      is_changed_.wait_for(lock, std::chrono::seconds{1}, [&] { return working_ == 0; });
      report(done_);
    }
  }

 private:
  void work() {
    for (auto next = next_++; next < tasks_.size() && !is_stopped; next = next_++) {
      auto const& job = tasks_[next];
      auto const found = checked(job, thin_);
      if (!found) break;
      std::lock_guard const lock{mutex_};
      add(all_[static_cast<std::size_t>(job.type)], *found, job.block);
      ++done_;
    }
    std::lock_guard const lock{mutex_};
    if (--working_ == 0) is_changed_.notify_one();
  }

  record& all_;
  std::vector<task> const tasks_;
  bool const thin_;
  std::atomic<std::size_t> next_{0};
  std::mutex mutex_;  // of what follows, and of the record
  std::condition_variable is_changed_;
  std::size_t done_ = 0;
  unsigned working_ = 0;
  std::vector<std::jthread> threads_;
};

// Says on standard error how far the sweep has come: once a second on a terminal, else once a minute.
class progress {
 public:
  explicit progress(std::size_t total) : total_{total} {}

  void update(std::size_t done) {
    auto const now = clock_type::now();
    if (now < next_ || done == 0) return;
    next_ = now + (is_terminal_ ? std::chrono::seconds{1} : std::chrono::seconds{60});
    auto const seconds = std::chrono::duration<double>(now - start_).count();
    auto const rate = static_cast<double>(done) / seconds;
    std::fprintf(stderr, "%ssweep: block %zu of %zu, %.1f blocks/s, %.0f min left%s", is_terminal_ ? "\r" : "",
                 done, total_, rate, static_cast<double>(total_ - done) / rate / 60 + 0.5,
                 is_terminal_ ? "   " : "\n");
  }

  ~progress() {
    if (is_terminal_) std::fputc('\n', stderr);
  }

 private:
  std::size_t const total_;
  bool const is_terminal_ = isatty(STDERR_FILENO) != 0;
  clock_type::time_point const start_ = clock_type::now();
  clock_type::time_point next_ = start_ + std::chrono::seconds{1};
};

char const* name_of(label_t type) {
  char const* const name = labelsbase::facts_of(type).name;
  return *name ? name : "-";
}

// Prints the table of the types, and the first wrong samples. Returns how many samples are wrong.
std::uint64_t print(record const& all, std::vector<label_t> const& types) {
  std::uint64_t checked = 0;
  std::uint64_t wrong = 0;
  double seconds = 0;
  std::printf("%4s  %-24s%14s%14s%10s\n", "type", "name", "samples", "wrong", "seconds");
  for (auto const type : types) {
    auto const& of_type = all[static_cast<std::size_t>(type)];
    std::printf("%4d  %-24s%14ju%14ju%10.1f\n", type, name_of(type), std::uintmax_t{of_type.found.checked},
                std::uintmax_t{of_type.found.wrong}, of_type.seconds);
    checked += of_type.found.checked;
    wrong += of_type.found.wrong;
    seconds += of_type.seconds;
  }
  std::printf("%4zu  %-24s%14ju%14ju%10.1f\n", types.size(), "types", std::uintmax_t{checked},
              std::uintmax_t{wrong}, seconds);
  for (auto const type : types)
    for (auto const& at : all[static_cast<std::size_t>(type)].found.first)
      std::printf("%s: sample %d is \"%s\", which reads as %d, not %d\n", name_of(type), at.sample,
                  at.text.c_str(), at.read, at.expected);
  return wrong;
}

std::vector<label_t> types_named(std::vector<std::string> const& names) {
  std::vector<label_t> types;
  for (auto const& name : names) types.push_back(labelnames::find(name)->type);
  for (int type = 0; names.empty() && type < numLabelCvts; ++type) types.push_back(label_t{type});
  return types;
}

// Checks what the record lacks. Returns how many blocks are left because the sweep was stopped.
std::size_t sweep_all(record& all, std::vector<label_t> const& types, bool thin, std::string const& file) {
  std::vector<task> tasks;
  for (auto const type : types)
    for (int block = 0; block < blocks; ++block)
      if (!all[static_cast<std::size_t>(type)].done.test(static_cast<std::size_t>(block)))
        tasks.push_back({type, block});

  std::size_t kept = 0;
  progress shown{tasks.size()};
  crew threads{all, tasks, thin};
  threads.wait([&](std::size_t done) {
    if (!file.empty() && done > kept) save(all, file);
    kept = done;
    shown.update(done);
  });
  return tasks.size() - kept;
}

int run(int argc, char** argv) {
  CLI::App app{"Checks every sample of label types: writes its label, reads it back, compares with the rule."};
  bool thin = false;
  std::string file;
  std::vector<std::string> names;
  app.add_flag("--thin", thin, "check every 4099th sample and those around each boundary");
  app.add_option("--state", file, "keep what is done in this file, and go on from there")->excludes("--thin");
  app.add_option("TYPE", names, "label types, such as 29.97df; all if none is given")
      ->check([](std::string const& name) {
        return labelnames::find(name) ? "" : "expected the name of a label type, such as 29.97df or 35mm";
      });
  CLI11_PARSE(app, argc, argv);

  for (int const signal : {SIGINT, SIGTERM}) std::signal(signal, [](int) { is_stopped = true; });
  auto all = file.empty() ? record{} : load(file);
  auto const types = types_named(names);
  if (auto const left = sweep_all(all, types, thin, file)) {
    std::fprintf(stderr, "sweep: stopped, %zu blocks left%s\n", left,
                 file.empty() ? "" : "; the same command goes on");
    return 130;
  }
  return print(all, types) > 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (std::exception const& problem) {
    std::fprintf(stderr, "sweep: %s\n", problem.what());
    return 2;
  }
}
