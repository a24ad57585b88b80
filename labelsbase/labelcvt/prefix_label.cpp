#include "labelsbase/labelcvt/prefix_label.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>

#include "labelsbase/labelcvt/film_columns.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

using prefix_field = char[prefix_label::longest_prefix + 1];

// Copies the first `length` characters of a text that may lack its terminator. Longer prefixes are cut.
void copy_prefix(prefix_field& to, char const* text, std::size_t length) noexcept {
  auto const size = strnlen(text, std::min(length, sizeof to - 1));
  std::memmove(to, text, size);
  to[size] = '\0';
}

// Whether a point's prefix field holds `length` characters or more.
bool has_whole_prefix(char const* prefix, std::size_t length) noexcept {
  return length <= LabelPoint::prefix_length && !std::memchr(prefix, '\0', length);
}

constexpr int largest_count(unsigned digits) noexcept {
  if (digits >= powers_of_ten<unsigned>.size()) return std::numeric_limits<int>::max();
  return static_cast<int>(powers_of_ten<unsigned>[std::max(digits, 1U)] - 1);
}

// Every type with a prefix fills its columns: its texts are written without looking for room.
static_assert(std::ranges::all_of(all_label_facts, [](label_facts const& facts) {
  auto const& film = facts.film;
  auto const perfs =
      std::int64_t{largest_count(static_cast<unsigned>(film.count_digits)) + 1} * film.gauge.perfs_per_count();
  return film.prefix_length == 0 ||
         (film.prefix_length <= int{sizeof(prefix_block)} &&
          std::string_view{film.dummy_prefix}.size() >= static_cast<std::size_t>(film.prefix_length) &&
          film.count_digits < 10 && film.prefix_length + film.count_digits + 5 <= 19 &&
          film.gauge.frames_per_count() <= 100 && perfs < 100'000'000);
}));

}  // namespace

prefix_label::prefix_label(int modulus, int samples_per_unit, int total_length) noexcept
    : variable_label{modulus, samples_per_unit},
      total_length_{static_cast<unsigned>(std::max(total_length, 0))},
      gauge_{film_gauge::of_whole_frames(samples_per_unit, modulus)} {
  separator_ = '+';
}

void prefix_label::set_count_len(unsigned digits) noexcept {
  count_length_ = digits;
  prefix_length_ = total_length_ - std::min(digits, total_length_);
  count_maximum_ = largest_count(digits);
  column_perfs_ = 0;
}

void prefix_label::settle_arithmetic() noexcept {
  // At 3-perf, the last perforations belong to the count after the largest.
  column_perfs_ =
      static_cast<unsigned>((count_maximum_ + 1) * gauge_.perfs_per_count() - (gauge_.perfs_per_frame() - 1));
}

char const* prefix_label::type_str() const { return "prefix_label"; }
label_t prefix_label::type() const { return null_label_t; }
bool prefix_label::has_prefix() const { return true; }
int prefix_label::get_prefix_length() const { return static_cast<int>(prefix_length_); }
int prefix_label::get_count_length() const { return static_cast<int>(count_length_); }
char const* prefix_label::get_dummy_prefix() { return dummy_prefix_; }

char const* prefix_label::get_prefix(LabelPoint const* point) const {
  if (!has_prefix()) return "";
  if (point && has_whole_prefix(point->prefix, prefix_length_)) {
    remember_prefix(point->prefix);
  } else if (!remembers_prefix()) {
    remember_prefix(dummy_prefix_);
  }
  return current_prefix_;
}

// Each read and each write is whole, and costs a plain move. Which thread's prefix remains is left open.
void prefix_label::remember_prefix(char const* text) const noexcept {
  prefix_field fresh{};
  copy_prefix(fresh, text, prefix_length_);
  remembered_block().store(block_of(fresh), std::memory_order_relaxed);
  for (auto i = sizeof(prefix_block); i <= std::min<std::size_t>(prefix_length_, longest_prefix); ++i)
    std::atomic_ref{current_prefix_[i]}.store(fresh[i], std::memory_order_relaxed);
}

bool prefix_label::remembers_prefix() const noexcept {
  prefix_field remembered;
  auto const block = remembered_block().load(std::memory_order_relaxed);
  std::memcpy(remembered, &block, sizeof block);
  for (auto i = sizeof block; i < sizeof remembered; ++i)
    remembered[i] = std::atomic_ref{current_prefix_[i]}.load(std::memory_order_relaxed);
  return std::strlen(remembered) >= prefix_length_;
}

void prefix_label::set_prefix(LabelPoint* point, char const* text) {
  if (!point || !has_prefix()) return;
  text = or_empty(text);
  if (std::strlen(text) >= prefix_length_)
    copy_prefix(point->prefix, text, total_length_);
  else if (!remembers_prefix())
    copy_prefix(point->prefix, dummy_prefix_, total_length_);
  remember_prefix(point->prefix);
}

void prefix_label::build_template() {
  char frames[16];
  text_writer{frames}.number(modulus_ >= 11 ? typed_frames() : wrap_sub(modulus_, 1), 2);
  set_count_templates(frames);
}

int prefix_label::typed_frames() const noexcept { return wrap_add(wrap_sub(modulus_, 1) / 10 * 10, 9); }

void prefix_label::set_count_templates(char const* frames) noexcept {
  auto const shape_of = [&](char prefix_character, auto& text) {
    std::size_t const shown = std::min<std::size_t>(total_length_, sizeof text - 1);
    text_writer out{text};
    while (out.length() < std::min<std::size_t>(prefix_length_, shown)) out.put(prefix_character);
    while (out.length() < shown) out.put('9');
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

  constexpr int longest = 19;
  auto const& own = *point->converter;
  bool const has_own_prefix = is_settled() && &own == this && has_whole_prefix(point->prefix, prefix_length_);
  if (has_own_prefix) remember_prefix(point->prefix);
  char const* const prefix = has_own_prefix ? point->prefix : or_empty(own.get_prefix(point));
  auto const prefix_size =
      strnlen(prefix, static_cast<std::size_t>(std::clamp(own.get_prefix_length(), 0, longest)));
  std::memcpy(point->text, prefix, prefix_size);

  text_writer out{point->text + prefix_size, longest + 1 - prefix_size};
  out.number(count, static_cast<int>(std::min(count_length_, unsigned{longest}))).put(separator).number(frame, 2);
  if (perf_digit != 0) out.put('.').number(perf_digit);
  return point->text;
}

int prefix_label::read_count(char const* text, std::size_t length, char filler) const noexcept {
  std::size_t const start = std::min<std::size_t>(prefix_length_, length);
  char const* digit = text + start;
  char const* const end = digit + std::min({length - start, std::size_t{count_length_}, std::size_t{10}});
  while (digit != end && *digit == filler) ++digit;
  while (digit != end && is_blank(*digit)) ++digit;
  int const number = text_reader{digit}.number(static_cast<int>(end - digit)).value_or(0);
  return number <= count_maximum_ ? std::max(number, -1) : -1;
}

int prefix_label::wrap_to_counts(int sample) const {
  auto const frames = (std::int64_t{count_maximum_} + 1) * modulus_;
  std::int64_t span = 0;
  if (__builtin_mul_overflow(frames, samples_per_unit(), &span) || span <= 0) return sample;
  auto const rest = sample % span;
  return static_cast<int>(rest < 0 ? rest + span : rest);
}
