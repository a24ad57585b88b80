#include "labelcheck/timecode_check.h"

#include <algorithm>
#include <array>

#include "labelcheck/parts.h"

namespace labelcheck {
namespace {

// What people and lists write between the numbers.
constexpr bool parts_numbers(char c) noexcept {
  return std::string_view{":;.,+-"}.find(c) != std::string_view::npos;
}

enum class breach { plus_sign, negative_drop_frame, missing, digit_count, range, separator, left_out, trailing };

// Hours, minutes, seconds and frames.
constexpr std::size_t parts = 4;
constexpr std::size_t frames_part = 3;
using numbers = std::array<int, parts>;

struct fault {
  breach why;
  std::size_t position;
  std::size_t part;  // the number that is wrong, or the one that the separator stands before
};

// The form of a type's labels.
class timecode_form {
 public:
  explicit timecode_form(label_cvt const& cvt) noexcept;

  [[nodiscard]] std::optional<fault> first_fault(std::string_view text) const noexcept;
  [[nodiscard]] refusal refuse(fault const& found, std::string_view text) const;

 private:
  struct part_form {
    field name;
    int last;
    std::size_t digits = 2;
  };

  [[nodiscard]] std::optional<fault> read_number(std::string_view text, std::size_t part, std::size_t& position,
                                                 int& value) const noexcept;
  [[nodiscard]] bool is_own_separator(char c) const noexcept { return c == separator_ || (slow_ && c == ':'); }
  [[nodiscard]] bool may_precede(std::size_t part, char c) const noexcept {
    return c == ':' || (part == frames_part && is_own_separator(c));
  }

  // Whether drop-frame has no such label.
  [[nodiscard]] bool is_left_out(numbers const& label) const noexcept {
    auto const [hours, minutes, seconds, frames] = label;
    return drop_frame_ && minutes % 10 != 0 && seconds == 0 && frames < 2;
  }

  [[nodiscard]] std::string rule(fault const& broken, std::string_view text) const;
  [[nodiscard]] std::string separator_rule(std::size_t part, char typed) const;
  [[nodiscard]] std::string nearest(std::string_view text) const;
  [[nodiscard]] std::string written(bool negative, numbers label, char separator) const;
  [[nodiscard]] std::string shape() const;

  std::array<part_form, parts> parts_;
  char separator_;
  bool slow_;
  bool drop_frame_;
};

timecode_form::timecode_form(label_cvt const& cvt) noexcept
    : parts_{{{field::hours, 23},
              {field::minutes, 59},
              {field::seconds, 59},
              {field::frames, cvt.get_modulus() - 1}}},
      separator_{cvt.getFrameSeparator()},
      slow_{cvt.isSpecialSlowTC()},
      drop_frame_{cvt.type() == ntsc_drop_label_t} {
  if (parts_[frames_part].last > 99) parts_[frames_part].digits = 3;
}

std::optional<fault> timecode_form::first_fault(std::string_view text) const noexcept {
  std::size_t position = text.starts_with(' ') || text.starts_with('-');
  if (text.starts_with('+')) return fault{breach::plus_sign, 0, 0};
  if (text.starts_with('-') && drop_frame_) return fault{breach::negative_drop_frame, 0, 0};

  numbers label{};
  for (std::size_t part = 0; part < parts; ++part) {
    if (part > 0 && position < text.size()) {
      if (!may_precede(part, text[position])) return fault{breach::separator, position, part};
      ++position;
    }
    if (auto const found = read_number(text, part, position, label[part])) return found;
  }
  if (is_left_out(label)) return fault{breach::left_out, position - parts_[frames_part].digits, frames_part};
  if (position < text.size()) return fault{breach::trailing, position, frames_part};
  return std::nullopt;
}

// Moves `position` to the end of the number.
std::optional<fault> timecode_form::read_number(std::string_view text, std::size_t part, std::size_t& position,
                                                int& value) const noexcept {
  auto const& form = parts_[part];
  if (position == text.size()) return fault{breach::missing, position, part};
  auto const digits = digits_of(text.substr(position));
  if (digits.size() != form.digits)
    return fault{breach::digit_count, position + std::min(digits.size(), form.digits), part};
  value = static_cast<int>(number(digits));
  if (value > form.last) return fault{breach::range, position, part};
  position += form.digits;
  return std::nullopt;
}

refusal timecode_form::refuse(fault const& found, std::string_view text) const {
  auto label = nearest(text);
  if (label.empty()) return {field::whole, 0, "this is no timecode; expected " + shape(), ""};

  field wrong = parts_[found.part].name;
  if (found.why == breach::plus_sign || found.why == breach::negative_drop_frame) wrong = field::sign;
  if (found.why == breach::separator) wrong = field::separator;
  if (found.why == breach::trailing) wrong = field::whole;
  return {wrong, found.position, rule(found, text), std::move(label)};
}

std::string timecode_form::rule(fault const& broken, std::string_view text) const {
  auto const& form = parts_[broken.part];
  std::string const name = field_name(form.name);
  switch (broken.why) {
    case breach::plus_sign:
      return "a positive label has no sign";
    case breach::negative_drop_frame:
      return "drop-frame labels are never negative: each would read as sample 0";
    case breach::missing:
      return name + " are missing";
    case breach::digit_count:
      return name + " take " + (form.digits == 2 ? "two" : "three") + " digits";
    case breach::range: {
      auto range = name + " run from " + std::string(form.digits, '0') + " to ";
      append_number(range, form.last, form.digits);
      return range;
    }
    case breach::separator:
      return separator_rule(broken.part, text[broken.position]);
    case breach::left_out:
      return "drop-frame leaves out frames 00 and 01 of every minute that is not a tenth";
    case breach::trailing:
      break;
  }
  return "nothing may follow the frames";
}

std::string timecode_form::separator_rule(std::size_t part, char typed) const {
  std::string rule;
  if (part == frames_part) rule.append(1, '"').append(1, separator_).append("\" or ");
  rule.append("\":\" stands before the ").append(field_name(parts_[part].name));
  if (part == frames_part && typed == ';') rule += "; \";\" means drop-frame";
  return rule;
}

// Reads as much as people would, and moves each number to the nearest that exists.
std::string timecode_form::nearest(std::string_view text) const {
  auto const skip = [&](auto unwanted) {
    text.remove_prefix(static_cast<std::size_t>(std::ranges::find_if_not(text, unwanted) - text.begin()));
  };
  skip(is_blank);
  bool const negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);

  numbers label{};
  char separator = separator_;
  bool legible = false;
  for (std::size_t part = 0; part < parts; ++part) {
    skip(is_blank);
    auto const digits = digits_of(text);
    if (part == 0 && digits.empty() && !text.empty() && !parts_numbers(text.front())) return "";
    legible = legible || !digits.empty();
    label[part] = static_cast<int>(std::min<std::int64_t>(number(digits), parts_[part].last));

    skip([](char c) { return !parts_numbers(c) && !is_blank(c); });
    if (text.empty() || part == frames_part) break;
    if (is_blank(text.front())) {
      if (std::ranges::all_of(text, is_blank)) break;
      return "";
    }
    if (part + 1 == frames_part && is_own_separator(text.front())) separator = text.front();
    text.remove_prefix(1);
  }
  return legible ? written(negative, label, separator) : "";
}

std::string timecode_form::written(bool negative, numbers label, char separator) const {
  if (negative && drop_frame_) label = {};
  if (is_left_out(label)) label[frames_part] = 2;

  std::string text{negative && !drop_frame_ ? "-" : ""};
  for (std::size_t part = 0; part < parts; ++part) {
    if (part > 0) text += part == frames_part ? separator : ':';
    append_number(text, label[part], parts_[part].digits);
  }
  return text;
}

// "hh:mm:ss.ff"
std::string timecode_form::shape() const {
  return std::string{"hh:mm:ss"} + separator_ + std::string(parts_[frames_part].digits, 'f');
}

}  // namespace

std::optional<refusal> check_timecode(label_cvt const& cvt, std::string_view text) {
  timecode_form const form{cvt};
  auto const found = form.first_fault(text);
  if (!found) return std::nullopt;
  return form.refuse(*found, text);
}

}  // namespace labelcheck
