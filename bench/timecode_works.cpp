// Timecode: text and packed BCD, both ways, and strict reading.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/timecode_rates.h"
#include "bench/work.h"
#include "labelcheck/read.h"
#include "labelsbase/labels.h"

namespace bench {
namespace {

auto texts_of(rate const& r) {
  LabelPoint point{r.type, 0};
  return written(random_samples(r.end), [&](int sample) { return point.cvt()->get_abs_string(&point, sample); });
}

std::vector<unsigned> packed_of(rate const& r) {
  LabelPoint point{r.type, 0};
  std::vector<unsigned> packed;
  for (int const sample : random_samples(r.end))
    packed.push_back(point.cvt()->get_abs_smpte_string(&point, sample));
  return packed;
}

pass sample_to_text(rate const& r) {
  return over(random_samples(r.end), [point = LabelPoint{r.type, 0}](int sample) mutable {
    point.sample = sample;
    return point.get_string();
  });
}

pass sample_to_text_libc(rate const& r) {
  return over(random_samples(r.end), [r, text = std::string(32, ' ')](int sample) mutable {
    auto const [h, m, s, f] = split(r, sample);
    return r.fps < 120 ? std::snprintf(text.data(), text.size(), " %02d:%02d:%02d%c%02d", h, m, s, r.separator, f)
                       : std::snprintf(text.data(), text.size(), " %02d:%02d:%02d%c%03d", h, m, s, r.separator, f);
  });
}

pass text_to_sample(rate const& r) {
  return over(texts_of(r), [cvt = LabelPoint{r.type, 0}.cvt()](std::string const& text) {
    return cvt->get_abs_sample(text.c_str());
  });
}

pass text_to_sample_libc(rate const& r) {
  return over(texts_of(r), [r](std::string const& text) {
    timecode_numbers at{};
    char separator;
    std::sscanf(text.c_str(), "%d:%d:%d%c%d", &at.hours, &at.minutes, &at.seconds, &separator, &at.frames);
    return join(r, at);
  });
}

pass strict_reading(rate const& r) {
  return over(texts_of(r), [r](std::string const& text) { return labelcheck::read(r.type, text); });
}

pass sample_to_bcd(rate const& r) {
  return over(random_samples(r.end), [point = LabelPoint{r.type, 0}](int sample) mutable {
    return point.cvt()->get_abs_smpte_string(&point, sample);
  });
}

pass sample_to_bcd_libc(rate const& r) {
  return over(random_samples(r.end), [r](int sample) {
    auto const [h, m, s, f] = split(r, sample);
    char digits[48];
    std::snprintf(digits, sizeof digits, "%02d%02d%02d%02d", h, m, s, f);
    return std::strtoul(digits, nullptr, 16) | (r.drop ? 0x40U : 0U);
  });
}

pass bcd_to_sample(rate const& r) {
  return over(packed_of(r), [cvt = LabelPoint{r.type, 0}.cvt()](unsigned packed) {
    bool drop;
    return cvt->get_samples_from_SMPTETc(packed, drop);
  });
}

pass bcd_to_sample_libc(rate const& r) {
  return over(packed_of(r), [r](unsigned packed) {
    char digits[48];
    timecode_numbers at{};
    std::snprintf(digits, sizeof digits, "%08x", packed & 0x3F7F7F3FU);
    std::sscanf(digits, "%2d%2d%2d%2d", &at.hours, &at.minutes, &at.seconds, &at.frames);
    return ((at.hours * 60 + at.minutes) * 60 + at.seconds) * r.fps + at.frames;
  });
}

}  // namespace

void add_timecode(works& list) {
  auto const all = {tc_24, tc_25, tc_30_drop, tc_240};
  add(list, "sample_to_text", all, sample_to_text, "libc", sample_to_text_libc);
  add(list, "text_to_sample", all, text_to_sample, "libc", text_to_sample_libc);
  add(list, "strict_reading", all, strict_reading, "lenient", text_to_sample);
  add(list, "sample_to_bcd", all, sample_to_bcd, "libc", sample_to_bcd_libc);
  add(list, "bcd_to_sample", all, bcd_to_sample, "libc", bcd_to_sample_libc);
}

}  // namespace bench
