// The works that the benchmarks measure: one list for every program that measures them.
#pragma once

#include <functional>
#include <initializer_list>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace bench {

inline constexpr int labels_per_pass = 4096;

// Does a work on labels_per_pass random labels.
using pass = std::function<void()>;

// A work, and the same work done another way. `own` and `other` make the labels and return the pass over them.
struct work {
  std::string name;           // "text_to_sample/25"
  std::function<pass()> own;  // by the library, through its public interface
  char const* beside = "";    // who does it the other way: "libc" or "lenient"; empty if nobody does
  std::function<pass()> other = {};
};
using works = std::vector<work>;

// Returns all works, in the order of the tables.
[[nodiscard]] works all_works();

void add_timecode(works& list);
void add_film(works& list);
void add_keep_strings(works& list);
void add_values(works& list);
void add_frame_counts(works& list);

// Adds a work on each of several kinds of labels: "text_to_sample/25", "text_to_sample/240".
template <class Kind>
void add(works& list, std::string const& name, std::initializer_list<Kind> kinds, pass (*own)(Kind const&),
         char const* beside, pass (*other)(Kind const&)) {
  for (Kind const& kind : kinds)
    list.push_back({name + "/" + kind.name, [=] { return own(kind); }, beside, [=] { return other(kind); }});
}

// Returns random samples from 0 to end - 1, the same ones in every run.
[[nodiscard]] inline std::vector<int> random_samples(int end) {
  std::mt19937 random{labels_per_pass};
  std::vector<int> samples(labels_per_pass);
  for (int& sample : samples) sample = static_cast<int>(random() % static_cast<unsigned>(end));
  return samples;
}

// Makes the compiler compute a value, and forget what it knows of memory.
template <class Value>
inline void compute(Value const& value) {
  asm volatile("" : : "r,m"(value) : "memory");
}

// Returns the pass that calls `convert` for each of the labels.
template <class Label, class Convert>
[[nodiscard]] pass over(std::vector<Label> labels, Convert convert) {
  return [labels = std::move(labels), convert = std::move(convert)]() mutable {
    for (auto& label : labels) compute(convert(label));
  };
}

// Returns the text of each sample.
template <class Write>
[[nodiscard]] std::vector<std::string> written(std::vector<int> const& samples, Write write) {
  std::vector<std::string> texts;
  for (int const sample : samples) texts.emplace_back(write(sample));
  return texts;
}

}  // namespace bench
