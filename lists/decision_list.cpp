#include "lists/decision_list.h"

#include <algorithm>

#include "lists/words.h"

namespace lists {
namespace {

constexpr std::size_t most_number_digits = 8;
constexpr std::size_t most_length_digits = 5;

bool is_transition_kind(std::string_view word) noexcept {
  if (word.starts_with('W') || word.starts_with('w')) return all_digits(word.substr(1));
  return same_letters(word, "D") || same_letters(word, "K") || same_letters(word, "KB") ||
         same_letters(word, "KO");
}

// Takes the transition off the end of what stands before the labels. Returns whether there is one.
bool take_transition(std::string_view& rest, event& out) noexcept {
  auto shorter = rest;
  auto const last = take_last_word(shorter);
  out.transition = last;
  if (same_letters(last, "C") || is_transition_kind(last)) {
    rest = shorter;
    return true;
  }
  if (!all_digits(last) || last.size() > most_length_digits) return false;
  out.transition_frames = last;
  out.transition = take_last_word(shorter);
  if (same_letters(out.transition, "B") || same_letters(out.transition, "O")) {
    auto const key = take_last_word(shorter);
    if (!same_letters(key, "K")) return false;
    out.transition = {key.data(), static_cast<std::size_t>(out.transition.data() + 1 - key.data())};
  } else if (!is_transition_kind(out.transition)) {
    return false;
  }
  rest = shorter;
  return true;
}

statement read_event(std::string_view number, std::string_view rest) noexcept {
  event read;
  read.number = number;
  for (auto* label : {&read.record_out, &read.record_in, &read.source_out, &read.source_in})
    *label = take_last_word(rest);
  auto const has_labels = std::ranges::any_of(read.labels(), looks_like_timecode);
  if (!has_labels || read.source_in.empty() || !take_transition(rest, read)) return broken_event{number};
  read.tracks = take_last_word(rest);
  read.reel = trimmed(rest);
  if (read.tracks.empty()) return broken_event{number};
  return read;
}

statement read_code_mode(std::string_view rest) noexcept {
  code_mode read{trimmed(rest), false};
  auto word = take_first_word(rest);
  bool const is_negated = same_letters(word.substr(0, 3), "NON");
  if (same_letters(word, "NON")) word = take_first_word(rest);
  if (!is_negated && !same_letters(word, "DROP") && !same_letters(word, "DROP-FRAME")) return remark{};
  read.drop_frame = !is_negated;
  return read;
}

statement read_speed(std::string_view rest) noexcept {
  speed_effect read;
  auto shorter = rest;
  auto last = take_last_word(shorter);
  if (looks_like_timecode(last)) {
    read.entry = last;
    last = take_last_word(shorter);
  }
  read.frames_per_second = last;
  read.reel = trimmed(shorter);
  auto const digits = last.substr(last.starts_with('-') || last.starts_with('+') ? 1 : 0);
  bool const is_number =
      !digits.empty() && std::ranges::all_of(digits, [](char c) { return labelsbase::is_digit(c) || c == '.'; });
  return is_number ? statement{read} : statement{remark{}};
}

statement read_audio_channels(std::string_view rest) noexcept {
  audio_channels read{false, false};
  for (auto word = take_first_word(rest); !word.empty(); word = take_first_word(rest)) {
    if (word != "3" && word != "4") return remark{};
    (word == "3" ? read.third : read.fourth) = true;
  }
  return read.third || read.fourth ? statement{read} : statement{remark{}};
}

}  // namespace

bool looks_like_timecode(std::string_view word) noexcept {
  constexpr std::string_view separators = ":;.,+";
  int numbers = 0;
  bool in_number = false;
  for (char const c : word) {
    bool const is_digit = labelsbase::is_digit(c);
    if (!is_digit && (separators.find(c) == std::string_view::npos || !in_number)) return false;
    if (is_digit && !in_number) ++numbers;
    in_number = is_digit;
  }
  return numbers == 4 && in_number;
}

statement read_statement(std::string_view line) noexcept {
  auto rest = trimmed(line);
  auto const word = take_first_word(rest);
  if (all_digits(word) && word.size() <= most_number_digits) return read_event(word, rest);
  if (same_letters(word, "M2")) return read_speed(rest);
  if (same_letters(word, "AUD")) return read_audio_channels(rest);
  if (same_letters(word, "FCM:")) return read_code_mode(rest);
  if (same_letters(word, "TITLE:")) return title{trimmed(rest)};
  return remark{};
}

}  // namespace lists
