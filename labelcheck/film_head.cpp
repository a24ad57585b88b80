#include "labelcheck/film_head.h"

#include <algorithm>

#include "labelcheck/text.h"
#include "labelsbase/characters.h"

namespace labelcheck {
namespace {

bool all_digits(std::string_view text) noexcept { return digits_of(text).size() == text.size(); }

bool has_key_characters(film_form const& form, explaining_parser& in, std::string_view head) noexcept {
  bool const may_have_dashes = head.size() == form.head_length();
  auto const is_wrong = [&](char c) { return !labelsbase::is_printable(c) || (c == '-' && !may_have_dashes); };
  auto const found = std::ranges::find_if(head, is_wrong);
  if (found == head.end()) return true;

  auto const position = static_cast<std::size_t>(found - head.begin());
  bool const breaks_up = *found == '-' || labelsbase::is_blank(*found);
  return in.refuse_at(position, position < form.prefix_length() ? field::prefix : field::count,
                      breaks_up ? reason::blank_or_dash : reason::unprintable);
}

bool refuse_lengths(film_form const& form, explaining_parser& in, std::string_view head) noexcept {
  auto const [prefix, count] = split(form, head);
  auto const refuse_length = [&in](field wrong, std::size_t position, std::string_view found) {
    return in.refuse_at(position, wrong, reason::length, static_cast<int>(found.size()));
  };
  if (prefix.size() != form.prefix_length())
    return refuse_length(field::prefix, std::min(prefix.size(), form.prefix_length()), prefix);
  auto const digits = static_cast<std::size_t>(form.digits());
  return refuse_length(field::count, prefix.size() + std::min(count.size(), digits), count);
}

}  // namespace

std::string_view head_of(film_form const& form, std::string_view text) noexcept {
  auto const whole = form.head_length();
  if (text.size() > whole && text[whole] == form.separator()) return text.substr(0, whole);
  auto end = text.find_last_of("+&");
  if (end == std::string_view::npos) end = text.find_first_of(".,:;");
  return text.substr(0, end);
}

film_head split(film_form const& form, std::string_view head) noexcept {
  auto const at = [head](std::size_t place) { return film_head{head.substr(0, place), head.substr(place)}; };
  auto const digits = static_cast<std::size_t>(form.digits());
  if (head.size() == form.head_length()) return at(form.prefix_length());
  if (head.size() <= digits && all_digits(head)) return at(0);
  if (head.size() >= form.prefix_length() && all_digits(head.substr(form.prefix_length())))
    return at(form.prefix_length());
  if (head.size() > form.head_length()) return at(head.size() - digits);

  auto count = head.size();
  while (count > 0 && head.size() - count < digits && labelsbase::is_digit(head[count - 1])) --count;
  return at(count);
}

bool has_form_of_head(film_form const& form, explaining_parser& in) noexcept {
  auto const text = in.rest();
  auto const head = head_of(form, text);
  if (!has_key_characters(form, in, head)) return false;
  bool const lacks_separator = head.size() == text.size() && head.size() == form.head_length() + 2;
  return head.size() == form.head_length() || lacks_separator || refuse_lengths(form, in, head);
}

}  // namespace labelcheck
