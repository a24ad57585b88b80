#include "labelsbase/framecounts/label_strings.h"

#include <cmath>
#include <limits>

#include "labelsbase/framecounts/count_label_rows.h"
#include "labelsbase/framecounts/count_text.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/labelcvt/rate_facts.h"

using namespace labelsbase;

namespace {

enum class label_class { unknown, timecode, film_timecode, keycode };

// Deliberate: 24 and 48 frame timecode is film timecode, and key numbers with perforations are unknown.
constexpr label_class class_of(label_type label) noexcept {
  auto const& row = count_label_row_of(label);
  if (row.form == text_form::keycode && row.units_per_frame == 1) return label_class::keycode;
  if (row.form != text_form::timecode) return label_class::unknown;
  int const frames_per_second = row.count.frames_per_second();
  return frames_per_second == 24 || frames_per_second == 48 ? label_class::film_timecode : label_class::timecode;
}

constexpr bool is_edit(edit_type edit) noexcept { return edit == Edit_film || edit == Edit_video; }

}  // namespace

int label_to_frames(char* text, int key_phase, int* key_phase_out, int phase, int* phase_out, int* frames,
                    label_type label, int drop, transfer_type transfer, edit_type edit, int per_key) noexcept {
  if (!phase_out) return 0;
  *phase_out = -1;
  if (!is_edit(edit)) return 0;

  bool const film = edit == Edit_film;
  switch (class_of(label)) {
    case label_class::timecode:
      return film ? timecode_to_film_frames(frames, text, phase, phase_out, label, drop, transfer)
                  : timecode_to_video_frames(frames, text, label, drop);
    case label_class::film_timecode:
      return film ? filmtc_to_film_frames(frames, text) : filmtc_to_video_frames(frames, text, phase, transfer);
    case label_class::keycode:
      return film ? keycode_to_film_frames(frames, text, key_phase, key_phase_out, label, per_key)
                  : keycode_to_video_frames(frames, text, key_phase, key_phase_out, phase, label, transfer,
                                            per_key);
    case label_class::unknown:
      break;
  }
  return 0;
}

int frames_to_label(char* text, int key_phase, int* key_phase_out, int phase, int last_phase, int frames,
                    label_type label, int drop, transfer_type transfer, edit_type edit, int per_key,
                    unsigned char digits) noexcept {
  if (!is_edit(edit)) return 0;

  bool const film = edit == Edit_film;
  switch (class_of(label)) {
    case label_class::timecode:
      return film ? film_frames_to_timecode(frames, text, phase, last_phase, label, drop, transfer)
                  : video_frames_to_timecode(frames, text, label, drop);
    case label_class::film_timecode:
      return film ? film_frames_to_filmtc(frames, text) : video_frames_to_filmtc(frames, text, phase, transfer);
    case label_class::keycode:
      return film ? film_frames_to_keycode(frames, text, key_phase, key_phase_out, label, per_key, digits)
                  : video_frames_to_keycode(frames, text, key_phase, key_phase_out, phase, label, transfer,
                                            per_key, digits);
    case label_class::unknown:
      break;
  }
  return 0;
}

int frames_plus_frames(int frames, int phase, int count, int* frames_out, int* phase_out, transfer_type transfer,
                       edit_type edit) noexcept {
  if (edit == Edit_film) return film_frames_plus_frames(frames, phase, count, frames_out, phase_out, transfer);
  if (edit == Edit_video) return video_frames_plus_frames(frames, phase, count, frames_out, phase_out, transfer);
  return 0;
}

// Reads and writes in line, for the benchmark's row add_frames.
[[gnu::flatten]] int label_plus_frames(char* out_text, int* key_phase_out, int* phase_out, char* in_text,
                                       int key_phase, int phase, int count, label_type label, int drop,
                                       int per_key, unsigned char digits, transfer_type transfer,
                                       edit_type edit) noexcept {
  bool const has_key_phase = label == Label_keycode_3perf;
  if (!out_text || !phase_out || (has_key_phase && !key_phase_out)) return 0;

  int frames = 0;
  int first_key_phase = key_phase;
  int last_phase = -1;
  if (!label_to_frames(in_text, key_phase, &first_key_phase, phase, &last_phase, &frames, label, drop, transfer,
                       edit, per_key))
    return 0;

  // Deliberate: the phase that was handed in moves on, not the one that was found.
  int new_phase = phase;
  if (!frames_plus_frames(frames, phase, count, &frames, &new_phase, transfer, edit)) return 0;
  *phase_out = new_phase;

  int const status = frames_to_label(out_text, first_key_phase, key_phase_out, new_phase, last_phase, frames,
                                     label, drop, transfer, edit, per_key, digits);
  if (status && !has_key_phase && key_phase_out) *key_phase_out = key_phase;
  return status;
}

double get_frame_rate(material_type material, edit_type edit) noexcept {
  if (edit == Edit_film) return 24.0;
  if (material == Material_29_97) return facts_of(Kiv::FrameRate_29_97).frames_per_second();
  return material == Material_30 ? 30.0 : 25.0;
}

int label_plus_time(char* out_text, int* key_phase_out, int* phase_out, char* in_text, int key_phase, int phase,
                    double seconds, label_type label, int drop, int per_key, material_type material,
                    transfer_type transfer, edit_type edit, unsigned char digits) noexcept {
  double const count = std::floor(get_frame_rate(material, edit) * seconds + 0.01);
  using int_limits = std::numeric_limits<int>;
  if (!(count >= int_limits::min() && count <= int_limits::max())) return 0;  // NaN, too
  return label_plus_frames(out_text, key_phase_out, phase_out, in_text, key_phase, phase, static_cast<int>(count),
                           label, drop, per_key, digits, transfer, edit);
}
