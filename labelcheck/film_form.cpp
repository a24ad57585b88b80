#include "labelcheck/film_form.h"

#include <algorithm>
#include <limits>

#include "labelcheck/parts.h"

namespace labelcheck {
namespace {

constexpr bool all_digits(std::string_view text) noexcept { return digits_of(text).size() == text.size(); }

constexpr std::int64_t power_of_ten(std::size_t exponent) noexcept {
  std::int64_t power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

// The digits that a template asks for behind the sign column.
std::size_t template_digits(std::string_view shape) noexcept {
  return std::min(shape.find_first_not_of('9', 1), shape.size()) - 1;
}

// Feet run ten times as far as their field shows; film of three perforations starts again one foot later.
std::int64_t largest_count(film_form const& form) noexcept {
  if (form.has_prefix) return power_of_ten(form.digits) - 1;
  if (!form.has_frames) return std::numeric_limits<std::int32_t>::max();
  return power_of_ten(form.digits + 1) - (form.names_perforation ? 0 : 1);
}

}  // namespace

film_form film_form_of(label_cvt& cvt) {
  bool const has_prefix = cvt.has_prefix();
  auto const prefix_length = static_cast<std::size_t>(cvt.get_prefix_length());
  std::string_view const shape = cvt.get_template(true).text();
  film_form form{
      .family = cvt.UserType(),
      .has_prefix = has_prefix,
      .has_frames = cvt.UserType() != User_film_frames,
      .names_perforation = shape.ends_with(".3"),
      .separator = has_prefix ? cvt.getFrameSeparator() : '+',
      .prefix_length = prefix_length,
      .digits = has_prefix ? static_cast<std::size_t>(cvt.get_count_length()) : template_digits(shape),
      .last_count = 0,
      .last_frame = cvt.get_modulus() - 1,
      .some_prefix = std::string_view{cvt.get_dummy_prefix()}.substr(0, prefix_length),
  };
  form.last_count = largest_count(form);
  return form;
}

std::string_view head_of(film_form const& form, std::string_view text) noexcept {
  if (text.size() > form.head_length() && text[form.head_length()] == form.separator)
    return text.substr(0, form.head_length());
  auto end = text.find_last_of("+&");
  if (end == std::string_view::npos) end = text.find_first_of(".,:;");
  return text.substr(0, end);
}

film_head split(film_form const& form, std::string_view head) noexcept {
  auto const at = [head](std::size_t place) { return film_head{head.substr(0, place), head.substr(place)}; };
  if (head.size() == form.head_length()) return at(form.prefix_length);
  if (head.size() <= form.digits && all_digits(head)) return at(0);
  if (head.size() >= form.prefix_length && all_digits(head.substr(form.prefix_length)))
    return at(form.prefix_length);
  if (head.size() > form.head_length()) return at(head.size() - form.digits);

  auto count = head.size();
  while (count > 0 && head.size() - count < form.digits && is_digit(head[count - 1])) --count;
  return at(count);
}

std::string written(film_form const& form, film_label const& label) {
  std::string text{label.negative ? "-" : ""};
  text += label.prefix;
  append_number(text, label.count, form.digits);
  if (form.has_frames) append_number(text += form.separator, label.frames, 2);
  if (form.names_perforation) append_number(text += '.', label.perforation, 1);
  return text;
}

}  // namespace labelcheck
