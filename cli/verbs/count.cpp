// count: labels to frame counts and back.

#include <memory>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/counting.h"
#include "cli/input.h"
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
  bool back = false;
  bool phases = false;
};

// What the arguments ask for.
struct counting {
  counted_label label;
  pulldown across;
  edit_type edit;
  int key_phase;
  bool phases;

  [[nodiscard]] exit_status count(item_arguments const& labels, console& io) const;
  [[nodiscard]] exit_status count_back(item_arguments const& frames, console& io) const;
  [[nodiscard]] std::string key_phase_text(int found) const {
    return phases && label.has_key_phase() ? "\tkey phase " + std::to_string(found) : "";
  }
};

exit_status counting::count(item_arguments const& labels, console& io) const {
  return for_each_item(labels, io, [&](std::string_view text) -> problem {
    counted_label::digits digits;
    if (auto wrong = label.read(text, key_phase, digits)) return wrong;

    int frames = 0;
    int found_phase = -1;
    int found_key_phase = key_phase;
    if (!label_to_frames(digits, key_phase, &found_key_phase, across.phase, &found_phase, &frames, label.label(),
                         label.drop(), across.transfer, edit, label.frames_per_key()))
      return "cannot be counted across this transfer";

    auto line = std::to_string(frames);
    if (phases && found_phase >= 0) line += "\tphase " + std::to_string(found_phase);
    io.results.line(line + key_phase_text(found_key_phase));
    return std::nullopt;
  });
}

exit_status counting::count_back(item_arguments const& frames, console& io) const {
  return for_each_item(frames, io, [&](std::string_view text) -> problem {
    auto const frame = whole_number(text);
    if (!frame) return "expected a frame, a whole number; the first frame is 1";

    counted_label::digits digits;
    int found_key_phase = key_phase;
    if (!frames_to_label(digits, key_phase, &found_key_phase, across.phase, -1, *frame, label.label(),
                         label.drop(), across.transfer, edit, label.frames_per_key(), label.key_digits()))
      return "is too far from frame 1 to have a label";

    io.results.line(label.shown(digits) + key_phase_text(found_key_phase));
    return std::nullopt;
  });
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
  return given.back ? asked.count_back(given.items, io) : asked.count(given.items, io);
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
  add_examples(command, {{"count 29.97df --transfer 2:3 --edit film '01:00:00;00'", "86314"},
                         {"count 35mm 1234+07", "19752"},
                         {"count 25 --back 90001", "01:00:00.00"}});
  return [given](console& io) { return count(*given, io); };
}

}  // namespace cli
