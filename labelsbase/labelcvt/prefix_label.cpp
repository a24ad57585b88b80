#include "labelsbase/labelcvt/prefix_label.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <span>

#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// The first `length` characters of a text that may lack its terminator, written into a buffer of a prefix's size.
void copy_prefix(char (&to)[prefix_label::longest_prefix + 1], char const* text, std::size_t length) noexcept {
  auto const size = strnlen(text, std::min(length, sizeof to - 1));
  std::memmove(to, text, size);
  std::memset(to + size, 0, sizeof to - size);
}

constexpr int largest_count(unsigned digits) noexcept {
  if (digits >= 10) return std::numeric_limits<int>::max();
  int power = 10;
  for (unsigned i = 1; i < digits; ++i) power *= 10;
  return power - 1;
}

}  // namespace

prefix_label::prefix_label(int modulus, int samples_per_unit, int total_length) noexcept
    : variable_label{modulus, samples_per_unit}, total_length_{static_cast<unsigned>(std::max(total_length, 0))} {
  separator_ = '+';
}

void prefix_label::set_count_len(unsigned digits) noexcept {
  count_length_ = digits;
  prefix_length_ = total_length_ - std::min(digits, total_length_);
  count_maximum_ = largest_count(digits);
}

char const* prefix_label::type_str() const { return "prefix_label"; }
label_t prefix_label::type() const { return null_label_t; }
bool prefix_label::has_prefix() const { return true; }
int prefix_label::get_prefix_length() const { return static_cast<int>(prefix_length_); }
int prefix_label::get_count_length() const { return static_cast<int>(count_length_); }
char const* prefix_label::get_dummy_prefix() { return dummy_prefix_; }

char const* prefix_label::get_prefix(LabelPoint const* point) const {
  if (!has_prefix()) return "";
  if (point && strnlen(point->prefix, LabelPoint::prefix_length) >= prefix_length_)
    copy_prefix(current_prefix_, point->prefix, prefix_length_);
  else if (std::strlen(current_prefix_) < prefix_length_)
    copy_prefix(current_prefix_, dummy_prefix_, prefix_length_);
  return current_prefix_;
}

void prefix_label::set_prefix(LabelPoint* point, char const* text) {
  if (!point || !has_prefix()) return;
  text = or_empty(text);
  if (std::strlen(text) >= prefix_length_)
    copy_prefix(point->prefix, text, total_length_);
  else if (std::strlen(current_prefix_) < prefix_length_)
    copy_prefix(point->prefix, dummy_prefix_, total_length_);
  copy_prefix(current_prefix_, point->prefix, prefix_length_);
}

void prefix_label::build_template() {
  char frames[16];
  text_writer{frames}.number(modulus_ >= 11 ? typed_frames() : wrap_sub(modulus_, 1), 2);
  set_count_templates(frames);
}

int prefix_label::typed_frames() const noexcept { return wrap_add((modulus_ - 1) / 10 * 10, 9); }

void prefix_label::set_count_templates(char const* frames) noexcept {
  auto const shape_of = [&](char prefix_character, auto& text) {
    text_writer out{text};
    for (unsigned i = 0; i < std::min(prefix_length_, total_length_); ++i) out.put(prefix_character);
    while (out.length() < std::min<std::size_t>(total_length_, sizeof text - 1)) out.put('9');
    out.put('+').put(frames);
  };
  char text[64];
  shape_of('?', text);
  label_template_.set(text);
  shape_of('~', text);
  prefixless_template_.set(text);
}

char const* prefix_label::write_label(LabelPoint* point, int count, int frame, char separator,
                                      int perf_digit) const {
  if (!point) return "";
  if (count < 0) return "NEGATIVE";
  if (count > count_maximum_) count = wrap_sub(wrap_sub(count, count_maximum_), 1);

  auto const& own = *point->converter;
  char const* prefix = own.get_prefix(point);
  constexpr std::size_t longest = 19;
  text_writer out{point->text, longest + 1};
  for (int left = own.get_prefix_length(); left > 0 && *prefix; --left) out.put(*prefix++);
  out.number(count, static_cast<int>(count_length_)).put(separator).number(frame, 2);
  if (perf_digit != 0) out.put('.').number(perf_digit);
  return point->text;
}

int prefix_label::read_count(char const* text, std::size_t length) const noexcept {
  char digits[11];
  std::size_t const start = std::min<std::size_t>(prefix_length_, length);
  std::size_t const count = std::min({length - start, std::size_t{count_length_}, sizeof digits - 1});
  std::memcpy(digits, text + start, count);
  digits[count] = '\0';

  int const number = text_reader{digits + std::strspn(digits, "_")}.number().value_or(0);
  return number <= count_maximum_ ? std::max(number, -1) : -1;
}

int prefix_label::wrap_to_counts(int sample) const noexcept {
  auto const span = (std::int64_t{count_maximum_} + 1) * modulus_ * samples_per_unit_;
  if (span <= 0) return sample;
  auto const rest = sample % span;
  return static_cast<int>(rest < 0 ? rest + span : rest);
}
