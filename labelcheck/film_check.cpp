#include "labelcheck/film_check.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

#include "labelcheck/film_form.h"
#include "labelcheck/parts.h"
#include "labelsbase/labels.h"

namespace labelcheck {
namespace {

struct fault {
  field wrong;
  std::size_t position;
  std::string rule;
};

using verdict = std::optional<fault>;

std::string quoted(char c) { return {'"', c, '"'}; }

std::string at_width(std::int64_t value, std::size_t digits) {
  std::string text;
  append_number(text, value, digits);
  return text;
}

// Takes a text apart from its start, and stops at the first thing that is wrong.
class film_reader {
 public:
  film_reader(film_form const& form, std::string_view text) noexcept : form_{form}, text_{text} {}

  [[nodiscard]] verdict first_fault();

 private:
  [[nodiscard]] bool at_end() const noexcept { return at_ == text_.size(); }

  [[nodiscard]] verdict key();
  [[nodiscard]] verdict key_characters(std::string_view head) const;
  [[nodiscard]] verdict key_lengths(std::string_view head) const;
  [[nodiscard]] verdict sign();
  [[nodiscard]] verdict signed_count();
  [[nodiscard]] verdict separator(char expected, char const* next);
  [[nodiscard]] verdict frames();
  [[nodiscard]] verdict perforation();

  film_form const& form_;
  std::string_view text_;
  std::size_t at_ = 0;
};

verdict film_reader::first_fault() {
  if (auto wrong = form_.has_prefix ? key() : signed_count()) return wrong;
  if (auto wrong = frames()) return wrong;
  if (auto wrong = perforation()) return wrong;
  if (at_end()) return std::nullopt;
  return fault{field::whole, at_,
               form_.names_perforation ? "nothing may follow the perforation" : "nothing may follow the frames"};
}

verdict film_reader::key() {
  auto const head = head_of(form_, text_);
  if (auto wrong = key_characters(head)) return wrong;

  bool const lacks_separator = head.size() == text_.size() && head.size() == form_.head_length() + 2;
  if (head.size() != form_.head_length() && !lacks_separator) return key_lengths(head);

  auto const count = head.substr(form_.prefix_length, form_.digits);
  at_ = form_.prefix_length + digits_of(count).size();
  if (at_ == form_.head_length()) return std::nullopt;
  return fault{field::count, at_, "the count takes " + std::to_string(form_.digits) + " digits"};
}

verdict film_reader::key_characters(std::string_view head) const {
  bool const may_have_dashes = head.size() == form_.head_length();
  auto const stops = [&](char c) { return !is_printable(c) || (c == '-' && !may_have_dashes); };
  auto const found = std::ranges::find_if(head, stops);
  if (found == head.end()) return std::nullopt;

  auto const position = static_cast<std::size_t>(found - head.begin());
  bool const parts_them = *found == '-' || is_blank(*found);
  return fault{position < form_.prefix_length ? field::prefix : field::count, position,
               parts_them ? "prefix and count stand together, without blanks and dashes"
                          : "prefix and count have printable characters only"};
}

verdict film_reader::key_lengths(std::string_view head) const {
  auto const [prefix, count] = split(form_, head);
  bool const is_prefix = prefix.size() != form_.prefix_length;
  std::string rule = "the prefix has " + std::to_string(form_.prefix_length) + " characters and the count " +
                     std::to_string(form_.digits) + " digits; ";
  auto const found = is_prefix ? prefix : count;
  std::string const name = is_prefix ? "prefix" : "count";
  rule += found.empty() ? "this label has no " + name : "this " + name + " has " + std::to_string(found.size());

  if (is_prefix) return fault{field::prefix, std::min(prefix.size(), form_.prefix_length), std::move(rule)};
  return fault{field::count, form_.prefix_length + std::min(count.size(), form_.digits), std::move(rule)};
}

verdict film_reader::sign() {
  if (text_.starts_with('+')) return fault{field::sign, 0, "a positive label has no sign"};
  bool const has_column = form_.has_frames;
  if (text_.starts_with(' ') && !has_column) return fault{field::sign, 0, "frames have no sign column"};
  at_ = text_.starts_with('-') || text_.starts_with(' ');
  return std::nullopt;
}

verdict film_reader::signed_count() {
  if (auto wrong = sign()) return wrong;
  auto const wrong = form_.has_frames ? field::feet : field::frames;
  std::string const name = field_name(wrong);
  if (at_end()) return fault{wrong, at_, name + " are missing"};

  auto const digits = digits_of(text_.substr(at_));
  auto const least = std::to_string(form_.digits);
  if (digits.size() < form_.digits)
    return fault{wrong, at_ + digits.size(), name + " take at least " + least + " digits"};
  if (digits.size() > form_.digits && digits.front() == '0')
    return fault{wrong, at_, name + " of more than " + least + " digits do not begin with 0"};

  bool const reaches_below = !form_.has_frames && text_.starts_with('-');
  if (number(digits) > form_.last_count + reaches_below)
    return fault{wrong, at_,
                 name + " run " + (reaches_below ? "down to -" : "up to ") +
                     std::to_string(form_.last_count + reaches_below)};
  at_ += digits.size();
  return std::nullopt;
}

verdict film_reader::separator(char expected, char const* next) {
  if (text_[at_] != expected) return fault{field::separator, at_, quoted(expected) + " stands before the " + next};
  ++at_;
  return std::nullopt;
}

verdict film_reader::frames() {
  if (!form_.has_frames) return std::nullopt;
  auto const missing = [this] { return fault{field::frames, at_, "frames are missing"}; };
  if (at_end()) return missing();
  if (auto wrong = separator(form_.separator, "frames")) return wrong;
  if (at_end()) return missing();

  auto const digits = digits_of(text_.substr(at_));
  if (digits.size() != 2)
    return fault{field::frames, at_ + std::min<std::size_t>(digits.size(), 2), "frames take two digits"};
  if (number(digits) > form_.last_frame)
    return fault{field::frames, at_, "frames run from 00 to " + at_width(form_.last_frame, 2)};
  at_ += 2;
  return std::nullopt;
}

verdict film_reader::perforation() {
  if (!form_.names_perforation) return std::nullopt;
  auto const missing = [this] { return fault{field::perforation, at_, "the perforation is missing"}; };
  if (at_end()) return missing();
  if (auto wrong = separator('.', "perforation")) return wrong;
  if (at_end()) return missing();
  if (text_[at_] < '1' || text_[at_] > '3') return fault{field::perforation, at_, "perforations run from 1 to 3"};
  ++at_;
  return std::nullopt;
}

// A converter of the reader's own: writing a label makes a converter remember its prefix, and the shared ones
// show what they remember.
struct own_film {
  explicit own_film(label_t type) : cvt{make_any_label_cvt(type)}, point{*cvt, 0} {}

  std::unique_ptr<label_cvt> cvt;
  LabelPoint point;
};

// Whether the type writes this for the sample that it reads. The text has the form of a label.
bool is_written_back(label_t type, std::string_view text) {
  thread_local std::array<std::unique_ptr<own_film>, numLabelCvts> films;
  auto& film = films.at(static_cast<std::size_t>(type));
  if (!film) film = std::make_unique<own_film>(type);
  auto& [cvt, point] = *film;

  char label[LabelPoint::text_length + 1] = {};
  text.copy(label, LabelPoint::text_length);
  std::memset(point.prefix, 0, sizeof point.prefix);
  std::memcpy(point.prefix, label, static_cast<std::size_t>(cvt->get_prefix_length()));

  point.sample = cvt->get_abs_sample(label);
  std::string_view const written = point.get_string();
  return written == text || (written.starts_with(' ') && written.substr(1) == text);
}

// Why a text that has the form of a label is none.
fault unwritten(film_form const& form, std::string_view text) {
  if (text.find_first_of("123456789") == std::string_view::npos || text.ends_with("+00.1"))
    return {field::sign, 0, "zero has no sign"};
  if (!form.names_perforation) return {field::frames, 0, "-100000000, 100000001 and 100000002 stand for no frame"};
  auto const frame = text.substr(text.size() - 4, 2);
  std::string const only = frame == "00" ? "1, at foot 0" : "3: the next key or foot begins in it";
  return {field::perforation, text.size() - 1, "frame " + std::string{frame} + " has only perforation " + only};
}

char const* noun(UserLabelType family) noexcept {
  switch (family) {
    case User_keycode:
      return "key number";
    case User_ink:
      return "ink number";
    case User_feet:
      return "count of feet and frames";
    default:
      return "count of frames";
  }
}

}  // namespace

std::optional<refusal> check_film(label_cvt& cvt, std::string_view text) {
  auto const form = film_form_of(cvt);
  auto found = film_reader{form, text}.first_fault();
  if (!found) {
    if (is_written_back(cvt.type(), text)) return std::nullopt;
    found = unwritten(form, text);
  }

  auto nearest = nearest_film_label(form, text);
  if (!nearest.empty()) return refusal{found->wrong, found->position, std::move(found->rule), std::move(nearest)};
  return refusal{field::whole, 0,
                 std::string{"this is no "} + noun(form.family) + "; expected one like " +
                     written(form, {.prefix = std::string{form.some_prefix}}),
                 ""};
}

}  // namespace labelcheck
