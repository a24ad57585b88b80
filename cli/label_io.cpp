#include "cli/label_io.h"

#include <algorithm>
#include <limits>

#include "cli/arguments.h"
#include "cli/console.h"
#include "cli/film.h"
#include "cli/names.h"
#include "cli/text.h"
#include "labelsbase/characters.h"

namespace cli {
namespace {

// Positions and suggestions refer to what the user typed, without the first `untyped` characters. Columns count
// from 1.
std::string worded(labelcheck::refusal const& refused, std::string_view untyped = "") {
  auto why = explain(refused);
  if (refused.nearest.empty()) return why;
  auto const column = refused.position - std::min(refused.position, untyped.size()) + 1;
  auto nearest = refused.nearest;
  if (nearest.starts_with(untyped)) nearest.erase(0, untyped.size());
  return why + " (column " + std::to_string(column) + "); nearest is " + nearest;
}

problem read_whole(label_kind const& kind, std::string_view text, std::string_view untyped, label_parts& out) {
  auto const read = labelcheck::read(kind.type, text);
  if (auto const* const refused = std::get_if<labelcheck::refusal>(&read)) return worded(*refused, untyped);
  out = std::get<labelcheck::reading>(read);
  return std::nullopt;
}

// Film labels run through their count twice: after the last one they start again at 0, but only once. Feet may be
// negative; keys and ink numbers begin at 0.
constexpr sample_range range_of(labelsbase::label_facts const& facts) noexcept {
  if (!counts_perforations(facts))
    return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};

  auto const run = perfs_per_run(facts);
  auto const& gauge = facts.film.gauge;
  bool const is_feet = facts.family == User_feet;
  if (gauge.has_whole_frames()) {
    auto const last = 2 * run - 1;
    return is_feet ? sample_range{-last, last, run, gauge.perfs_per_frame()} : sample_range{0, last};
  }

  // At 3 perforations a frame, frame 0 begins before its key or foot, and foot 100000 does not start again at 0.
  int const before_count = gauge.perfs_per_frame() - 1;
  auto const last = 2 * run - 1 - before_count;
  auto const last_feet = last + gauge.perfs_per_count();
  return is_feet ? sample_range{-last_feet, last_feet} : sample_range{-before_count, last};
}

}  // namespace

problem read_label(label_t type, std::string_view text, label_parts& out) {
  return read_whole({type, ""}, text, "", out);
}

void add_label_kind(CLI::App& command, label_arguments& given) {
  add_type(command, given.type);
  add_option(command, "--prefix", "PREFIX", given.prefix,
             "Prefix of the key numbers or ink numbers, for example KJ123456");
}

label_kind find_label_kind(label_arguments const& given) {
  auto const type = find_label_type("TYPE", given.type);
  if (!given.prefix) return {type, ""};

  auto const& facts = labelsbase::facts_of(type);
  auto const length = static_cast<std::size_t>(facts.film.prefix_length);
  if (length == 0)
    refuse("--prefix", *given.prefix, std::string{facts.name} + " has no prefix; leave out --prefix");
  if (given.prefix->size() != length || !std::ranges::all_of(*given.prefix, labelsbase::is_printable))
    refuse("--prefix", *given.prefix,
           "expected the " + std::to_string(length) + " characters before the count of a " + facts.name +
               ", printable and without blanks");
  return {type, *given.prefix};
}

label_reader::label_reader(label_kind const& kind)
    : kind_{kind},
      prefix_length_{static_cast<std::size_t>(labelsbase::facts_of(kind.type).film.prefix_length)},
      count_digits_{static_cast<std::size_t>(labelsbase::facts_of(kind.type).film.count_digits)} {}

problem label_reader::read(std::string_view text, label_parts& out) {
  if (kind_.prefix.empty()) return read_whole(kind_, text, "", out);
  if (lacks_prefix(text)) {
    whole_.assign(kind_.prefix).append(text);
    return read_whole(kind_, whole_, kind_.prefix, out);
  }
  if (auto wrong = read_whole(kind_, text, "", out)) return wrong;
  if (out.prefix == kind_.prefix) return std::nullopt;
  return std::string{"the prefix is "}.append(out.prefix) + "; expected " + kind_.prefix;
}

// What stands before the frames is closer in length to a count than to prefix and count.
bool label_reader::lacks_prefix(std::string_view text) const noexcept {
  if (std::ranges::none_of(text, is_digit)) return false;
  auto const length = std::min(text.find_last_of("+&"), text.size());
  return !text.starts_with(kind_.prefix) && 2 * length < 2 * count_digits_ + prefix_length_;
}

bool sample_range::is_negative_zero(std::int64_t sample) const noexcept {
  return sample < 0 && feet_run > 0 && -sample % feet_run < frame_samples;
}

label_writer::label_writer(label_kind const& kind)
    : negative_{kind.type, 0}, positive_{kind.type, 0}, range_{range_of(labelsbase::facts_of(kind.type))} {
  positive_.removePadding();
  set_prefix(negative_, kind.prefix);
  set_prefix(positive_, kind.prefix);
}

problem label_writer::write(int sample, std::string_view& label) {
  bool const has_label = sample >= range_.first && sample <= range_.last && !range_.is_negative_zero(sample);
  if (!has_label && !labelsbase::is_special_sample(sample)) return missing_label(sample);
  auto& point = sample < 0 ? negative_ : positive_;
  point.sample = sample;
  label = point.get_string();
  if (label.starts_with(' ')) label.remove_prefix(1);  // 3-perf feet always have the sign column
  return std::nullopt;
}

problem label_writer::missing_label(int sample) const {
  if (range_.is_negative_zero(sample)) return "has no label, since it would be -0000+00, and zero has no sign";
  return std::string{"has no label; "} + positive_.cvt()->type_str() + " covers samples " +
         std::to_string(range_.first) + " to " + std::to_string(range_.last);
}

void set_prefix(LabelPoint& point, std::string_view prefix) noexcept {
  point.prefix[prefix.copy(point.prefix, LabelPoint::prefix_length)] = '\0';
}

}  // namespace cli
