#include "labelcheck/write.h"

#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/registry.h"

namespace labelcheck {
namespace {

void set_prefix(LabelPoint& point, std::string_view prefix) noexcept {
  point.prefix[prefix.copy(point.prefix, LabelPoint::prefix_length)] = '\0';
}

}  // namespace

writer::writer(label_t type, std::string_view prefix, label_style style)
    : own_converter_{make_any_label_cvt(type)},
      negative_{own_converter_ ? *own_converter_ : *get_static_label_cvt(type), 0},
      positive_{negative_},
      range_{range_of(type)} {
  auto const& facts = labelsbase::facts_of(type);
  bool const is_respelt = style == label_style::exchange && facts.is_timecode() && !facts.timecode.drop_frame;
  exchange_digits_ = is_respelt ? static_cast<std::size_t>(facts.timecode.frame_digits()) : 0;
  positive_.removePadding();
  set_prefix(negative_, prefix);
  set_prefix(positive_, prefix);
}

std::size_t writer::write(int sample, std::span<char> out) {
  if (!range_.has_label(sample)) return 0;
  auto& point = sample < 0 ? negative_ : positive_;
  point.sample = sample;
  char const* label = point.get_string();
  if (*label == ' ') ++label;  // 3-perf feet always have the sign column

  // One character at a time, for the benchmarks of arrays: converters write fields of one and two characters, and
  // a processor that reads more of them at once first waits until all are in its cache.
  std::size_t length = 0;
  for (; label[length] != '\0'; ++length) {
    if (length == out.size()) return 0;
    out[length] = label[length];
  }
  if (exchange_digits_ > 0) out[length - exchange_digits_ - 1] = ':';
  return length;
}

}  // namespace labelcheck
