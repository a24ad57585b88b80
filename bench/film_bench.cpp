// Measures film labels through the public interface of the shared library, against snprintf and sscanf doing the
// same work: 4096 random labels over the whole count, text and keep strings, both ways.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "labelsbase/labels.h"

namespace {

using bench::measure;

enum class form { prefixed, prefixed_perfs, feet, frames };

struct film {
  label_t type;
  char const* name;
  form shape;
  char const* prefix;
  int frames_per_count;
  int perfs_per_frame;
  int end;  // samples run from 0 to end - 1
};

// clang-format off
constexpr film films[] = {
    {keycode_35_label_t,  "keycode_35",  form::prefixed,       "KJ123456", 16, 4,   640'000},
    {keycode_353_label_t, "keycode_353", form::prefixed_perfs, "KJ123456", 22, 3,   639'998},
    {foot_35_label_t,     "foot_35",     form::feet,           "",         16, 4,   640'000},
    {ink_35_label_t,      "ink_35",      form::prefixed,       "AB12",     16, 4,   640'000},
    {film_frames_label_t, "film_frames", form::frames,         "",          1, 1, 1'000'000},
};
// clang-format on

struct fields {
  int count, frame, perf;
};

// The plain arithmetic that goes with a call of snprintf or sscanf.
fields split(film const& f, int sample) {
  if (f.shape == form::prefixed_perfs) {
    int const shifted = sample + 2;
    return {shifted / 64, shifted % 64 / 3, 3 - shifted % 64 % 3};
  }
  int const frames = sample / f.perfs_per_frame;
  return {frames / f.frames_per_count, frames % f.frames_per_count, 0};
}

int join(film const& f, fields const& at) {
  if (f.shape == form::prefixed_perfs) return at.count * 64 + at.frame * 3 - (at.perf - 1);
  return (at.count * f.frames_per_count + at.frame) * f.perfs_per_frame;
}

struct roll_of_labels {
  explicit roll_of_labels(film const& f) : point{f.type, 0}, samples{bench::random_samples(f.end)} {
    point.cvt()->set_prefix(&point, *f.prefix ? (std::string{f.prefix} + "0000+00").c_str() : "");
    for (int const sample : samples) {
      texts.emplace_back(point.cvt()->get_abs_string(&point, sample));
      keeps.emplace_back(point.cvt()->get_keep_string(&point, sample));
    }
  }

  LabelPoint point;
  std::vector<int> samples;
  std::vector<std::string> texts, keeps;
};

void sample_to_text(benchmark::State& state, film const& f) {
  roll_of_labels roll{f};
  measure(state, roll.samples, [&](int sample) {
    roll.point.sample = sample;
    return roll.point.get_string();
  });
}

void sample_to_keep(benchmark::State& state, film const& f) {
  roll_of_labels roll{f};
  measure(state, roll.samples, [&](int sample) {
    roll.point.sample = sample;
    return roll.point.get_keep_string();
  });
}

void sample_to_libc(benchmark::State& state, film const& f) {
  roll_of_labels roll{f};
  auto& text = roll.point.text;
  measure(state, roll.samples, [&](int sample) {
    auto const [count, frame, perf] = split(f, sample);
    switch (f.shape) {
      case form::prefixed:
        return std::snprintf(text, sizeof text, "%s%04d+%02d", f.prefix, count, frame);
      case form::prefixed_perfs:
        return std::snprintf(text, sizeof text, "%s%04d+%02d.%d", f.prefix, count, frame, perf);
      case form::feet:
        return std::snprintf(text, sizeof text, "%c%04d+%02d", sample < 0 ? '-' : ' ', count, frame);
      case form::frames:
        break;
    }
    return std::snprintf(text, sizeof text, "%.6d", sample);
  });
}

void text_to_sample(benchmark::State& state, film const& f) {
  roll_of_labels roll{f};
  measure(state, roll.texts,
          [&](std::string const& text) { return roll.point.cvt()->get_abs_sample(text.c_str()); });
}

void keep_to_sample(benchmark::State& state, film const& f) {
  roll_of_labels roll{f};
  measure(state, roll.keeps,
          [&](std::string const& text) { return roll.point.cvt()->get_keep_sample(text.c_str()); });
}

void to_sample_libc(benchmark::State& state, film const& f) {
  roll_of_labels const roll{f};
  auto const prefix_length = std::string{f.prefix}.size();
  measure(state, roll.texts, [&](std::string const& text) {
    fields at{};
    char const* const number = text.c_str() + prefix_length;
    switch (f.shape) {
      case form::prefixed:
      case form::feet:
        std::sscanf(number, "%d+%d", &at.count, &at.frame);
        break;
      case form::prefixed_perfs:
        std::sscanf(number, "%d+%d.%d", &at.count, &at.frame, &at.perf);
        break;
      case form::frames:
        std::sscanf(number, "%d", &at.count);
        break;
    }
    return join(f, at);
  });
}

constexpr bench::work<film> works[] = {
    {"sample_to_text", sample_to_text, sample_to_libc},
    {"text_to_sample", text_to_sample, to_sample_libc},
    {"sample_to_keep", sample_to_keep, sample_to_libc},
    {"keep_to_sample", keep_to_sample, to_sample_libc},
};

[[maybe_unused]] bool const registered = bench::register_all(works, films);

}  // namespace
