// A small host: it answers every service of host/ outside an editor, from settings that are plain values.
//
// All of it may be called from any thread and at any time, also while static objects are built and destroyed.
// A guard restores what it found; guards of one kind are undone in the reverse order of their making.
#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/config.h"
#include "host/frame_rate.h"
#include "host/output.h"

namespace refhost {

// What Kiv::CurrentProject and Kiv::OutputGearing answer. The defaults are a film project: 24 frames per second
// throughout, progressive, nothing pulled down.
struct project_settings {
  // The rate that the project is edited at.
  Kiv::FrameRate frame_rate = Kiv::FrameRate_24;

  // Whether 29.97 material is labelled in drop-frame timecode (SMPTE ST 12-1).
  bool drop_frame = false;

  // The rate that the film camera ran at.
  Kiv::FrameRate film_speed = Kiv::FrameRate_24;

  // How the output picture is scanned.
  Kiv::Image::ScanMode output_scan = Kiv::Image::ScanMode_progressive;

  // The frame rate of the output picture; nothing stands for the project's.
  std::optional<Kiv::FrameRate> output_rate{};

  // The rate that the project is played out at; nothing stands for the project's.
  std::optional<Kiv::FrameRate> gearing_rate{};

  // Whether the playout goes through a pulldown.
  bool gearing_pulldown = false;

  // Whether sound that is in sync with a video project runs slower by 1000/1001.
  bool audio_sync_pulled_down = false;

  // Whether film frames reach the output through a pulldown.
  bool output_pulled_down = false;

  friend bool operator==(project_settings const&, project_settings const&) = default;
};

[[nodiscard]] project_settings project();
void set_project(project_settings const& settings);

// Sets the project for as long as the guard lives.
class [[nodiscard]] project_guard {
 public:
  explicit project_guard(project_settings const& settings) { set_project(settings); }
  ~project_guard() { set_project(before_); }
  project_guard(project_guard const&) = delete;
  project_guard& operator=(project_guard const&) = delete;

 private:
  project_settings before_ = project();
};

// The configuration: texts by key, which config_int reads as whole numbers.
void set_config(std::string_view key, std::string_view text);
void erase_config(std::string_view key);
[[nodiscard]] std::optional<std::string> config_text(std::string_view key);

// The same store as the library reads it.
[[nodiscard]] configb& configuration();

// Sets a key for as long as the guard lives, or takes it away when there is no text.
class [[nodiscard]] config_guard {
 public:
  config_guard(std::string_view key, std::optional<std::string_view> text);
  ~config_guard();
  config_guard(config_guard const&) = delete;
  config_guard& operator=(config_guard const&) = delete;

 private:
  std::string key_;
  std::optional<std::string> before_;
};

// A project setting by name, for tools that list them or offer each as an option.
struct setting {
  char const* key;       // "project-rate"
  char const* meaning;   // "frame rate of the project"
  char const* expected;  // what may be written, as messages say it
};
[[nodiscard]] std::vector<setting> setting_list();

// Sets one setting from text: a key of setting_list, or config.KEY for a configuration value. Gives nothing when
// all is well, otherwise a message that names the value and what was expected, with nothing changed.
[[nodiscard]] std::optional<std::string> set_option(std::string_view key, std::string_view value);

struct settings_error {
  int line;  // from 1
  std::string message;
};

// Reads `key = value` lines with the keys and values of set_option; the last line of a key counts. Blank lines are
// skipped, and so are lines that begin with # (a # further on belongs to the value). Gives one error for each
// wrong line, and then nothing at all is changed.
[[nodiscard]] std::vector<settings_error> load_settings(std::istream& in);

// What has gone through the host's allocator since the program started.
struct allocator_counts {
  std::int64_t live_blocks;
  std::int64_t allocations;  // successful ones

  friend bool operator==(allocator_counts const&, allocator_counts const&) = default;
};
[[nodiscard]] allocator_counts allocator_statistics() noexcept;

using diagnostic_sink = std::function<void(std::string_view text)>;

// Leads diagnostic_print to `sink` for as long as the guard lives; an empty sink is standard error.
class [[nodiscard]] diagnostic_guard {
 public:
  explicit diagnostic_guard(diagnostic_sink sink);
  ~diagnostic_guard();
  diagnostic_guard(diagnostic_guard const&) = delete;
  diagnostic_guard& operator=(diagnostic_guard const&) = delete;

 private:
  diagnostic_sink before_;
};

}  // namespace refhost
