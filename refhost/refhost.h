// A small host for programs outside an editor. It implements everything that host/ declares, from settings that
// are plain values.
//
//   refhost::project_guard const guard{{.frame_rate = Kiv::FrameRate_25}};
//   getDefaultLabelTypeForProject();  // pal_label_t
//
// Every function may be called from any thread and at any time, also while static objects are built and destroyed.
// Guards restore the value they found; destroy guards of one kind in the reverse order of their construction.
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
#include "host/language.h"
#include "host/output.h"

namespace refhost {

// The values that Kiv::CurrentProject and Kiv::OutputGearing return. The defaults describe a film project: 24
// frames per second everywhere, progressive, nothing pulled down.
struct project_settings {
  // The rate at which the project is edited.
  Kiv::FrameRate frame_rate = Kiv::FrameRate_24;

  // Whether 29.97 material is labelled in drop-frame timecode (SMPTE ST 12-1).
  bool drop_frame = false;

  // The rate at which the film camera ran.
  Kiv::FrameRate film_speed = Kiv::FrameRate_24;

  // How the output picture is scanned.
  Kiv::Image::ScanMode output_scan = Kiv::Image::ScanMode_progressive;

  // The frame rate of the output picture. Empty: the project's.
  std::optional<Kiv::FrameRate> output_rate{};

  // The rate at which the project is played out. Empty: the project's.
  std::optional<Kiv::FrameRate> gearing_rate{};

  // Whether the playout goes through a pulldown.
  bool gearing_pulldown = false;

  // Whether sound that is in sync with a video project runs slower by 1000/1001.
  bool audio_sync_pulled_down = false;

  // Whether film frames reach the output through a pulldown.
  bool output_pulled_down = false;

  // Compares all fields.
  friend bool operator==(project_settings const&, project_settings const&) = default;
};

// Returns a copy of the current settings.
[[nodiscard]] project_settings project();

// Replaces all settings.
void set_project(project_settings const& settings);

// Sets the project while the guard lives.
class [[nodiscard]] project_guard {
 public:
  // Keeps the current settings, then replaces them.
  explicit project_guard(project_settings const& settings) { set_project(settings); }
  ~project_guard() { set_project(before_); }
  project_guard(project_guard const&) = delete;
  project_guard& operator=(project_guard const&) = delete;

 private:
  project_settings before_ = project();
};

// Stores a text in the configuration, in place of an earlier one. config_int reads such texts as whole numbers.
void set_config(std::string_view key, std::string_view text);

// Removes a key. Does nothing if there is no such key.
void erase_config(std::string_view key);

// Returns the text stored under `key`, or nothing if there is no such key.
[[nodiscard]] std::optional<std::string> config_text(std::string_view key);

// Returns the same store in the form that the library reads.
[[nodiscard]] configb& configuration();

// Sets a key while the guard lives. Without a text, removes the key meanwhile.
class [[nodiscard]] config_guard {
 public:
  // Keeps the text of the key, then replaces or removes it.
  config_guard(std::string_view key, std::optional<std::string_view> text);
  ~config_guard();
  config_guard(config_guard const&) = delete;
  config_guard& operator=(config_guard const&) = delete;

 private:
  std::string key_;
  std::optional<std::string> before_;
};

// A project setting by name, for tools that list the settings or offer each as an option.
struct setting {
  char const* key;       // "project-rate"
  char const* meaning;   // "frame rate of the project"
  char const* expected;  // the values accepted, as messages describe them
};

// Returns all settings in the order of project_settings.
[[nodiscard]] std::vector<setting> setting_list();

// Sets one setting from text. `key` is a key of setting_list, or config.KEY for a configuration value. Returns
// nothing on success. Otherwise changes nothing and returns a message that names the value and what was expected.
[[nodiscard]] std::optional<std::string> set_option(std::string_view key, std::string_view value);

// What is wrong with a line of settings.
struct settings_error {
  int line;             // from 1
  std::string message;  // names the value and what was expected
};

// Reads lines `key = value` with the keys and values of set_option. The last line of a key wins. Skips blank lines
// and lines that begin with "#"; a "#" later in a line belongs to the value. Returns one error for each wrong
// line. If there is any error, changes nothing.
[[nodiscard]] std::vector<settings_error> load_settings(std::istream& in);

// Blocks of the host's allocator since the program started.
struct allocator_counts {
  std::int64_t live_blocks;  // allocated and not freed
  std::int64_t allocations;  // all that succeeded

  // Compares all fields.
  friend bool operator==(allocator_counts const&, allocator_counts const&) = default;
};

// Returns the counts of this moment.
[[nodiscard]] allocator_counts allocator_statistics() noexcept;

// Receives each message of diagnostic_print, formatted.
using diagnostic_sink = std::function<void(std::string_view text)>;

// Sends diagnostic_print to `sink` while the guard lives. An empty sink sends it to standard error.
class [[nodiscard]] diagnostic_guard {
 public:
  // Keeps the current sink, then replaces it.
  explicit diagnostic_guard(diagnostic_sink sink);
  ~diagnostic_guard();
  diagnostic_guard(diagnostic_guard const&) = delete;
  diagnostic_guard& operator=(diagnostic_guard const&) = delete;

 private:
  diagnostic_sink before_;
};

}  // namespace refhost
