#include "labelcheck/film.h"

#include <algorithm>

#include "labelcheck/film_head.h"
#include "labelcheck/parser.h"
#include "labelcheck/text.h"
#include "labelsbase/samples.h"

using labelsbase::film_place;

namespace labelcheck {
namespace {

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
  [[nodiscard]] bool has_form_of_head() noexcept;
  [[nodiscard]] bool has_key_characters(std::string_view head) noexcept;
  [[nodiscard]] bool refuse_lengths(std::string_view head) noexcept;

  [[nodiscard]] bool sign() noexcept;
  [[nodiscard]] bool signed_count() noexcept;
  [[nodiscard]] bool long_count(field name, std::size_t digits) noexcept;

  [[nodiscard]] bool frame() noexcept;
  [[nodiscard]] bool perforation() noexcept;
  [[nodiscard]] bool exists(int sample) noexcept;

  film_form form_;
  Parser in_;
  bool negative_ = false;
  film_place at_{};
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
  if (Parser::explains ? !has_form_of_head() : !eight_are_printable(in_.rest().data())) return false;
  in_.skip(form_.prefix_length());
  return in_.digits(field::count, form_.digits(), at_.count);
}

template <class Parser>
bool film_label_reader<Parser>::has_form_of_head() noexcept {
  auto const text = in_.rest();
  auto const head = head_of(form_, text);
  if (!has_key_characters(head)) return false;
  bool const lacks_separator = head.size() == text.size() && head.size() == form_.head_length() + 2;
  return head.size() == form_.head_length() || lacks_separator || refuse_lengths(head);
}

// A prefix may contain dashes if prefix and count have their length.
template <class Parser>
bool film_label_reader<Parser>::has_key_characters(std::string_view head) noexcept {
  bool const may_have_dashes = head.size() == form_.head_length();
  auto const is_wrong = [&](char c) { return !labelsbase::is_printable(c) || (c == '-' && !may_have_dashes); };
  auto const found = std::ranges::find_if(head, is_wrong);
  if (found == head.end()) return true;

  auto const position = static_cast<std::size_t>(found - head.begin());
  bool const breaks_up = *found == '-' || labelsbase::is_blank(*found);
  return in_.refuse_at(position, position < form_.prefix_length() ? field::prefix : field::count,
                       breaks_up ? reason::blank_or_dash : reason::unprintable);
}

template <class Parser>
bool film_label_reader<Parser>::refuse_lengths(std::string_view head) noexcept {
  auto const [prefix, count] = split(form_, head);
  auto const refuse_length = [this](field wrong, std::size_t position, std::string_view found) {
    return in_.refuse_at(position, wrong, reason::length, static_cast<int>(found.size()));
  };
  if (prefix.size() != form_.prefix_length())
    return refuse_length(field::prefix, std::min(prefix.size(), form_.prefix_length()), prefix);
  auto const digits = static_cast<std::size_t>(form_.digits());
  return refuse_length(field::count, prefix.size() + std::min(count.size(), digits), count);
}

template <class Parser>
bool film_label_reader<Parser>::sign() noexcept {
  if (in_.is_at('+')) return in_.refuse(field::sign, reason::positive_sign);
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

reading reading_of(film_form form, int sample, std::string_view text) noexcept {
  return {sample, {text.data(), form.prefix_length()}};
}

// Not inlined, since the quick reading should not pay for the registers of this one.
[[gnu::noinline]] std::variant<reading, refusal> explain(film_form form, std::string_view text) {
  film_label_reader<explaining_parser> in{form, text};
  int sample = 0;
  if (in.label(sample)) return reading_of(form, sample, text);
  return refuse_text(form.type(), in.found(), nearest_film_label(form, text));
}

}  // namespace

std::variant<reading, refusal> read_film(labelsbase::label_facts const& facts, std::string_view text) {
  film_form const form{facts};
  film_label_reader<quick_parser> in{form, text};
  int sample = 0;
  if (in.label(sample)) return reading_of(form, sample, text);
  return explain(form, text);
}

}  // namespace labelcheck
