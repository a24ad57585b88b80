#include "cli/label_io.h"

#include <algorithm>
#include <stdexcept>

#include "cli/arguments.h"
#include "cli/console.h"
#include "cli/names.h"
#include "cli/short_entry.h"
#include "cli/text.h"
#include "labelcheck/sums.h"
#include "labelsbase/characters.h"

namespace cli {
namespace {

using labelsbase::facts_of;

// Positions and suggestions refer to what the user typed, without the first `untyped` characters. Columns count
// from 1.
std::string worded(labelcheck::refusal const& refused, std::string_view untyped) {
  auto why = explain(refused);
  if (refused.nearest.empty()) return why;
  auto const column = refused.position - std::min(refused.position, untyped.size()) + 1;
  auto nearest = refused.nearest;
  if (nearest.starts_with(untyped)) nearest.erase(0, untyped.size());
  return why + " (column " + std::to_string(column) + "); nearest is " + nearest;
}

// The characters that timecode of one kind or another has before its frames.
constexpr bool is_frames_separator(char c) noexcept { return c == ':' || c == ';' || c == '.' || c == '+'; }

char const* kind_of_separator(char separator) noexcept {
  switch (separator) {
    case ';':
      return "drop-frame";
    case '+':
      return "24 or 48 frames a second";
    default:
      return "timecode without drop-frame";
  }
}

}  // namespace

// --- Which labels ---

void add_label_kind(CLI::App& command, label_arguments& given) {
  add_type(command, given.type);
  add_option(command, given.prefix_option, "PREFIX", given.prefix,
             "Prefix of the key numbers or ink numbers, for example KJ123456");
}

label_kind find_label_kind(label_arguments const& given) {
  auto const [type, rate] = find_named_type(given.type_argument, given.type);
  if (!given.prefix) return {type, rate, ""};

  auto const& facts = facts_of(type);
  auto const length = static_cast<std::size_t>(facts.film.prefix_length);
  if (length == 0)
    refuse(given.prefix_option, *given.prefix,
           std::string{facts.name} + " has no prefix; leave out " + given.prefix_option);
  if (given.prefix->size() != length || !std::ranges::all_of(*given.prefix, labelsbase::is_printable))
    refuse(given.prefix_option, *given.prefix,
           "expected the " + std::to_string(length) + " characters before the count of a " + facts.name +
               ", printable and without blanks");
  return {type, rate, *given.prefix};
}

// --- Reading ---

problem read_label(label_t type, std::string_view text, label_parts& out) {
  auto const read = labelcheck::read(type, text);
  if (auto const* const refused = std::get_if<labelcheck::refusal>(&read)) return worded(*refused, "");
  out = std::get<label_parts>(read);
  return std::nullopt;
}

void add_reading(CLI::App& command, reading_arguments& given) {
  add_option(command, "--illegal", "refuse|nearest|as-is [refuse]", given.illegal,
             "What to do with a label that does not exist: refuse it with its reason, read the nearest valid "
             "label, or read it"
             " as the library does, even 99:99:99:99");
  add_option(command, "--entry", "full|short [full]", given.entry,
             "short: labels as editing systems take them, 1:00:00, 10. or 115; +15 and -1:00 count from --at");
  add_option(command, "--at", "LABEL", given.at, "With --entry short, the label that sums count from");
}

label_reader::label_reader(label_kind const& kind)
    : kind_{kind},
      prefix_length_{static_cast<std::size_t>(facts_of(kind.type).film.prefix_length)},
      count_digits_{static_cast<std::size_t>(facts_of(kind.type).film.count_digits)} {}

label_reader::label_reader(label_kind const& kind, reading_arguments const& given, console& io)
    : label_reader{kind} {
  io_ = &io;
  illegal_ = find_illegal(given.illegal);
  short_entry_ = is_short_entry(given.entry);
  if (!given.at) return;
  if (!short_entry_) refuse("--at", *given.at, "only sums count from it; add --entry short");
  label_parts label;
  if (auto const wrong = read(*given.at, label)) refuse("--at", *given.at, *wrong);
  at_.emplace(kind.type, label.sample);
  set_prefix(*at_, label.prefix);
}

label_reader::illegal_labels label_reader::find_illegal(std::string const& text) {
  if (text == "refuse") return illegal_labels::refuse;
  if (text == "nearest") return illegal_labels::nearest;
  if (text == "as-is") return illegal_labels::as_is;
  refuse("--illegal", text, "expected refuse, nearest or as-is");
}

bool label_reader::is_short_entry(std::string const& text) {
  if (text == "short") return true;
  if (text == "full") return false;
  refuse("--entry", text, "expected full or short");
}

problem label_reader::read(std::string_view text, label_parts& out) {
  return short_entry_ ? read_entry(text, out) : read_full(text, out);
}

problem label_reader::read_entry(std::string_view text, label_parts& out) {
  auto const entry = read_short_entry(kind_.type, text);
  if (!entry) return read_full(text, out);
  if (entry->sign == 0) {
    auto wrong = read_full(entry->label, out);
    if (wrong) *wrong = "is short for " + entry->label + ": " + *wrong;
    return wrong;
  }
  if (!at_) return "is a sum; expected --at with the label that it counts from";

  auto& converter = *at_->cvt();
  whole_.assign(converter.get_dummy_prefix()).append(entry->label);
  std::int64_t const distance = converter.get_abs_sample(whole_.c_str());
  out.prefix = at_->prefix;
  auto const [sum, wrong] = labelcheck::add_samples(*at_, entry->sign == '-' ? -distance : distance);
  if (wrong) return wrong;
  out.sample = sum;
  return std::nullopt;
}

problem label_reader::read_full(std::string_view text, label_parts& out) {
  std::string_view untyped;
  if (!kind_.prefix.empty() && lacks_prefix(text)) {
    text = whole_.assign(kind_.prefix).append(text);
    untyped = kind_.prefix;
  }
  if (illegal_ == illegal_labels::as_is) return read_as_library(text, out);

  auto const read = labelcheck::read(kind_.type, text);
  if (auto const* const refused = std::get_if<labelcheck::refusal>(&read)) {
    if (auto wrong = read_refused(*refused, text, untyped, out)) return wrong;
  } else {
    out = std::get<label_parts>(read);
  }
  if (kind_.prefix.empty() || out.prefix == kind_.prefix) return std::nullopt;
  return std::string{"the prefix is "}.append(out.prefix) + "; expected " + kind_.prefix;
}

problem label_reader::read_refused(labelcheck::refusal const& refused, std::string_view text,
                                   std::string_view untyped, label_parts& out) {
  if (refused.wrong == labelcheck::field::separator && read_other_separators(text, out)) return std::nullopt;
  if (illegal_ == illegal_labels::nearest && !refused.nearest.empty())
    return read_label(kind_.type, respelt_ = refused.nearest, out);
  return worded(refused, untyped);
}

// Timecode with the separators of another kind: "01;00;00;02", and "01:00:00;02" where the type is not drop-frame.
bool label_reader::read_other_separators(std::string_view text, label_parts& out) {
  auto const& facts = facts_of(kind_.type);
  auto const frame_digits = static_cast<std::size_t>(facts.timecode.frame_digits());
  if (!facts.is_timecode() || text.size() <= frame_digits) return false;

  respelt_ = text;
  auto& before_frames = respelt_[respelt_.size() - frame_digits - 1];
  char const separator = before_frames;
  if (!is_frames_separator(separator)) return false;
  if (separator == ';') std::ranges::replace(respelt_, ';', ':');
  before_frames = ':';
  auto const read = labelcheck::read(kind_.type, respelt_);
  if (!std::holds_alternative<label_parts>(read)) return false;
  out = std::get<label_parts>(read);

  bool const is_own = separator == facts.timecode.separator || separator == ':';
  if (!io_ || is_own || has_hinted_) return true;
  has_hinted_ = true;
  io_->hint(in_quotes(text) + " is read as " + facts.name + ", though \"" + separator +
            "\" before the frames means " + kind_of_separator(separator) + "; others like it are read alike");
  return true;
}

problem label_reader::read_as_library(std::string_view text, label_parts& out) {
  auto const terminator = text.find('\0');  // the library would stop there
  if (terminator != std::string_view::npos)
    return "contains a NUL byte (column " + std::to_string(terminator + 1) + "); expected text";
  respelt_ = text;
  auto& converter = *get_static_label_cvt(kind_.type);
  out = {converter.get_abs_sample(respelt_.c_str()), std::string_view{respelt_}.substr(0, prefix_length_)};
  bool const is_unreadable_negative =
      out.sample == labelsbase::unreadable_negative_sample && converter.UserType() == User_timecode;
  if (out.sample == labelsbase::invalid_sample || is_unreadable_negative)
    return std::string{"cannot be read as "} + converter.type_str();
  return std::nullopt;
}

// What stands before the frames is closer in length to a count than to prefix and count.
bool label_reader::lacks_prefix(std::string_view text) const noexcept {
  if (text.starts_with(kind_.prefix) || std::ranges::none_of(text, is_digit)) return false;
  auto const length = std::min(text.find_last_of("+&"), text.size());
  return 2 * length < 2 * count_digits_ + prefix_length_;
}

// --- Writing ---

void add_writing(CLI::App& command, writing_arguments& given) {
  auto const shape = "own|exchange [" + given.style + "]";
  add_option(
      command, "--style", shape.c_str(), given.style,
      "How timecode is written. exchange: hh:mm:ss:ff as other systems write it, with \";\" before the frames"
      " for drop-frame only");
}

label_style find_label_style(writing_arguments const& given) {
  if (given.style == "own") return label_style::own;
  if (given.style == "exchange") return label_style::exchange;
  refuse("--style", given.style, "expected own or exchange");
}

void set_prefix(LabelPoint& point, std::string_view prefix) noexcept {
  point.prefix[prefix.copy(point.prefix, LabelPoint::prefix_length)] = '\0';
}

// --- Counting ---

void add_perfs(CLI::App& command, bool& perfs) {
  add_flag(command, "--perfs", perfs, "Count perforations instead of frames");
}

int samples_per_count(label_kind const& kind, bool perfs) {
  auto const& facts = facts_of(kind.type);
  if (perfs && !labelcheck::counts_perforations(facts))
    throw std::runtime_error{std::string{"--perfs: "} + facts.name +
                             " does not count perforations; leave out --perfs"};
  return perfs ? 1 : facts.samples_per_frame();
}

}  // namespace cli
