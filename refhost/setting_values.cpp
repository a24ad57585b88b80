#include "refhost/setting_values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

#include "refhost/frame_rate_rows.h"
#include "refhost/whole_number.h"

namespace refhost {
namespace {

std::string lower_case(std::string_view text) {
  std::string lower{text};
  for (char& c : lower)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

template <typename Value>
struct word {
  std::string_view text;
  Value value;
};

constexpr word<bool> truth_words[] = {
    {"yes", true}, {"true", true}, {"1", true}, {"no", false}, {"false", false}, {"0", false},
};

constexpr word<Kiv::Image::ScanMode> scan_words[] = {
    {"progressive", Kiv::Image::ScanMode_progressive},
    {"segmented", Kiv::Image::ScanMode_segmented_frame},
    {"upper-first", Kiv::Image::ScanMode_interlaced_upper_first},
    {"lower-first", Kiv::Image::ScanMode_interlaced_lower_first},
};

template <typename Value>
bool read_word(std::string_view text, auto const& words, Value& value) {
  auto const* found = std::ranges::find(words, lower_case(text), &word<Value>::text);
  if (found == std::end(words)) return false;
  value = found->value;
  return true;
}

// Grammar: "code:" NUMBER, the code as projects store it. Accepts codes that the host does not know.
template <typename Code>
bool read_code(std::string_view text, Code& value) {
  constexpr std::string_view prefix = "code:";
  if (lower_case(text.substr(0, prefix.size())) != prefix) return false;
  auto const code = whole_number(text.substr(prefix.size()));
  if (code) value = Code{*code};
  return code.has_value();
}

template <typename Matches>
bool read_matching_rate(Kiv::FrameRate& value, Matches matches) {
  auto const* row = std::ranges::find_if(frame_rate_rows, matches);
  if (row == std::end(frame_rate_rows)) return false;
  value = row->rate;
  return true;
}

// Grammar: FRAMES "/" SECONDS. "60000/2002" equals "30000/1001".
bool read_fraction(std::string_view text, Kiv::FrameRate& value) {
  auto const slash = text.find('/');
  if (slash == std::string_view::npos) return false;
  auto const frames = whole_number(text.substr(0, slash));
  auto const seconds = whole_number(text.substr(slash + 1));
  if (!frames || !seconds || *seconds <= 0) return false;
  return read_matching_rate(value, [&](frame_rate_row const& row) {
    return std::int64_t{*frames} * row.seconds == std::int64_t{*seconds} * row.frames;
  });
}

// Grammar: a decimal number, "24", "12.5" or "23.976". A 1001 rate has no exact decimals, so it matches if it
// rounds to the text at the number of decimals written, from two (23.98 is 24000/1001, 24.0 is 24) to nine.
bool read_decimal(std::string_view text, Kiv::FrameRate& value) {
  if (text.find_first_not_of("0123456789.") != std::string_view::npos) return false;
  double fps = 0;
  auto const* end = text.data() + text.size();
  auto const [stop, error] = std::from_chars(text.data(), end, fps);
  if (error != std::errc{} || stop != end) return false;

  auto const point = text.find('.');
  auto const written = point == std::string_view::npos ? 0 : text.size() - point - 1;
  auto const decimals = static_cast<int>(std::min<std::size_t>(written, 9));
  double const half_a_digit = decimals < 2 ? 0 : 0.5 * std::pow(10.0, -decimals);
  return read_matching_rate(value, [&](frame_rate_row const& row) {
    return std::abs(fps - row.frames_per_second()) <= (row.has_1001_factor() ? half_a_digit : 0);
  });
}

}  // namespace

bool read_value(std::string_view text, bool& value) { return read_word(text, truth_words, value); }

bool read_value(std::string_view text, Kiv::FrameRate& value) {
  return read_code(text, value) || read_fraction(text, value) || read_decimal(text, value);
}

bool read_value(std::string_view text, std::optional<Kiv::FrameRate>& value) {
  if (lower_case(text) == "project") {
    value.reset();
    return true;
  }
  Kiv::FrameRate rate{};
  if (!read_value(text, rate)) return false;
  value = rate;
  return true;
}

bool read_value(std::string_view text, Kiv::Image::ScanMode& value) {
  return read_code(text, value) || read_word(text, scan_words, value);
}

}  // namespace refhost
