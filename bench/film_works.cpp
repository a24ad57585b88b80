// Film labels: text, both ways, and strict reading.

#include <cstdio>
#include <cstring>
#include <string>

#include "bench/film_types.h"
#include "bench/work.h"
#include "labelcheck/read.h"
#include "labelsbase/labels.h"

namespace bench {
namespace {

LabelPoint point_of(film const& f) {
  LabelPoint point{f.type, 0};
  point.cvt()->set_prefix(&point, f.first);
  return point;
}

auto texts_of(film const& f) {
  auto point = point_of(f);
  return written(random_samples(f.end), [&](int sample) { return point.cvt()->get_abs_string(&point, sample); });
}

pass sample_to_text(film const& f) {
  return over(random_samples(f.end), [point = point_of(f)](int sample) mutable {
    point.sample = sample;
    return point.get_string();
  });
}

pass sample_to_text_libc(film const& f) {
  return over(random_samples(f.end), [f, text = std::string(32, ' ')](int sample) mutable {
    auto const [count, frame, perf] = split(f, sample);
    switch (f.shape) {
      case form::prefixed:
        return std::snprintf(text.data(), text.size(), "%s%04d+%02d", f.prefix, count, frame);
      case form::prefixed_perfs:
        return std::snprintf(text.data(), text.size(), "%s%04d+%02d.%d", f.prefix, count, frame, perf);
      case form::feet:
        return std::snprintf(text.data(), text.size(), "%c%04d+%02d", sample < 0 ? '-' : ' ', count, frame);
      case form::frames:
        break;
    }
    return std::snprintf(text.data(), text.size(), "%.6d", sample);
  });
}

pass text_to_sample(film const& f) {
  return over(texts_of(f), [point = point_of(f)](std::string const& text) {
    return point.cvt()->get_abs_sample(text.c_str());
  });
}

pass text_to_sample_libc(film const& f) {
  return over(texts_of(f), [f, prefix_length = std::strlen(f.prefix)](std::string const& text) {
    film_numbers at{};
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

pass strict_reading(film const& f) {
  return over(texts_of(f), [f](std::string const& text) { return labelcheck::read(f.type, text); });
}

}  // namespace

void add_film(works& list) {
  auto const all = {keycode_35, keycode_353, foot_35, ink_35, film_frames};
  add(list, "sample_to_text", all, sample_to_text, "libc", sample_to_text_libc);
  add(list, "text_to_sample", all, text_to_sample, "libc", text_to_sample_libc);
  add(list, "strict_reading", all, strict_reading, "lenient", text_to_sample);
}

}  // namespace bench
