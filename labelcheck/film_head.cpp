#include "labelcheck/film_head.h"

#include "labelcheck/text.h"

namespace labelcheck {
namespace {

bool all_digits(std::string_view text) noexcept { return digits_of(text).size() == text.size(); }

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

}  // namespace labelcheck
