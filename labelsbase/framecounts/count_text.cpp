// Timecode and film timecode.

#include "labelsbase/framecounts/count_text.h"

#include <cstdint>

#include "labelsbase/framecounts/count_label_rows.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/support/drop_frame.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// How timecode counts.
struct timecode_count {
  int frames_per_second;
  bool drops_frames;

  [[nodiscard]] constexpr int hour() const noexcept {
    return drops_frames ? drop_frame::hour : frames_per_second * 3600;
  }
};

constexpr timecode_count film_count{24, false};

constexpr timecode_count count_of(count_label_row const& row, int drop) noexcept {
  return {row.frames_per_second, drop != 0 && row.frames_per_second == 30};
}

// The frame of "hhmmssff".
int read_timecode(char const* text, timecode_count count) noexcept {
  int hours = 0;
  int minutes = 0;
  int seconds = 0;
  int frames = 0;
  text_reader in{text};
  for (int* field : {&hours, &minutes, &seconds, &frames}) {
    auto const number = in.number(2);
    if (!number) break;
    *field = *number;
  }

  // Deliberate: the labels that drop-frame leaves out are read too, as the last two frames of the minute before.
  int const minute =
      count.drops_frames ? drop_frame::minute_start(minutes) : minutes * 60 * count.frames_per_second;
  return hours * count.hour() + minute + seconds * count.frames_per_second + frames + 1;
}

// "hhmmssff" of a frame: 1 when written, 0 for what 8 digits cannot show.
int write_timecode(char* text, int frame_number, timecode_count count) noexcept {
  std::int64_t const hour = count.hour();
  auto frame = std::int64_t{frame_number} - 1;
  if (frame < 0)
    frame += 24 * hour;
  else if (frame >= 24 * hour)
    frame -= 24 * hour;
  if (!text || frame < 0 || frame >= 100 * hour) return 0;

  int const sample = static_cast<int>(frame);
  int const label = count.drops_frames ? drop_frame::label_number(sample) : sample;
  int const seconds = label / count.frames_per_second;
  text_writer{text, count_text_size}
      .number(seconds / 3600, 2)
      .number(seconds / 60 % 60, 2)
      .number(seconds % 60, 2)
      .number(label % count.frames_per_second, 2);
  return 1;
}

}  // namespace

int timecode_to_video_frames(int* video, char* text, label_type label, int drop) noexcept {
  auto const& row = count_label_row_of(label);
  if (row.form != text_form::timecode || row.frames_per_second == 24 || !video) return 0;
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
