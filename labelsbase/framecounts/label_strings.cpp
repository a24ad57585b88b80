#include "labelsbase/framecounts/label_strings.h"

#include <cmath>
#include <limits>

#include "labelsbase/framecounts/count_label_rows.h"
#include "labelsbase/framecounts/count_text.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/labelcvt/rate_facts.h"

using namespace labelsbase;

namespace {

// What label texts are counted by.
struct count_settings {
  label_type label;
  int drop;
  transfer_type transfer;
  edit_type edit;
  int per_key;
  unsigned char digits;  // only writing needs it
};

// The phases at a frame: of the pulldown and of the key.
struct phases {
  int pulldown;
  int key;
};

// Where a function writes the phases that it found.
struct phase_outputs {
  int* pulldown;
  int* key;
};

enum class label_class { unknown, timecode, film_timecode, keycode };

// Deliberate: 24 and 48 frame timecode is film timecode, and key numbers with perforations are unknown.
constexpr label_class class_of(label_type label) noexcept {
  auto const& row = count_label_row_of(label);
  switch (row.form) {
    case text_form::timecode:
      return row.frames_per_second == 24 || row.frames_per_second == 48 ? label_class::film_timecode
                                                                        : label_class::timecode;
    case text_form::keycode:
      return row.units_per_frame == 1 ? label_class::keycode : label_class::unknown;
    case text_form::unknown:
      break;
  }
  return label_class::unknown;
}

constexpr bool is_edit(edit_type edit) noexcept { return edit == Edit_film || edit == Edit_video; }

int read_label(char* text, phases const& at, phase_outputs const& out, int* frames,
               count_settings const& by) noexcept {
  if (!out.pulldown) return 0;
  *out.pulldown = -1;
  if (!is_edit(by.edit)) return 0;

  bool const film = by.edit == Edit_film;
  switch (class_of(by.label)) {
    case label_class::timecode:
      return film
                 ? timecode_to_film_frames(frames, text, at.pulldown, out.pulldown, by.label, by.drop, by.transfer)
                 : timecode_to_video_frames(frames, text, by.label, by.drop);
    case label_class::film_timecode:
      return film ? filmtc_to_film_frames(frames, text)
                  : filmtc_to_video_frames(frames, text, at.pulldown, by.transfer);
    case label_class::keycode:
      return film ? keycode_to_film_frames(frames, text, at.key, out.key, by.label, by.per_key)
                  : keycode_to_video_frames(frames, text, at.key, out.key, at.pulldown, by.label, by.transfer,
                                            by.per_key);
    case label_class::unknown:
      break;
  }
  return 0;
}

// `last_phase` is the phase of the pulldown that the frame before was left with, or -1.
int write_label(char* text, phases const& at, int last_phase, int* key_phase_out, int frames,
                count_settings const& by) noexcept {
  if (!is_edit(by.edit)) return 0;

  bool const film = by.edit == Edit_film;
  switch (class_of(by.label)) {
    case label_class::timecode:
      return film ? film_frames_to_timecode(frames, text, at.pulldown, last_phase, by.label, by.drop, by.transfer)
                  : video_frames_to_timecode(frames, text, by.label, by.drop);
    case label_class::film_timecode:
      return film ? film_frames_to_filmtc(frames, text)
                  : video_frames_to_filmtc(frames, text, at.pulldown, by.transfer);
    case label_class::keycode:
      return film ? film_frames_to_keycode(frames, text, at.key, key_phase_out, by.label, by.per_key, by.digits)
                  : video_frames_to_keycode(frames, text, at.key, key_phase_out, at.pulldown, by.label,
                                            by.transfer, by.per_key, by.digits);
    case label_class::unknown:
      break;
  }
  return 0;
}

// Writes the label `count` frames after the one in `in_text`.
int move_label(char* out_text, phase_outputs const& out, char* in_text, phases const& at, int count,
               count_settings const& by) noexcept {
  bool const has_key_phase = by.label == Label_keycode_3perf;
  if (!out_text || !out.pulldown || (has_key_phase && !out.key)) return 0;

  int frames = 0;
  int first_key_phase = at.key;
  int last_phase = -1;
  if (!read_label(in_text, at, {&last_phase, &first_key_phase}, &frames, by)) return 0;

  // Deliberate: the phase that was handed in moves on, not the one that was found.
  int new_phase = at.pulldown;
  if (!frames_plus_frames(frames, at.pulldown, count, &frames, &new_phase, by.transfer, by.edit)) return 0;
  *out.pulldown = new_phase;

  int const status = write_label(out_text, {new_phase, first_key_phase}, last_phase, out.key, frames, by);
  if (status && !has_key_phase && out.key) *out.key = at.key;
  return status;
}

}  // namespace

int label_to_frames(char* text, int key_phase, int* key_phase_out, int phase, int* phase_out, int* frames,
                    label_type label, int drop, transfer_type transfer, edit_type edit, int per_key) noexcept {
  return read_label(text, {phase, key_phase}, {phase_out, key_phase_out}, frames,
                    {label, drop, transfer, edit, per_key, 0});
}

int frames_to_label(char* text, int key_phase, int* key_phase_out, int phase, int last_phase, int frames,
                    label_type label, int drop, transfer_type transfer, edit_type edit, int per_key,
                    unsigned char digits) noexcept {
  return write_label(text, {phase, key_phase}, last_phase, key_phase_out, frames,
                     {label, drop, transfer, edit, per_key, digits});
}

int frames_plus_frames(int frames, int phase, int count, int* frames_out, int* phase_out, transfer_type transfer,
                       edit_type edit) noexcept {
  switch (edit) {
    case Edit_film:
      return film_frames_plus_frames(frames, phase, count, frames_out, phase_out, transfer);
    case Edit_video:
      return video_frames_plus_frames(frames, phase, count, frames_out, phase_out, transfer);
  }
  return 0;
}

int label_plus_frames(char* out_text, int* key_phase_out, int* phase_out, char* in_text, int key_phase, int phase,
                      int count, label_type label, int drop, int per_key, unsigned char digits,
                      transfer_type transfer, edit_type edit) noexcept {
  return move_label(out_text, {phase_out, key_phase_out}, in_text, {phase, key_phase}, count,
                    {label, drop, transfer, edit, per_key, digits});
}

double get_frame_rate(material_type material, edit_type edit) noexcept {
  if (edit == Edit_film) return 24.0;
  switch (material) {
    case Material_29_97:
      return facts_of(Kiv::FrameRate_29_97).frames_per_second();
    case Material_30:
      return 30.0;
    case Material_25:
      break;
  }
  return 25.0;
}

int label_plus_time(char* out_text, int* key_phase_out, int* phase_out, char* in_text, int key_phase, int phase,
                    double seconds, label_type label, int drop, int per_key, material_type material,
                    transfer_type transfer, edit_type edit, unsigned char digits) noexcept {
  double const count = std::floor(get_frame_rate(material, edit) * seconds + 0.01);
  using int_limits = std::numeric_limits<int>;
  if (!(count >= int_limits::min() && count <= int_limits::max())) return 0;  // NaN, too
  return move_label(out_text, {phase_out, key_phase_out}, in_text, {phase, key_phase}, static_cast<int>(count),
                    {label, drop, transfer, edit, per_key, digits});
}
