// Keep strings, written and read.

#include <cstdio>
#include <string>

#include "bench/film_types.h"
#include "bench/timecode_rates.h"
#include "bench/work.h"
#include "labelsbase/labels.h"

namespace bench {
namespace {

using buffer = std::string;

template <class Kind>
Label label_of(Kind const& kind) {
  Label label{kind.type};
  label.length = 1'000;
  if constexpr (requires { kind.first; }) label.set_prefix(kind.first);
  return label;
}

template <class Kind>
pass write_keep_string(Kind const& kind) {
  return over(random_samples(kind.end), [label = label_of(kind), text = buffer(256, ' ')](int sample) mutable {
    label.start.sample = sample;
    return label.make_keep_string(text.data());
  });
}

template <class Kind>
auto keep_strings_of(Kind const& kind) {
  auto label = label_of(kind);
  return written(random_samples(kind.end), [&](int sample) {
    label.start.sample = sample;
    return label.make_keep_string(nullptr);
  });
}

template <class Kind>
pass read_keep_string(Kind const& kind) {
  return over(keep_strings_of(kind), [](std::string const& text) {
    Label const label{text.c_str()};
    return label.start.sample;
  });
}

pass write_timecode_libc(rate const& r) {
  return over(random_samples(r.end), [r, label = label_of(r), text = buffer(256, ' ')](int sample) mutable {
    auto const [h, m, s, f] = split(r, sample);
    return std::snprintf(text.data(), text.size(), "LABEL_REV:1 %s  %02d:%02d:%02d%c%02d %d %.10f %d",
                         label.start.cvt()->type_str(), h, m, s, r.separator, f, label.length, label.pitch,
                         label.bounded);
  });
}

pass read_timecode_libc(rate const& r) {
  return over(
      keep_strings_of(r), [r, label = label_of(r), type = buffer(64, ' ')](std::string const& text) mutable {
        int revision;
        timecode_numbers at{};
        char separator;
        std::sscanf(text.c_str(), "LABEL_REV:%d %63s %d:%d:%d%c%d %d %lf %d", &revision, type.data(), &at.hours,
                    &at.minutes, &at.seconds, &separator, &at.frames, &label.length, &label.pitch, &label.bounded);
        return join(r, at);
      });
}

pass write_film_libc(film const& f) {
  return over(random_samples(f.end), [f, label = label_of(f), text = buffer(256, ' ')](int sample) mutable {
    auto const at = split(f, sample);
    return std::snprintf(text.data(), text.size(), "LABEL_REV:1 %s %s%04d+%02d %d %.10f %d",
                         label.start.cvt()->type_str(), f.prefix, at.count, at.frame,
                         label.length / f.perfs_per_frame, label.pitch * f.perfs_per_frame, label.bounded);
  });
}

pass read_film_libc(film const& f) {
  return over(keep_strings_of(f),
              [f, label = label_of(f), type = buffer(64, ' ')](std::string const& text) mutable {
                int revision, units;
                film_numbers at{};
                char prefix[9] = {};
                std::sscanf(text.c_str(), "LABEL_REV:%d %63s %8c%d+%d %d %lf %d", &revision, type.data(), prefix,
                            &at.count, &at.frame, &units, &label.pitch, &label.bounded);
                label.length = units * f.perfs_per_frame;
                label.pitch /= f.perfs_per_frame;
                return join(f, at);
              });
}

}  // namespace

void add_keep_strings(works& list) {
  auto const timecodes = {tc_25, tc_30_drop};
  auto const films = {keycode_35};
  add(list, "write_keep_string", timecodes, write_keep_string<rate>, "libc", write_timecode_libc);
  add(list, "write_keep_string", films, write_keep_string<film>, "libc", write_film_libc);
  add(list, "read_keep_string", timecodes, read_keep_string<rate>, "libc", read_timecode_libc);
  add(list, "read_keep_string", films, read_keep_string<film>, "libc", read_film_libc);
}

}  // namespace bench
