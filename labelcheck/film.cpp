#include "labelcheck/film.h"

#include <algorithm>

#include "labelcheck/film_head.h"
#include "labelcheck/parser.h"
#include "labelcheck/text.h"
#include "labelsbase/samples.h"

using labelsbase::film_place;

namespace labelcheck {
namespace {

class film_parser : public parser {
 public:
  film_parser(film_form const& form, std::string_view text) noexcept : parser{text}, form_{form} {}

  // Reads a label to the end of the text.
  [[nodiscard]] bool label(reading& out) noexcept;

 private:
  [[nodiscard]] bool head() noexcept;
  [[nodiscard]] bool has_key_characters(std::string_view head) noexcept;
  [[nodiscard]] bool refuse_lengths(std::string_view head) noexcept;

  [[nodiscard]] bool sign() noexcept;
  [[nodiscard]] bool signed_count() noexcept;

  [[nodiscard]] bool perforation() noexcept;
  [[nodiscard]] bool exists(int sample) noexcept;

  film_form const& form_;
  std::string_view prefix_;
  bool negative_ = false;
  film_place at_{};
};

bool film_parser::label(reading& out) noexcept {
  if (form_.has_prefix() ? !head() : !signed_count()) return false;
  if (form_.has_frames() &&
      !(separator(field::frames, form_.separator()) && number(field::frames, 2, form_.last_frame(), at_.frame)))
    return false;
  if (form_.names_perforation() && !perforation()) return false;
  if (!end()) return false;

  int const sample = form_.gauge().join(at_);
  out = {negative_ ? labelsbase::wrap_negate(sample) : sample, prefix_};
  return exists(sample);
}

// prefix digit+
bool film_parser::head() noexcept {
  auto const text = rest();
  auto const head = head_of(form_, text);
  if (!has_key_characters(head)) return false;
  bool const lacks_separator = head.size() == text.size() && head.size() == form_.head_length() + 2;
  if (head.size() != form_.head_length() && !lacks_separator) return refuse_lengths(head);

  prefix_ = head.substr(0, form_.prefix_length());
  skip(prefix_.size());
  return digits(field::count, form_.digits(), at_.count);
}

// A prefix may contain dashes if prefix and count have their length.
bool film_parser::has_key_characters(std::string_view head) noexcept {
  bool const may_have_dashes = head.size() == form_.head_length();
  auto const is_wrong = [&](char c) { return !labelsbase::is_printable(c) || (c == '-' && !may_have_dashes); };
  auto const found = std::ranges::find_if(head, is_wrong);
  if (found == head.end()) return true;

  auto const position = static_cast<std::size_t>(found - head.begin());
  bool const breaks_up = *found == '-' || labelsbase::is_blank(*found);
  return refuse_at(position, position < form_.prefix_length() ? field::prefix : field::count,
                   breaks_up ? reason::blank_or_dash : reason::unprintable);
}

bool film_parser::refuse_lengths(std::string_view head) noexcept {
  auto const [prefix, count] = split(form_, head);
  auto const refuse_length = [this](field wrong, std::size_t position, std::string_view found) {
    return refuse_at(position, wrong, reason::length, static_cast<int>(found.size()));
  };
  if (prefix.size() != form_.prefix_length())
    return refuse_length(field::prefix, std::min(prefix.size(), form_.prefix_length()), prefix);
  auto const digits = static_cast<std::size_t>(form_.digits());
  return refuse_length(field::count, prefix.size() + std::min(count.size(), digits), count);
}

bool film_parser::sign() noexcept {
  if (is_at('+')) return refuse(field::sign, reason::positive_sign);
  if (is_at(' ') && !form_.has_frames()) return refuse(field::sign, reason::sign_column);
  negative_ = is_at('-');
  if (negative_ || is_at(' ')) skip(1);
  return true;
}

// (" " | "-")? digit+
//
// Film frames have no blank. More digits than usual do not begin with 0.
bool film_parser::signed_count() noexcept {
  if (!sign()) return false;
  auto const name = form_.has_frames() ? field::feet : field::frames;
  if (at_end()) return refuse(name, reason::missing);

  auto const found = digits_of(rest());
  auto const usual = static_cast<std::size_t>(form_.digits());
  if (found.size() < usual)
    return refuse_at(position() + found.size(), name, reason::too_few_digits, form_.digits());
  if (found.size() > usual && found.front() == '0') return refuse(name, reason::leading_zero, form_.digits());

  auto const count = value_of(found);
  bool const reaches_below = negative_ && !form_.has_frames();
  auto const limit = reaches_below ? form_.lowest_count() : form_.last_count();
  if (reaches_below ? -count < limit : count > limit) return refuse(name, reason::range, static_cast<int>(limit));
  at_.count = static_cast<int>(static_cast<unsigned>(count));
  skip(found.size());
  return true;
}

// "." perforation, counted back from the last one of the frame, which is 1
bool film_parser::perforation() noexcept {
  int const last = form_.gauge().perfs_per_frame();
  if (!separator(field::perforation, '.')) return false;
  if (at_end()) return refuse(field::perforation, reason::missing);
  int const perforation = rest().front() - '0';
  if (perforation < 1 || perforation > last) return refuse(field::perforation, reason::range, last);
  at_.perfs_left = perforation - 1;
  skip(1);
  return true;
}

// Refuses labels of the right form that film does not have. `sample` is that of the label without its sign.
bool film_parser::exists(int sample) noexcept {
  // At 3 perforations a frame, keys and feet begin within frames. Feet begin at 0, keys 2 perforations before.
  bool const is_before_start = sample < 0 && !form_.has_prefix();
  if (form_.names_perforation() && (is_before_start || form_.gauge().split(sample) != at_))
    return refuse_at(position() - 1, field::perforation, reason::perforation, at_.frame);
  if (negative_ && sample == 0) return refuse_at(0, field::sign, reason::signed_zero);
  if (!form_.has_frames() && labelsbase::is_special_sample(negative_ ? labelsbase::wrap_negate(sample) : sample))
    return refuse_at(0, field::frames, reason::reserved);
  return true;
}

}  // namespace

std::variant<reading, refusal> read_film(labelsbase::label_facts const& facts, std::string_view text) {
  film_form const form{facts};
  film_parser in{form, text};
  reading result{};
  if (in.label(result)) return result;

  return refuse_text(facts.type, in.found(), nearest_film_label(form, text));
}

}  // namespace labelcheck
