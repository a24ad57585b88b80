// Measures timecode through the public interface of the shared library, against snprintf and sscanf doing the same
// work: 4096 random labels of a day, text and packed BCD, both ways.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "labelsbase/labels.h"

namespace {

using bench::measure;

struct rate {
  label_t type;
  char const* name;
  int fps;
  char separator;
  bool drop;
};

// clang-format off
constexpr rate rates[] = {
    {tc_24_label_t,     "24",      24, '+', false},
    {pal_label_t,       "25",      25, '.', false},
    {ntsc_drop_label_t, "30-drop", 30, ';', true},
    {tc_240_label_t,    "240",    240, '.', false},
};
// clang-format on

struct fields {
  int hours, minutes, seconds, frames;
};

// The plain arithmetic that goes with a call of snprintf or sscanf.
fields split(rate const& r, int sample) {
  if (r.drop) {
    int const tens = sample / 17'982, in_tens = sample % 17'982;
    sample += 18 * tens + (in_tens < 1'800 ? 0 : 2 * ((in_tens - 1'800) / 1'798 + 1));
  }
  int const seconds = sample / r.fps;
  return {seconds / 3600, seconds / 60 % 60, seconds % 60, sample % r.fps};
}

int join(rate const& r, fields const& f) {
  int const minutes = f.hours * 60 + f.minutes;
  int const sample = (minutes * 60 + f.seconds) * r.fps + f.frames;
  return r.drop ? sample - 2 * (minutes - minutes / 10) : sample;
}

struct day_of_labels {
  explicit day_of_labels(rate const& r) : point{r.type, 0} {
    samples = bench::random_samples(dynamic_cast<timecode_label&>(*point.cvt()).samples_per_day());
    for (int const sample : samples) {
      texts.emplace_back(point.cvt()->get_abs_string(&point, sample));
      packed.push_back(point.cvt()->get_abs_smpte_string(&point, sample));
    }
  }

  LabelPoint point;
  std::vector<int> samples;
  std::vector<std::string> texts;
  std::vector<unsigned> packed;
};

void sample_to_text(benchmark::State& state, rate const& r) {
  day_of_labels day{r};
  measure(state, day.samples, [&](int sample) {
    day.point.sample = sample;
    return day.point.get_string();
  });
}

void sample_to_text_libc(benchmark::State& state, rate const& r) {
  day_of_labels day{r};
  auto& text = day.point.text;
  measure(state, day.samples, [&](int sample) {
    auto const [h, m, s, f] = split(r, sample);
    return r.fps < 120 ? std::snprintf(text, sizeof text, " %02d:%02d:%02d%c%02d", h, m, s, r.separator, f)
                       : std::snprintf(text, sizeof text, " %02d:%02d:%02d%c%03d", h, m, s, r.separator, f);
  });
}

void text_to_sample(benchmark::State& state, rate const& r) {
  day_of_labels day{r};
  measure(state, day.texts,
          [&](std::string const& text) { return day.point.cvt()->get_abs_sample(text.c_str()); });
}

void text_to_sample_libc(benchmark::State& state, rate const& r) {
  day_of_labels const day{r};
  measure(state, day.texts, [&](std::string const& text) {
    fields f{};
    char separator;
    std::sscanf(text.c_str(), "%d:%d:%d%c%d", &f.hours, &f.minutes, &f.seconds, &separator, &f.frames);
    return join(r, f);
  });
}

void sample_to_bcd(benchmark::State& state, rate const& r) {
  day_of_labels day{r};
  measure(state, day.samples,
          [&](int sample) { return day.point.cvt()->get_abs_smpte_string(&day.point, sample); });
}

void sample_to_bcd_libc(benchmark::State& state, rate const& r) {
  day_of_labels const day{r};
  measure(state, day.samples, [&](int sample) {
    auto const f = split(r, sample);
    char digits[48];
    std::snprintf(digits, sizeof digits, "%02d%02d%02d%02d", f.hours, f.minutes, f.seconds, f.frames);
    return std::strtoul(digits, nullptr, 16) | (r.drop ? 0x40U : 0U);
  });
}

void bcd_to_sample(benchmark::State& state, rate const& r) {
  day_of_labels day{r};
  measure(state, day.packed, [&](unsigned packed) {
    bool drop;
    return day.point.cvt()->get_samples_from_SMPTETc(packed, drop);
  });
}

void bcd_to_sample_libc(benchmark::State& state, rate const& r) {
  day_of_labels const day{r};
  measure(state, day.packed, [&](unsigned packed) {
    char digits[48];
    fields f{};
    std::snprintf(digits, sizeof digits, "%08x", packed & 0x3F7F7F3FU);
    std::sscanf(digits, "%2d%2d%2d%2d", &f.hours, &f.minutes, &f.seconds, &f.frames);
    return ((f.hours * 60 + f.minutes) * 60 + f.seconds) * r.fps + f.frames;
  });
}

constexpr bench::work<rate> works[] = {
    {"sample_to_text", sample_to_text, sample_to_text_libc},
    {"text_to_sample", text_to_sample, text_to_sample_libc},
    {"sample_to_bcd", sample_to_bcd, sample_to_bcd_libc},
    {"bcd_to_sample", bcd_to_sample, bcd_to_sample_libc},
};

[[maybe_unused]] bool const registered = bench::register_all(works, rates);

}  // namespace
