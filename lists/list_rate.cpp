#include "lists/list_rate.h"

#include <algorithm>
#include <array>

#include "labelsbase/labelcvt/label_facts.h"
#include "lists/list_label.h"

namespace lists {
namespace {

// Rates of lists, by name. Rates that differ in speed only have the same labels: the first of them stands for
// both.
constexpr char const* list_rates[] = {"24", "25", "30", "29.97df", "48", "50", "60"};

bool fits(label_t type, list_event const& event) {
  std::optional<std::int64_t> expected;
  bool has_two = false;
  for (auto const* span : {&event.source, &event.record, &event.mark}) {
    if (!span->is_whole()) continue;
    auto const length = length_of(type, *span);
    if (!length || *length < 0) return false;
    if (!span->length.empty()) {
      auto const stated = read_list_label(type, span->length.text);
      if (stated.index() != 0 || std::get<int>(stated) != *length) return false;
      has_two = true;
    }
    if (span == &event.mark) continue;  // a part of the source
    if (expected && *expected != *length) return false;
    has_two = has_two || expected;
    expected = length;
  }
  return has_two;
}

bool has_drop_frame_marks(list_event const& event) {
  return std::ranges::any_of(std::array{&event.source.in, &event.source.out, &event.record.in, &event.record.out},
                             [](auto const* label) { return marks_drop_frame(label->text); });
}

}  // namespace

std::optional<std::int64_t> length_of(label_t type, span_of_labels const& span) {
  auto const in = read_list_label(type, span.in.text);
  auto const out = read_list_label(type, span.out.text);
  if (in.index() != 0 || out.index() != 0) return std::nullopt;
  auto const frames = std::int64_t{std::get<int>(out)} - std::get<int>(in);
  auto const day = frames_per_day(type);
  return frames < 0 && frames + day <= day / 2 ? frames + day : frames;
}

std::vector<named_type> rates_that_fit(std::span<list_event const* const> events, std::optional<bool> drop_frame) {
  auto const has_marks = [](list_event const* event) { return has_drop_frame_marks(*event); };
  if (!drop_frame && std::ranges::any_of(events, has_marks)) drop_frame = true;

  std::vector<named_type> best;
  std::ptrdiff_t most = 1;
  for (auto const* name : list_rates) {
    auto const rate = labelnames::find(name);
    if (!rate) continue;
    if (drop_frame && *drop_frame != labelsbase::facts_of(rate->type).timecode.drop_frame) continue;
    auto const count = std::ranges::count_if(
        events, [&](list_event const* event) { return !event->speed && fits(rate->type, *event); });
    if (count < most) continue;
    if (count > most) best.clear();
    most = count;
    best.push_back(*rate);
  }
  return best;
}

std::string rate_name(named_type const& rate) {
  for (auto const& row : labelnames::all_names())
    if (row.type == rate.type && row.rate == rate.rate && !row.drop_by_project) return std::string{row.name()};
  return labelsbase::label_type_name(rate.type);
}

}  // namespace lists
