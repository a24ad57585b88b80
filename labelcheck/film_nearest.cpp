#include <algorithm>

#include "labelcheck/film.h"
#include "labelcheck/film_head.h"
#include "labelcheck/text.h"
#include "labelsbase/samples.h"

using labelsbase::is_alphanumeric;
using labelsbase::is_blank;
using labelsbase::is_digit;
using labelsbase::is_printable;

namespace labelcheck {
namespace {

// Digits, and what people write or scan for them.
constexpr bool is_in_count(char c) noexcept { return is_alphanumeric(c) || c == '_'; }

std::string_view trimmed(std::string_view text) noexcept {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

// Takes the next number off the text, and what comes before it. Returns its digits; empty if there is none.
std::string_view take_number(std::string_view& text) noexcept {
  auto const* const first = std::ranges::find_if(text, is_digit);
  auto const digits = digits_of(text.substr(static_cast<std::size_t>(first - text.begin())));
  text.remove_prefix(static_cast<std::size_t>(first - text.begin()) + digits.size());
  return digits;
}

int take_number(std::string_view& text, int largest) noexcept {
  return static_cast<int>(std::min<std::int64_t>(value_of(take_number(text)), largest));
}

// Returns prefix and count without the blanks and dashes that people put between them: "KJ 12 3456-0123". A head
// that has its length already keeps its characters.
std::string joined(film_form const& form, std::string_view head) {
  std::string result{head};
  bool const is_whole = head.size() == form.head_length() && std::ranges::all_of(head, is_printable);
  if (!is_whole) std::erase_if(result, [](char c) { return is_blank(c) || c == '-'; });
  return result;
}

// Whether these may be prefix and count. A prefix of the right length may be any printable characters.
bool is_legible(film_form const& form, film_head const& head) noexcept {
  bool const has_prefix = head.prefix.size() == form.prefix_length()
                              ? std::ranges::all_of(head.prefix, is_printable)
                              : std::ranges::all_of(head.prefix, is_alphanumeric);
  bool const has_digit = std::ranges::any_of(head.prefix, is_digit) || std::ranges::any_of(head.count, is_digit);
  return has_prefix && has_digit && std::ranges::all_of(head.count, is_in_count);
}

// Returns the digits before a whole prefix that begins with a letter: codes of maker and stock,
// "0212KJ1234561234".
std::size_t surplus_digits(film_form const& form, std::string_view key) noexcept {
  if (key.size() <= form.head_length()) return 0;
  auto const surplus = key.size() - form.head_length();
  bool const are_digits = digits_of(key).size() == surplus;
  return are_digits ? surplus : 0;
}

// Takes prefix and count off the text. Returns false if they are not legible.
bool take_head(film_form const& form, std::string_view& text, film_label& label) {
  auto const head = head_of(form, text);
  text.remove_prefix(head.size());

  std::string key = joined(form, head);
  if (text.empty() && key.size() == form.head_length() + 2) {  // the separator is missing, not the frames
    text = head.substr(head.size() - 2);
    key.resize(form.head_length());
  }
  key.erase(0, surplus_digits(form, key));
  auto const [prefix, count] = split(form, key);
  if (!is_legible(form, {prefix, count})) return false;

  label.prefix = prefix.substr(0, form.prefix_length());
  label.prefix += form.dummy_prefix().substr(label.prefix.size());
  std::string digits{count};
  std::ranges::replace_if(
      digits, [](char c) { return !is_digit(c); }, '0');
  label.count = value_of(digits);
  return true;
}

// Takes sign and count off the text. Returns false if no number comes first.
bool take_signed_count(std::string_view& text, film_label& label) {
  label.negative = text.starts_with('-');
  if (label.negative || text.starts_with('+')) text.remove_prefix(1);
  text = trimmed(text);
  if (text.empty() || !is_digit(text.front())) return false;
  label.count = value_of(take_number(text));
  return true;
}

// Returns the film frames, or the nearest ones that are not a special sample.
std::int64_t beside_special(std::int64_t frames) noexcept {
  while (labelsbase::is_special_sample(static_cast<int>(frames)))
    frames += frames == labelsbase::before_start_sample ? 1 : -1;
  return frames;
}

// Moves every field to the nearest that exists beside the others.
void make_valid(film_form const& form, film_label& label) noexcept {
  label.count = std::min(label.count, label.negative ? -form.lowest_count() : form.last_count());
  if (!form.has_frames()) {
    auto const frames = beside_special(label.negative ? -label.count : label.count);
    label.count = frames < 0 ? -frames : frames;
  }
  label.frames = std::min(label.frames, form.last_frame());

  bool const is_zero = label.count == 0 && label.frames == 0;
  if (form.names_perforation()) {
    if (label.frames == form.last_frame()) label.perforation = 3;
    if (is_zero && !form.has_prefix()) label.perforation = 1;
  }
  if (is_zero) label.negative = false;
}

}  // namespace

std::string nearest_film_label(film_form const& form, std::string_view text) {
  if (std::ranges::count(text, ':') > 1) return "";  // timecode
  text = trimmed(text);

  film_label label;
  if (!(form.has_prefix() ? take_head(form, text, label) : take_signed_count(text, label))) return "";
  if (form.has_frames()) label.frames = take_number(text, 99);
  if (form.names_perforation()) label.perforation = std::max(take_number(text, form.gauge().perfs_per_frame()), 1);
  make_valid(form, label);
  return written(form, label);
}

}  // namespace labelcheck
