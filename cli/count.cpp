#include <CLI/CLI.hpp>
#include <memory>
#include <vector>

#include "cli/arguments.h"
#include "cli/counted_label.h"
#include "cli/items.h"
#include "cli/label_type.h"
#include "cli/pulldown.h"
#include "cli/verbs.h"
#include "refhost/whole_number.h"

namespace cli {
namespace {

struct arguments {
  std::string type;
  std::vector<std::string> items;
  pulldown_arguments across;
  std::string edit = "video";
  std::optional<int> frames_per_key;
  int key_phase = 1;
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

  [[nodiscard]] exit_status count(std::vector<std::string> const& labels, console& io) const;
  [[nodiscard]] exit_status count_back(std::vector<std::string> const& frames, console& io) const;
  [[nodiscard]] std::string key_phase_text(int found) const {
    return phases && label.has_key_phase() ? "\tkey phase " + std::to_string(found) : "";
  }
};

exit_status counting::count(std::vector<std::string> const& labels, console& io) const {
  return for_each_item(labels, io, [&](std::string_view text) -> problem {
    counted_label::digits digits;
    if (auto wrong = label.read(text, key_phase, digits)) return wrong;

    int frames = 0;
    int found_phase = -1;
    int found_key_phase = key_phase;
    if (!label_to_frames(digits, key_phase, &found_key_phase, across.phase, &found_phase, &frames, label.label(),
                         label.drop(), across.transfer, edit, label.frames_per_key()))
      return "has no frame that can be counted";

    auto line = std::to_string(frames);
    if (phases && found_phase >= 0) line += "\tphase " + std::to_string(found_phase);
    io.results.line(line + key_phase_text(found_key_phase));
    return std::nullopt;
  });
}

exit_status counting::count_back(std::vector<std::string> const& frames, console& io) const {
  return for_each_item(frames, io, [&](std::string_view text) -> problem {
    auto const frame = refhost::whole_number(text);
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

exit_status count(arguments const& given, console& io) {
  auto const type = find_label_type(given.type, io.errors);
  if (!type) return failed;
  auto label = counted_label::of(*type, io.errors);
  auto const across = find_pulldown(given.across, io.errors);
  if (!label || !across) return failed;
  if (given.frames_per_key) {
    if (!label->has_keys() || label->has_key_phase()) {
      io.errors.say("--frames-per-key: there is no such choice for " + given.type + "; leave it out");
      return failed;
    }
    label->set_frames_per_key(*given.frames_per_key);
  }
  counting const asked{*label, *across, given.edit == "film" ? Edit_film : Edit_video, given.key_phase,
                       given.phases};
  return given.back ? asked.count_back(given.items, io) : asked.count(given.items, io);
}

}  // namespace

verb_run declare_count(CLI::App& verb) {
  auto const given = std::make_shared<arguments>();
  add_type(verb, given->type);
  add_operands(verb, "LABEL", "Labels, for example 01:00:00:00 or 1234+07; with --back, frames", given->items);
  verb.add_flag("--back", given->back, "Turn frames into labels");
  add_pulldown(verb, given->across, "none");
  verb.add_option("--edit", given->edit, "What is counted: video frames, or film frames")
      ->option_text("video|film [video]")
      ->allow_extra_args(false)
      ->check(CLI::IsMember({"video", "film"}));
  verb.add_option("--frames-per-key", given->frames_per_key, "Frames of a key, where not those of the type's film")
      ->option_text("N")
      ->allow_extra_args(false)
      ->check(CLI::Range(1, 100));
  verb.add_option("--key-phase", given->key_phase,
                  "Of film at 3 perforations a frame: 3 for a key of 22 frames, then 1 and 2 for those of 21. With"
                  " --back, that of key 0")
      ->option_text("1|2|3 [1]")
      ->allow_extra_args(false)
      ->check(CLI::Range(1, 3));
  verb.add_flag(
      "--phases", given->phases,
      "Show what was found beside the count: the phase of the pulldown at this frame, and the key phase of"
      " the first key, or with --back of this one");
  return [given](console& io) { return count(*given, io); };
}

}  // namespace cli
