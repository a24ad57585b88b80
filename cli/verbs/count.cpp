// count: labels to frame counts and back.

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/counting.h"
#include "cli/item_records.h"
#include "cli/text.h"

namespace cli {
namespace {

struct arguments {
  std::string type;
  item_arguments items;
  pulldown_arguments across;
  std::string edit = "video";
  std::optional<std::string> frames_per_key;
  std::string key_phase = "1";
  std::string format;
  bool back = false;
  bool phases = false;
};

constexpr field fields[] = {
    input_field,
    {"frame", value_type::integer, "Without --back: frame of the label, from 1", "frame", may_be_missing},
    {"label", value_type::text, "With --back: label of the frame", "label", may_be_missing},
    {"pulldown_phase", value_type::integer, "With --phases: phase of the pulldown at the frame", "phase",
     may_be_missing, "phase "},
    {"key_phase", value_type::integer, "With --phases: phase of key 0 or, with --back, of the key", "key phase",
     may_be_missing, "key phase "},
    problem_field,
};

// The values between input and problem, in their order.
enum found_value : std::size_t { found_frame, found_label, found_pulldown_phase, found_key_phase };

// What the arguments ask for. Fills the values found for a text, or returns what is wrong with it.
struct counting {
  counted_label label;
  pulldown across;
  edit_type edit;
  int key_phase;
  bool phases;
  std::string shown{};  // the label found; valid until the next call

  [[nodiscard]] problem count(std::string_view text, std::span<value> found) const;
  [[nodiscard]] problem count_back(std::string_view text, std::span<value> found);
  void set_key_phase(std::span<value> found, int phase) const {
    if (phases && label.has_key_phase()) found[found_key_phase] = phase;
  }
};

problem counting::count(std::string_view text, std::span<value> found) const {
  counted_label::digits digits;
  if (auto wrong = label.read(text, key_phase, digits)) return wrong;

  int frames = 0;
  int phase = -1;
  int phase_of_key = key_phase;
  if (!label_to_frames(digits, key_phase, &phase_of_key, across.phase, &phase, &frames, label.label(),
                       label.drop(), across.transfer, edit, label.frames_per_key()))
    return "cannot be counted across this transfer";

  found[found_frame] = frames;
  if (phases && phase >= 0) found[found_pulldown_phase] = phase;
  set_key_phase(found, phase_of_key);
  return std::nullopt;
}

problem counting::count_back(std::string_view text, std::span<value> found) {
  auto const frame = whole_number(text);
  if (!frame) return "expected a frame, a whole number; the first frame is 1";

  counted_label::digits digits;
  int phase_of_key = key_phase;
  if (!frames_to_label(digits, key_phase, &phase_of_key, across.phase, -1, *frame, label.label(), label.drop(),
                       across.transfer, edit, label.frames_per_key(), label.key_digits()))
    return "is too far from frame 1 to have a label";

  shown = label.shown(digits);
  found[found_label] = std::string_view{shown};
  set_key_phase(found, phase_of_key);
  return std::nullopt;
}

edit_type find_edit(std::string const& text) {
  if (text == "video") return Edit_video;
  if (text == "film") return Edit_film;
  refuse("--edit", text, "expected video or film");
}

exit_status count(arguments const& given, console& io) {
  counting asked{find_counted_label("TYPE", given.type), find_pulldown(given.across), find_edit(given.edit),
                 number_in("--key-phase", given.key_phase, 1, 3), given.phases};
  if (given.frames_per_key) {
    if (!asked.label.has_keys() || asked.label.has_key_phase())
      refuse(
          "--frames-per-key", *given.frames_per_key,
          std::string{asked.label.has_keys() ? "the key phase sets the frames of a key" : "timecode has no keys"} +
              "; leave out --frames-per-key");
    asked.label.set_frames_per_key(number_in("--frames-per-key", *given.frames_per_key, 1, 100));
  }
  return for_each_item(given.items, find_format(given.format), fields, io,
                       [&](std::string_view text, std::span<value> found) {
                         return given.back ? asked.count_back(text, found) : asked.count(text, found);
                       });
}

}  // namespace

command_run commands::declare_count(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_type(command, given->type);
  add_items(command, "LABEL", "Labels, 01:00:00:00 or 1234+07. With --back, frames; the first frame is 1",
            given->items);
  add_flag(command, "--back", given->back, "Convert frames to labels");
  add_pulldown(command, given->across, "none");
  add_option(command, "--edit", "video|film [video]", given->edit, "Count video frames or film frames");
  add_option(command, "--frames-per-key", "N", given->frames_per_key,
             "Frames of a key, 1 to 100, if not those of the type");
  add_option(command, "--key-phase", "1|2|3 [1]", given->key_phase,
             "Phase of the key at 3 perforations a frame: 3 for a key of 22 frames, 1 and 2 for the two keys of 21"
             " that follow. With --back, the phase of key 0");
  add_flag(command, "--phases", given->phases,
           "Show phases too: that of the pulldown at the frame, and that of key 0 or, with --back, of the key");
  add_format(command, given->format, fields);
  add_examples(command, {{"count 29.97df --transfer 2:3 --edit film '01:00:00;00'", "86314"},
                         {"count 35mm 1234+07", "19752"},
                         {"count 25 --back 90001", "01:00:00.00"}});
  return [given](console& io) { return count(*given, io); };
}

}  // namespace cli
