#include "cli/label_io.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstring>
#include <utility>

#include "labelcheck/label_check.h"

namespace cli {
namespace {

void set_prefix(LabelPoint& point, std::string_view prefix) noexcept {
  auto const size = std::min(prefix.size(), LabelPoint::prefix_length);
  std::memcpy(point.prefix, prefix.data(), size);
  point.prefix[size] = '\0';
}

// Columns count from 1 for people.
std::string described(labelcheck::refusal const& refused) {
  if (refused.nearest.empty()) return refused.rule;
  return refused.rule + " (column " + std::to_string(refused.position + 1) + "); nearest is " + refused.nearest;
}

}  // namespace

void add_prefix(CLI::App& verb, std::optional<std::string>& prefix) {
  verb.add_option("--prefix", prefix, "Prefix of the key numbers or ink numbers, for example KJ123456")
      ->option_text("PREFIX");
}

bool accept_prefix(label_t type, std::optional<std::string> const& prefix, messages& errors) {
  if (!prefix) return true;
  auto const& converter = *get_static_label_cvt(type);
  if (!converter.has_prefix()) {
    errors.say("--prefix " + cli::quoted(*prefix) + ": " + converter.type_str() + " has no prefix; leave it out");
    return false;
  }
  auto const is_printable = [](char c) { return c > ' ' && c <= '~'; };
  auto const length = converter.get_prefix_length();
  if (prefix->size() == static_cast<std::size_t>(length) && std::ranges::all_of(*prefix, is_printable))
    return true;
  errors.say("--prefix " + cli::quoted(*prefix) + ": expected the " + std::to_string(length) +
             " characters before the count of a " + converter.type_str() + ", printable and without blanks");
  return false;
}

label_reader::label_reader(label_t type, std::string prefix)
    : converter_{*get_static_label_cvt(type)},
      prefix_length_{static_cast<std::size_t>(converter_.get_prefix_length())},
      prefix_{std::move(prefix)} {}

problem label_reader::read(std::string_view text, LabelPoint& point) {
  if (prefix_.empty()) return read_whole(text, point);
  if (lacks_prefix(text)) return read_without_prefix(text, point);
  if (auto wrong = read_whole(text, point)) return wrong;
  if (point.prefix == prefix_) return std::nullopt;
  return std::string{"the prefix is "} + point.prefix + "; expected " + prefix_;
}

// What stands before the frames is nearer in length to a count than to prefix and count.
bool label_reader::lacks_prefix(std::string_view text) const noexcept {
  if (text.find_first_of("0123456789") == std::string_view::npos) return false;
  auto const length = std::min(text.find_last_of("+&"), text.size());
  auto const count_length = static_cast<std::size_t>(converter_.get_count_length());
  return !text.starts_with(prefix_) && 2 * length < 2 * count_length + prefix_length_;
}

problem label_reader::read_whole(std::string_view text, LabelPoint& point) const {
  if (auto const refused = labelcheck::check(converter_.type(), text)) return described(*refused);
  point.sample = converter_.get_abs_sample(text.data());
  set_prefix(point, text.substr(0, prefix_length_));
  return std::nullopt;
}

// Refused, it is described as it was written.
problem label_reader::read_without_prefix(std::string_view text, LabelPoint& point) {
  whole_.assign(prefix_).append(text);
  auto refused = labelcheck::check(converter_.type(), whole_);
  if (!refused) return read_whole(whole_, point);
  refused->position -= std::min(refused->position, prefix_length_);
  if (refused->nearest.starts_with(prefix_)) refused->nearest.erase(0, prefix_length_);
  return described(*refused);
}

label_writer::label_writer(label_t type, std::string_view prefix) : negative_{type, 0}, positive_{type, 0} {
  positive_.removePadding();
  set_prefix(negative_, prefix);
  set_prefix(positive_, prefix);
}

problem label_writer::write(int sample, std::string_view& label) {
  auto& point = sample < 0 ? negative_ : positive_;
  point.sample = sample;
  label = point.get_string();
  if (label.starts_with(' ')) label.remove_prefix(1);  // 3-perf feet keep the column whatever the template says
  bool const is_film = point.cvt()->UserType() != User_timecode;
  return is_film && !labelsbase::is_special_sample(sample) ? film_problem(sample, label) : std::nullopt;
}

// Below the first key, labels are rounded toward it.
problem label_writer::film_problem(int sample, std::string_view label) const {
  auto& converter = *positive_.cvt();
  if (sample < 0 && converter.has_prefix() && converter.get_abs_sample(label.data()) != sample)
    return "lies before the first label";
  if (labelcheck::check(converter.type(), label)) return "lies beyond the last label";
  return std::nullopt;
}

}  // namespace cli
