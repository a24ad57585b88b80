// Timecode and film timecode.

#include "labelsbase/framecounts/count_text.h"

#include <cstdint>

#include "labelsbase/counts/timecode_count.h"
#include "labelsbase/framecounts/count_label_rows.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/framecounts/put_count.h"
#include "labelsbase/support/digits.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

constexpr timecode_count film_count{24};
constexpr timecode_count drop_frame_count{30, true};

constexpr timecode_count const& count_of(count_label_row const& row, int drop) noexcept {
  return drop != 0 && row.count.frames_per_second() == 30 ? drop_frame_count : row.count;
}

// Reads the fields of any text. From the first one that is not a number on, all are 0.
//
//   hh mm ss ff: blank* ("+" | "-")? digit+, in up to two characters after the blanks
[[gnu::noinline]] timecode_fields read_any_fields(char const* text) noexcept {
  timecode_fields fields{};
  text_reader in{text};
  for (int* field : {&fields.hours, &fields.minutes, &fields.seconds, &fields.frames}) {
    auto const number = in.number(2);
    if (!number) break;
    *field = *number;
  }
  return fields;
}

// Returns the frame of a timecode text, from 1. Nearly every text begins with eight digits.
int read_timecode(char const* text, timecode_count const& count) noexcept {
  timecode_fields fields;
  bool const has_eight_digits = text && read_pair(text, fields.hours) && read_pair(text + 2, fields.minutes) &&
                                read_pair(text + 4, fields.seconds) && read_pair(text + 6, fields.frames);
  if (!has_eight_digits) fields = read_any_fields(text);

  // Deliberate: the labels that drop-frame leaves out are read too, as the last two frames of the minute before. A
  // minute below 0 counts 1798 frames.
  int const left_out = count.is_drop_frame() && fields.minutes % 10 < 0 ? 2 : 0;
  return count.join(fields) + left_out + 1;
}

// Writes the timecode of a frame as hhmmssff. A frame up to a day out of the day moves into it. Returns 1, or 0
// for a frame that 8 digits cannot show.
int write_timecode(char* text, int frame_number, timecode_count const& count) noexcept {
  auto const frame = wrap_once(std::int64_t{frame_number} - 1, count.labels_per_day());
  auto const longest = std::int64_t{count.labels_per_hour()} * 100;
  if (!text || frame < 0 || frame >= longest) return 0;

  auto const [hours, minutes, seconds, frames] = count.split(static_cast<int>(frame));  // each below 100
  put_pair(text, hours);
  put_pair(text + 2, minutes);
  put_pair(text + 4, seconds);
  put_pair(text + 6, frames);
  text[count_text_size - 1] = '\0';
  return 1;
}

}  // namespace

int timecode_to_video_frames(int* video, char* text, label_type label, int drop) noexcept {
  auto const& row = count_label_row_of(label);
  if (row.form != text_form::timecode || row.count.frames_per_second() == 24 || !video) return 0;
  *video = read_timecode(text, count_of(row, drop));
  return 1;
}

int video_frames_to_timecode(int video, char* text, label_type label, int drop) noexcept {
  auto const& row = count_label_row_of(label);
  return row.form == text_form::timecode ? write_timecode(text, video, count_of(row, drop)) : 0;
}

int filmtc_to_film_frames(int* film, char* text) noexcept {
  if (!film) return 0;
  *film = read_timecode(text, film_count);
  return 1;
}

int film_frames_to_filmtc(int film, char* text) noexcept { return write_timecode(text, film, film_count); }

int timecode_to_film_frames(int* film, char* text, int phase, int* phase_out, label_type label, int drop,
                            transfer_type transfer) noexcept {
  int video = 0;
  if (!timecode_to_video_frames(&video, text, label, drop)) return 0;
  return video_frames_to_film_frames(video, film, phase, phase_out, transfer);
}

int film_frames_to_timecode(int film, char* text, int phase, int last_phase, label_type label, int drop,
                            transfer_type transfer) noexcept {
  int video = 0;
  int const status = film_frames_to_video_frames(film, &video, phase, last_phase, transfer);
  return status && video_frames_to_timecode(video, text, label, drop) ? status : 0;
}

int filmtc_to_video_frames(int* video, char* text, int phase, transfer_type transfer) noexcept {
  int film = 0;
  if (!filmtc_to_film_frames(&film, text)) return 0;
  return film_frames_to_video_frames(film, video, phase, -1, transfer);
}

int video_frames_to_filmtc(int video, char* text, int phase, transfer_type transfer) noexcept {
  int film = 0;
  int ignored_phase = 0;
  if (!video_frames_to_film_frames(video, &film, phase, &ignored_phase, transfer)) return 0;
  return film_frames_to_filmtc(film, text);
}
