#include <algorithm>

#include "labelcheck/film_form.h"
#include "labelcheck/parts.h"
#include "labelsbase/samples.h"

namespace labelcheck {
namespace {

constexpr bool is_alphanumeric(char c) noexcept {
  return is_digit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Digits, and what people write or scan for them.
constexpr bool is_in_count(char c) noexcept { return is_alphanumeric(c) || c == '_'; }

std::string_view trimmed(std::string_view text) noexcept {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

// The next number of the text, which then goes on behind it; empty when there is none.
std::string_view take_number(std::string_view& text) noexcept {
  auto const* const first = std::ranges::find_if(text, is_digit);
  auto const digits = digits_of(text.substr(static_cast<std::size_t>(first - text.begin())));
  text.remove_prefix(static_cast<std::size_t>(first - text.begin()) + digits.size());
  return digits;
}

// Prefix and count without the blanks and dashes that people put between them ("KJ 12 3456-0123"). One that has
// its length as it stands keeps its characters.
std::string joined(film_form const& form, std::string_view head) {
  std::string result{head};
  bool const is_whole = head.size() == form.head_length() && std::ranges::all_of(head, is_printable);
  if (!is_whole) std::erase_if(result, [](char c) { return is_blank(c) || c == '-'; });
  return result;
}

// Whether these may be prefix and count. A prefix of the right length may be any printable characters.
bool is_legible(film_form const& form, film_head const& head) noexcept {
  bool const has_prefix = head.prefix.size() == form.prefix_length
                              ? std::ranges::all_of(head.prefix, is_printable)
                              : std::ranges::all_of(head.prefix, is_alphanumeric);
  bool const has_digit = std::ranges::any_of(head.prefix, is_digit) || std::ranges::any_of(head.count, is_digit);
  return has_prefix && has_digit && std::ranges::all_of(head.count, is_in_count);
}

// Reads prefix and count, and leaves the text at what follows. False when they are not legible.
bool take_key(film_form const& form, std::string_view& text, film_label& label) {
  auto const head = head_of(form, text);
  text.remove_prefix(head.size());

  std::string key = joined(form, head);
  if (text.empty() && key.size() == form.head_length() + 2) {  // the separator is missing, not the frames
    auto const* const last = head.data() + head.size();
    text = {last - 2, 2};
    key.resize(form.head_length());
  }
  auto [prefix, count] = split(form, key);
  if (!is_legible(form, {prefix, count})) return false;

  label.prefix = prefix.substr(0, form.prefix_length);
  label.prefix += form.some_prefix.substr(label.prefix.size());
  std::string digits{count};
  std::ranges::replace_if(
      digits, [](char c) { return !is_digit(c); }, '0');
  label.count = number(digits);
  return true;
}

bool take_signed_count(std::string_view& text, film_label& label) {
  label.negative = text.starts_with('-');
  if (label.negative || text.starts_with('+')) text.remove_prefix(1);
  text = trimmed(text);
  if (text.empty() || !is_digit(text.front())) return false;
  label.count = number(take_number(text));
  return true;
}

// Counts of frames that stand for no frame go to the one beside them.
std::int64_t beside_special(std::int64_t frames) noexcept {
  while (labelsbase::is_special_sample(static_cast<int>(frames)))
    frames += frames == labelsbase::before_start_sample ? 1 : -1;
  return frames;
}

// Moves every field to the nearest that exists, in view of the others.
void make_legal(film_form const& form, film_label& label) noexcept {
  bool const reaches_below = !form.has_frames && label.negative;  // one film frame further down than up
  label.count = std::min(label.count, form.last_count + reaches_below);
  if (!form.has_frames) {
    auto const frames = beside_special(label.negative ? -label.count : label.count);
    label.count = frames < 0 ? -frames : frames;
  }
  label.frames = std::min(label.frames, form.last_frame);
  label.perforation = std::clamp(label.perforation, 1, 3);

  bool const is_zero = label.count == 0 && label.frames == 0;
  if (form.names_perforation) {
    if (label.frames == form.last_frame) label.perforation = 3;
    if (is_zero && !form.has_prefix) label.perforation = 1;
  }
  if (is_zero) label.negative = false;
}

}  // namespace

std::string nearest_film_label(film_form const& form, std::string_view text) {
  if (std::ranges::count(text, ':') > 1) return "";  // timecode
  text = trimmed(text);

  film_label label;
  if (!(form.has_prefix ? take_key(form, text, label) : take_signed_count(text, label))) return "";
  if (form.has_frames) label.frames = static_cast<int>(std::min<std::int64_t>(number(take_number(text)), 99));
  if (form.names_perforation) {
    auto const digits = take_number(text);
    if (!digits.empty()) label.perforation = static_cast<int>(std::min<std::int64_t>(number(digits), 3));
  }
  make_legal(form, label);
  return written(form, label);
}

}  // namespace labelcheck
