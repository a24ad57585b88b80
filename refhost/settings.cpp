#include <algorithm>
#include <istream>
#include <iterator>
#include <type_traits>
#include <utility>

#include "refhost/refhost.h"
#include "refhost/setting_values.h"

namespace refhost {
namespace {

struct setting_row {
  setting described;
  bool (*read)(std::string_view text, project_settings& settings);
};

template <auto member>
constexpr setting_row row(char const* key, char const* meaning) {
  using value_type = std::remove_cvref_t<decltype(std::declval<project_settings>().*member)>;
  return {{key, meaning, expected_value<value_type>},
          [](std::string_view text, project_settings& settings) { return read_value(text, settings.*member); }};
}

// clang-format off
constexpr setting_row setting_rows[] = {
    row<&project_settings::frame_rate>            ("project-rate",           "frame rate of the project"),
    row<&project_settings::drop_frame>            ("drop-frame",             "label 29.97 in drop-frame timecode"),
    row<&project_settings::film_speed>            ("film-speed",             "rate that the film camera ran at"),
    row<&project_settings::output_scan>           ("output-scan",            "scan mode of the output picture"),
    row<&project_settings::output_rate>           ("output-rate",            "frame rate of the output picture"),
    row<&project_settings::gearing_rate>          ("gearing-rate",           "rate of the playout"),
    row<&project_settings::gearing_pulldown>      ("gearing-pulldown",       "play out through a pulldown"),
    row<&project_settings::audio_sync_pulled_down>("audio-sync-pulled-down", "video sound runs slower by 1000/1001"),
    row<&project_settings::output_pulled_down>    ("output-pulled-down",     "film is output through a pulldown"),
};
// clang-format on

constexpr std::string_view config_prefix = "config.";
constexpr std::size_t longest_config_text = configb::text_size - 1;

// Settings that were read but not applied yet.
struct changes {
  project_settings project = refhost::project();
  std::vector<std::pair<std::string, std::string>> config{};

  void apply() const {
    set_project(project);
    for (auto const& [key, text] : config) set_config(key, text);
  }
};

// Returns the text in quotes, cut after 60 characters.
std::string quoted(std::string_view text) {
  constexpr std::size_t shown = 60;
  std::string result{"'"};
  result += text.substr(0, shown);
  return result += text.size() > shown ? "...'" : "'";
}

std::string unknown_key(std::string_view key) {
  std::string message = "unknown setting " + quoted(key) + "; expected ";
  for (auto const& known : setting_rows) message.append(known.described.key).append(", ");
  return message += "or config.KEY";
}

std::optional<std::string> read_config(std::string_view key, std::string_view text, changes& out) {
  if (key.empty()) return quoted(config_prefix) + " needs a key; expected config.KEY";
  if (text.size() > longest_config_text)
    return std::string{config_prefix}.append(key) + ": " + quoted(text) + " is too long; expected at most " +
           std::to_string(longest_config_text) + " characters";
  out.config.emplace_back(key, text);
  return std::nullopt;
}

std::optional<std::string> read_setting(std::string_view key, std::string_view value, changes& out) {
  if (key.starts_with(config_prefix)) return read_config(key.substr(config_prefix.size()), value, out);
  auto const* found =
      std::ranges::find_if(setting_rows, [&](setting_row const& known) { return key == known.described.key; });
  if (found == std::end(setting_rows)) return unknown_key(key);
  if (found->read(value, out.project)) return std::nullopt;
  return std::string{key} + ": " + quoted(value) + " is wrong; expected " + found->described.expected;
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r";
  auto const first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<std::string> read_line(std::string_view line, changes& out) {
  line = trimmed(line);
  if (line.empty() || line.front() == '#') return std::nullopt;
  auto const equals = line.find('=');
  if (equals == std::string_view::npos) return quoted(line) + " has no '='; expected key = value";
  return read_setting(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)), out);
}

// Some editors write a byte order mark at the start of UTF-8 text.
std::string_view without_byte_order_mark(std::string_view line) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return line.starts_with(mark) ? line.substr(mark.size()) : line;
}

}  // namespace

std::vector<setting> setting_list() {
  std::vector<setting> list;
  for (auto const& known : setting_rows) list.push_back(known.described);
  return list;
}

std::optional<std::string> set_option(std::string_view key, std::string_view value) {
  changes read;
  auto error = read_setting(key, value, read);
  if (!error) read.apply();
  return error;
}

std::vector<settings_error> load_settings(std::istream& in) {
  changes read;
  std::vector<settings_error> errors;
  std::string line;
  int number = 0;
  while (std::getline(in, line)) {
    ++number;
    auto const text = number == 1 ? without_byte_order_mark(line) : std::string_view{line};
    if (auto error = read_line(text, read)) errors.push_back({number, std::move(*error)});
  }
  if (!in.eof()) errors.push_back({number + 1, "the settings cannot be read; expected a text file"});
  if (errors.empty()) read.apply();
  return errors;
}

}  // namespace refhost
