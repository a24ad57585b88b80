#include "cli/short_entry.h"

#include <array>
#include <cstddef>

#include "cli/text.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace cli {
namespace {

// The digits of the fields, from the left.
struct entry_form {
  std::array<std::size_t, 4> widths{};
  std::size_t fields = 0;
};

constexpr entry_form form_of(labelsbase::label_facts const& facts) noexcept {
  if (facts.is_timecode()) return {{2, 2, 2, static_cast<std::size_t>(facts.timecode.frame_digits())}, 4};
  auto const digits = static_cast<std::size_t>(facts.film.count_digits);
  return facts.family == User_film_frames ? entry_form{{digits}, 1} : entry_form{{digits, 2}, 2};
}

constexpr bool is_separator(char c) noexcept {
  return std::string_view{":;.,+&"}.find(c) != std::string_view::npos;
}

using field_texts = std::array<std::string, 4>;

// Fills the fields with the digits of an entry, each of its width. Returns false if they do not fit.
bool split(entry_form const& form, std::string_view text, field_texts& fields) {
  bool const has_separators = !all_digits(text);
  for (std::size_t left = form.fields; left > 0;) {
    --left;
    auto const width = form.widths[left];
    std::size_t size = 0;
    while (size < text.size() && is_digit(text[text.size() - size - 1]) && (has_separators || size < width))
      ++size;
    if (size > width) return false;
    fields[left].assign(width - size, '0').append(text.substr(text.size() - size));
    text.remove_suffix(size);
    bool const goes_on = has_separators && left > 0 && !text.empty() && is_separator(text.back());
    if (goes_on) text.remove_suffix(1);
  }
  return text.empty();
}

// Takes ".2" off the end. Returns the perforation, 1 if the entry has none.
std::string take_perforation(std::string_view& text) {
  auto const dot = text.find('.');
  if (dot == std::string_view::npos) return ".1";
  std::string const perforation{text.substr(dot)};
  text = text.substr(0, dot);
  return perforation;
}

std::string written(labelsbase::label_facts const& facts, entry_form const& form, field_texts const& fields) {
  auto const before_frames = facts.is_timecode() ? facts.timecode.separator : facts.film.separator;
  std::string label = fields[0];
  for (std::size_t i = 1; i < form.fields; ++i)
    label.append(1, i + 1 < form.fields ? ':' : before_frames).append(fields[i]);
  return label;
}

bool is_left_out(labelsbase::label_facts const& facts, field_texts const& fields) {
  return facts.timecode.drop_frame &&
         facts.timecode.count().leaves_out(
             {0, *whole_number(fields[1]), *whole_number(fields[2]), *whole_number(fields[3])});
}

}  // namespace

std::optional<short_entry> read_short_entry(label_t type, std::string_view text) {
  auto const& facts = labelsbase::facts_of(type);
  auto const form = form_of(facts);
  bool const has_sign = text.starts_with('+') || text.starts_with('-');
  char const sign = has_sign ? text.front() : '\0';
  if (has_sign) text.remove_prefix(1);
  if (text.empty() || std::none_of(text.begin(), text.end(), is_digit)) return std::nullopt;

  auto const perforation = facts.film.names_perforation() ? take_perforation(text) : "";
  field_texts fields;
  if (!split(form, text, fields)) return std::nullopt;
  if (has_sign && is_left_out(facts, fields)) fields[3] = "02";
  return short_entry{sign, written(facts, form, fields) + perforation};
}

}  // namespace cli
