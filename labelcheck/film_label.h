// Private: the grammar of key numbers, ink numbers, feet and film frames.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "labelcheck/film_form.h"
#include "labelcheck/film_head.h"
#include "labelcheck/parser.h"
#include "labelcheck/text.h"
#include "labelsbase/counts/film_gauge.h"
#include "labelsbase/counts/integers.h"
#include "labelsbase/samples.h"

namespace labelcheck {

static_assert(std::ranges::all_of(labelsbase::all_label_facts,
                                  [](auto const& facts) {
                                    film_form const form{facts};
                                    return !form.has_prefix() ||
                                           (form.prefix_length() <= 8 && form.head_length() >= 8);
                                  }),
              "the first eight characters of a label are its prefix, and perhaps digits");

// A label, read by a quick_parser or an explaining_parser.
template <class Parser>
class film_label_reader {
 public:
  film_label_reader(film_form const& form, std::string_view text) noexcept : form_{form}, in_{text} {}

  // Reads a label to the end of the text, and its sample.
  [[nodiscard]] bool label(int& sample) noexcept;

  [[nodiscard]] fault const& found() const noexcept { return in_.found(); }

 private:
  [[nodiscard]] bool head() noexcept;
  [[nodiscard]] bool sign() noexcept;
  [[nodiscard]] bool signed_count() noexcept;
  [[nodiscard]] bool long_count(field name, std::size_t digits) noexcept;

  [[nodiscard]] bool frame() noexcept;
  [[nodiscard]] bool perforation() noexcept;
  [[nodiscard]] bool exists(int sample) noexcept;

  film_form form_;
  Parser in_;
  bool negative_ = false;
  labelsbase::film_place at_{};
};

template <class Parser>
bool film_label_reader<Parser>::label(int& sample) noexcept {
  if (!(form_.has_prefix() ? head() : signed_count())) return false;
  if (form_.has_frames() && !frame()) return false;
  if (form_.names_perforation() && !perforation()) return false;
  if (!in_.end()) return false;

  int const magnitude = form_.gauge().join(at_);
  sample = negative_ ? labelsbase::wrap_negate(magnitude) : magnitude;
  return exists(magnitude);
}

// prefix digit+
template <class Parser>
bool film_label_reader<Parser>::head() noexcept {
  if (!in_.expects(form_.head_length() + form_.frames_length())) return false;
  if constexpr (Parser::explains) {
    if (!has_form_of_head(form_, in_)) return false;
  } else {
    if (!eight_are_printable(in_.rest().data())) return false;
  }
  in_.skip(form_.prefix_length());
  return in_.digits(field::count, form_.digits(), at_.count);
}

template <class Parser>
bool film_label_reader<Parser>::sign() noexcept {
  if (Parser::explains && in_.is_at('+')) return in_.refuse(field::sign, reason::positive_sign);
  if (in_.is_at(' ') && !form_.has_frames()) return in_.refuse(field::sign, reason::sign_column);
  negative_ = in_.is_at('-');
  if (negative_ || in_.is_at(' ')) in_.skip(1);
  return true;
}

// (" " | "-")? digit+
//
// Film frames have no blank.
template <class Parser>
bool film_label_reader<Parser>::signed_count() noexcept {
  if (!sign()) return false;
  auto const name = form_.has_frames() ? field::feet : field::frames;
  if (Parser::explains && in_.at_end()) return in_.refuse(name, reason::missing);

  auto const digits = in_.digits_before(form_.frames_length());
  auto const usual = static_cast<std::size_t>(form_.digits());
  if (digits > usual) return long_count(name, digits);
  if (digits < usual) return in_.refuse_at(in_.position() + digits, name, reason::too_few_digits, form_.digits());
  return in_.digits(name, form_.digits(), at_.count);
}

// A count of more digits than usual, which does not begin with 0.
template <class Parser>
bool film_label_reader<Parser>::long_count(field name, std::size_t digits) noexcept {
  if (in_.is_at('0')) return in_.refuse(name, reason::leading_zero, form_.digits());
  auto const found = digits_of(in_.rest());
  if (found.size() != digits) return false;

  auto const count = value_of(found);
  auto const limit = negative_ ? -form_.lowest_count() : form_.last_count();
  if (count > limit)
    return in_.refuse(name, reason::range, static_cast<int>(negative_ && !form_.has_frames() ? -limit : limit));
  at_.count = static_cast<int>(static_cast<unsigned>(count));
  in_.skip(digits);
  return true;
}

template <class Parser>
bool film_label_reader<Parser>::frame() noexcept {
  return in_.separator(field::frames, form_.separator()) &&
         in_.number(field::frames, 2, form_.last_frame(), at_.frame);
}

// "." perforation, counted back from the last one of the frame, which is 1
template <class Parser>
bool film_label_reader<Parser>::perforation() noexcept {
  int const last = form_.gauge().perfs_per_frame();
  if (!in_.separator(field::perforation, '.')) return false;
  if (in_.at_end()) return in_.refuse(field::perforation, reason::missing);
  int const perforation = in_.rest().front() - '0';
  if (perforation < 1 || perforation > last) return in_.refuse(field::perforation, reason::range, last);
  at_.perfs_left = perforation - 1;
  in_.skip(1);
  return true;
}

// Refuses labels of the right form that film does not have. `sample` is that of the label without its sign.
template <class Parser>
bool film_label_reader<Parser>::exists(int sample) noexcept {
  // At 3 perforations a frame, keys and feet begin within frames. Feet begin at 0, keys 2 perforations before.
  bool const is_before_start = sample < 0 && !form_.has_prefix();
  if (form_.names_perforation() && (is_before_start || form_.gauge().split(sample) != at_))
    return in_.refuse_at(in_.position() - 1, field::perforation, reason::perforation, at_.frame);
  if (negative_ && sample == 0) return in_.refuse_at(0, field::sign, reason::signed_zero);
  if (!form_.has_frames() && labelsbase::is_special_sample(negative_ ? labelsbase::wrap_negate(sample) : sample))
    return in_.refuse_at(0, field::frames, reason::reserved);
  return true;
}

}  // namespace labelcheck
