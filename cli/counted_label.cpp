#include "cli/counted_label.h"

#include <algorithm>

#include "cli/film.h"
#include "cli/label_type.h"
#include "labelcheck/label_check.h"

namespace cli {
namespace {

struct counted_timecode {
  label_t type;
  label_type label;
};

// Not of 48 frames a second, which frame counts count at 24.
constexpr counted_timecode counted_timecodes[] = {
    {pal_label_t, Label_timecode_25},   {ntsc_label_t, Label_timecode_30},  {ntsc_drop_label_t, Label_timecode_30},
    {tc_24_label_t, Label_timecode_24}, {tc_50_label_t, Label_timecode_50}, {tc_60_label_t, Label_timecode_60},
};

constexpr bool is_digit(char c) noexcept { return c >= '0' && c <= '9'; }
bool all_digits(std::string_view text) { return std::ranges::all_of(text, is_digit); }

}  // namespace

std::optional<counted_label> counted_label::of(label_t type, messages& errors) {
  auto& converter = *get_static_label_cvt(type);
  if (converter.UserType() == User_keycode) {
    bool const three_perf = converter.samples_per_unit() == 3;
    return counted_label{converter, three_perf ? Label_keycode_3perf : Label_keycode_frames,
                         perfs_per_count(converter) / converter.samples_per_unit()};
  }
  for (auto const& row : counted_timecodes)
    if (row.type == type) return counted_label{converter, row.label, 0};

  errors.say(
      std::string{converter.type_str()} +
      " cannot be counted; expected a key-number type, or timecode of 24, 25, 30, 50 or 60 frames a second");
  return std::nullopt;
}

unsigned char counted_label::key_digits() const {
  return static_cast<unsigned char>(((1 << converter_->get_count_length()) - 1) << 2);
}

problem counted_label::read(std::string_view text, int key_phase, digits& out) const {
  return has_keys() ? read_key(text, key_phase, out) : read_timecode(text, out);
}

problem counted_label::read_timecode(std::string_view text, digits& out) const {
  std::string label{text};
  if (text.size() == 8 && all_digits(text))
    for (std::size_t const colon : {6U, 4U, 2U}) label.insert(colon, ":");

  if (auto const refused = labelcheck::check(converter_->type(), label)) {
    std::string const where = " (column " + std::to_string(refused->position + 1) + ")";
    return refused->rule + (refused->nearest.empty() ? "" : where + "; nearest is " + refused->nearest);
  }
  if (label.starts_with('-')) return "frames are counted from 00:00:00:00, below it there are none";
  std::erase_if(label, [](char c) { return !is_digit(c); });
  label.copy(out, label.size());
  out[label.size()] = '\0';
  return std::nullopt;
}

problem counted_label::read_key(std::string_view text, int key_phase, digits& out) const {
  auto const key_length = static_cast<std::size_t>(converter_->get_count_length());
  auto const prefix_length = static_cast<std::size_t>(converter_->get_prefix_length());

  auto label = text;
  bool const has_separator = label.size() > 3 && !is_digit(label[label.size() - 3]);
  if (label.size() == prefix_length + key_length + 2 + has_separator) label.remove_prefix(prefix_length);
  bool const has_length = label.size() == key_length + 2 + has_separator;
  if (!has_length || !all_digits(label.substr(0, key_length)) || !all_digits(label.substr(label.size() - 2)) ||
      (has_separator && label[key_length] != '+' && label[key_length] != converter_->getFrameSeparator()))
    return "expected a key of " + std::to_string(key_length) + " digits and a frame of two, for example " +
           std::string(key_length, '0') + converter_->getFrameSeparator() + "00";

  int const frame = (label[label.size() - 2] - '0') * 10 + (label.back() - '0');
  int const frames = !has_key_phase() ? frames_per_key_ : key_phase == 3 ? 22 : 21;
  if (frame >= frames)
    return "the frames of this key run from 00 to " + std::to_string(frames - 1) +
           (has_key_phase() ? " at key phase " + std::to_string(key_phase) : "");

  auto const all =
      std::string(6 - key_length, '0').append(label, 0, key_length).append(label.substr(label.size() - 2));
  all.copy(out, all.size());
  out[all.size()] = '\0';
  return std::nullopt;
}

std::string counted_label::shown(digits const& text) const {
  std::string label{text};
  if (!has_keys()) {
    label.insert(6, 1, converter_->getFrameSeparator());
    return label.insert(4, ":").insert(2, ":");
  }
  label.insert(6, 1, converter_->getFrameSeparator());
  auto const unused = 6 - static_cast<std::size_t>(converter_->get_count_length());
  return label.erase(0, std::min(unused, label.find_first_not_of('0')));
}

}  // namespace cli
