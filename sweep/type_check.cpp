#include "sweep/type_check.h"

#include <algorithm>

namespace sweep {

type_check::type_check(label_t type)
    : type_{type}, converter_{make_any_label_cvt(type)}, guarded_{{}, LabelPoint{*converter_, 0}, {}} {
  guarded_.before.fill(guard_byte);
  guarded_.behind.fill(guard_byte);
  converter_->set_prefix(&guarded_.point, "KJ1234567890");
  guarded_.point.sample = guard_sample;
  prefix_ = guarded_.point.prefix;
}

void type_check::check(wide first, wide last, wide step) {
  with_rule_of(labelsbase::facts_of(type_), [&](auto rule) {
    auto& point = guarded_.point;
    auto& converter = *converter_;
    for (wide at = first; at <= last; at += step) {
      int const sample = narrow(at);
      char const* const text = converter.get_abs_string(&point, sample);
      int const read = converter.get_abs_sample(text);
      if (int const expected = rule(sample); read != expected) [[unlikely]]
        add({sample, expected, read, text});
    }
  });
  found_.checked += static_cast<std::uint64_t>(std::max<wide>(0, last - first + step) / step);
  if (is_overrun())
    add({narrow(first), narrow(first), narrow(last), "wrote beyond the text, between these samples"});
}

void type_check::add(wrong_sample const& wrong) {
  ++found_.wrong;
  if (found_.first.size() < kept_wrong_samples) found_.first.push_back(wrong);
}

bool type_check::is_overrun() const {
  auto const is_whole = [](guard const& bytes) {
    return std::ranges::count(bytes, guard_byte) == std::ssize(bytes);
  };
  auto const& point = guarded_.point;
  return !is_whole(guarded_.before) || !is_whole(guarded_.behind) || point.sample != guard_sample ||
         point.converter != converter_.get() || point.text[LabelPoint::text_length] != '\0' ||
         prefix_ != point.prefix;
}

}  // namespace sweep
