#include "lists/list_label.h"

#include <algorithm>
#include <array>

#include "labelsbase/labelcvt.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace lists {
namespace {

constexpr bool is_separator(char c) noexcept {
  return std::string_view{":;.,+"}.find(c) != std::string_view::npos;
}

// Writes a label of the library with the separators of decision lists.
std::string exchange_form(std::string_view label) {
  std::string text{label.starts_with(' ') ? label.substr(1) : label};
  std::ranges::replace_if(
      text, [](char c) { return c == '.' || c == '+'; }, ':');
  return text;
}

}  // namespace

std::variant<int, labelcheck::refusal> read_list_label(label_t type, std::string_view text) {
  std::array<char, 16> plain;
  bool const fits = text.size() <= plain.size();
  if (fits) {
    std::ranges::transform(text, plain.begin(), [](char c) { return is_separator(c) ? ':' : c; });
    text = {plain.data(), text.size()};
  }
  auto read = labelcheck::read(type, text);
  if (auto const* const label = std::get_if<labelcheck::reading>(&read)) return label->sample;
  auto& refused = std::get<labelcheck::refusal>(read);
  refused.nearest = exchange_form(refused.nearest);
  return std::move(refused);
}

std::string list_label(label_t type, std::int64_t frame) {
  LabelPoint point{type, static_cast<int>(std::clamp<std::int64_t>(frame, INT32_MIN, INT32_MAX))};
  point.removePadding();
  return exchange_form(point.get_string());
}

int frames_per_day(label_t type) noexcept { return labelsbase::facts_of(type).timecode.count().labels_per_day(); }

}  // namespace lists
