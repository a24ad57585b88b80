#include "cli/counting.h"

#include <algorithm>
#include <iterator>

#include "cli/arguments.h"
#include "cli/console.h"
#include "cli/label_io.h"
#include "cli/names.h"
#include "cli/text.h"
#include "labelsbase/framecounts/transfers.h"

namespace cli {
namespace {

struct counted_timecode {
  int frames_per_second;
  label_type label;
};

// Not 48 frames a second, which frame counts count at 24.
constexpr counted_timecode counted_timecodes[] = {
    {24, Label_timecode_24}, {25, Label_timecode_25}, {30, Label_timecode_30},
    {50, Label_timecode_50}, {60, Label_timecode_60},
};

struct named_transfer {
  char const* name;
  transfer_type transfer;
};

constexpr named_transfer transfers[] = {
    {"none", Transfer_none},
    {"2:3", Transfer_2_3_pulldown},
    {"24:25", Transfer_24_to_25},
};

static_assert(std::ranges::all_of(transfers,
                                  [](named_transfer const& named) {
                                    return std::ranges::count(labelsbase::all_transfer_facts, named.transfer,
                                                              &labelsbase::transfer_facts::transfer) == 1;
                                  }),
              "every transfer that the tool names has its row in transfers.h");

std::string two_digits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

std::optional<counted_label> counted_label::of(label_t type) noexcept {
  auto const& facts = labelsbase::facts_of(type);
  auto const& gauge = facts.film.gauge;
  if (facts.family == User_keycode)
    return counted_label{facts, gauge.has_whole_frames() ? Label_keycode_frames : Label_keycode_3perf,
                         gauge.perfs_per_count() / gauge.perfs_per_frame()};

  auto const* const row =
      std::ranges::find(counted_timecodes, facts.timecode.frames_per_second, &counted_timecode::frames_per_second);
  bool const has_standard = facts.standard_rate != Kiv::FrameRate_unknown;  // the types of durations have none
  if (row == std::end(counted_timecodes) || !has_standard) return std::nullopt;
  return counted_label{facts, row->label, 0};
}

unsigned char counted_label::key_digits() const noexcept {
  return static_cast<unsigned char>(((1 << facts_->film.count_digits) - 1) << 2);
}

problem counted_label::read(std::string_view text, int key_phase, digits& out) const {
  return has_keys() ? read_key(text, key_phase, out) : read_timecode(text, out);
}

problem counted_label::read_timecode(std::string_view text, digits& out) const {
  std::string label{text};
  if (text.size() == 8 && all_digits(text))
    for (std::size_t const colon : {6U, 4U, 2U}) label.insert(colon, ":");

  label_parts parts;
  if (auto wrong = read_label(facts_->type, label, parts)) return wrong;
  if (label.starts_with('-')) return "frames are counted from 00:00:00:00; expected a label from there on";
  std::erase_if(label, [](char c) { return !is_digit(c); });
  label.copy(out, label.size());
  out[label.size()] = '\0';
  return std::nullopt;
}

// [PREFIX] KEY [SEPARATOR] FRAME. The separator is "+" or that of the type; a frame is two digits.
problem counted_label::read_key(std::string_view text, int key_phase, digits& out) const {
  auto const key_length = static_cast<std::size_t>(facts_->film.count_digits);
  auto const prefix_length = static_cast<std::size_t>(facts_->film.prefix_length);

  auto label = text;
  bool const has_separator = label.size() > 3 && !is_digit(label[label.size() - 3]);
  if (label.size() == prefix_length + key_length + 2 + has_separator) label.remove_prefix(prefix_length);
  bool const has_length = label.size() == key_length + 2 + has_separator;
  if (!has_length || !all_digits(label.substr(0, key_length)) || !all_digits(label.substr(label.size() - 2)) ||
      (has_separator && label[key_length] != '+' && label[key_length] != facts_->film.separator))
    return "expected a key of " + std::to_string(key_length) + " digits and a frame of 2, for example " +
           std::string(key_length, '0') + facts_->film.separator + "00";

  int const frame = (label[label.size() - 2] - '0') * 10 + (label.back() - '0');
  int const frames = !has_key_phase() ? frames_per_key_ : key_phase == 3 ? 22 : 21;
  if (frame >= frames)
    return "frames of this key run from 00 to " + two_digits(frames - 1) +
           (has_key_phase() ? " at key phase " + std::to_string(key_phase) : "");

  auto const all =
      std::string(6 - key_length, '0').append(label, 0, key_length).append(label.substr(label.size() - 2));
  all.copy(out, all.size());
  out[all.size()] = '\0';
  return std::nullopt;
}

std::string counted_label::shown(digits const& text) const {
  std::string label{text};
  if (!has_keys()) return label.insert(6, 1, facts_->timecode.separator).insert(4, ":").insert(2, ":");

  label.insert(6, 1, facts_->film.separator);
  auto const unused = 6 - static_cast<std::size_t>(facts_->film.count_digits);
  return label.erase(0, std::min(unused, label.find_first_not_of('0')));
}

counted_label find_counted_label(std::string_view where, std::string const& text) {
  auto const type = find_label_type(where, text);
  if (auto const label = counted_label::of(type)) return *label;
  refuse(
      where, text,
      std::string{labelsbase::label_type_name(type)} +
          " cannot be counted; expected a key-number type, or timecode of 24, 25, 30, 50 or 60 frames a second");
}

void add_pulldown(CLI::App& command, pulldown_arguments& given, char const* default_transfer) {
  given.transfer = default_transfer;
  auto const shape = std::string{"NAME ["} + default_transfer + "]";
  add_option(command, "--transfer", shape.c_str(), given.transfer,
             "2:3 (24 to 30 frames a second), 24:25 (one frame added every second) or none");
  add_option(command, "--phase", "N [0]", given.phase,
             "Where a cycle has its added video frame: after film frame N, counted from 0. The last phase, 4 for"
             " 2:3 and 24 for 24:25, adds it before the first film frame");
}

pulldown find_pulldown(pulldown_arguments const& given) {
  auto const* const row =
      std::ranges::find(transfers, given.transfer, [](auto const& t) { return std::string_view{t.name}; });
  if (row == std::end(transfers)) refuse("--transfer", given.transfer, "expected none, 2:3 or 24:25");

  auto const& facts = *labelsbase::find_transfer(row->transfer);
  pulldown found{row->name, facts.transfer, facts.film_cycle, facts.video_cycle, 0};
  int const last_phase = found.has_cadence() ? found.film_cycle : 0;
  auto const phase = signed_number(given.phase);
  if (!phase || *phase < 0 || *phase > last_phase)
    refuse("--phase", given.phase,
           found.has_cadence()
               ? "expected a phase of " + given.transfer + ", from 0 to " + std::to_string(last_phase)
               : "only --transfer 2:3 and 24:25 have phases; leave out --phase");
  found.phase = *phase;
  return found;
}

}  // namespace cli
