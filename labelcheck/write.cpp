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

std::string_view writer::write(int sample) {
  if (!range_.has_label(sample)) return {};
  auto& point = sample < 0 ? negative_ : positive_;
  point.sample = sample;
  std::string_view label = point.get_string();
  if (label.starts_with(' ')) label.remove_prefix(1);  // 3-perf feet always have the sign column
  if (exchange_digits_ > 0) point.text[label.size() - exchange_digits_ - 1] = ':';
  return label;
}

}  // namespace labelcheck
