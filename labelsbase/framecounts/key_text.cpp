// Key numbers.

#include <bit>
#include <cstddef>
#include <cstdint>

#include "labelsbase/framecounts/count_label_rows.h"
#include "labelsbase/framecounts/count_text.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/framecounts/put_count.h"
#include "labelsbase/framecounts/transfer_rows.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// A key of 64 perforations has 21 1/3 frames of 3, so three keys have 64 frames: 21, 21 and, at phase 3, 22.
namespace three_perf {

constexpr int keys = 3;
constexpr int frames = 64;

constexpr bool is_phase(int phase) noexcept { return phase >= 1 && phase <= keys; }
constexpr int frames_of_key(int phase) noexcept { return phase == keys ? 22 : 21; }
constexpr int phase_after(int phase) noexcept { return phase == keys ? 1 : phase + 1; }

// The frames before a key, when key 0 has the phase `phase`.
constexpr std::int64_t frames_before(int key, int phase) noexcept {
  auto result = std::int64_t{key / keys} * frames;
  for (int rest = key % keys; rest > 0; --rest) {
    result += frames_of_key(phase);
    phase = phase_after(phase);
  }
  return result;
}

}  // namespace three_perf

// A key, and the frames or perforations that follow it.
struct key_number {
  std::int64_t key;
  std::int64_t rest;
};

// The length of a text, 9 for all that are longer than 8.
std::size_t length_up_to_9(char const* text) noexcept {
  std::size_t length = 0;
  while (length < 9 && text[length]) ++length;
  return length;
}

// Changes blanks to zeros in place, as hosts know it.
key_number read_key_number(char* text) noexcept {
  if (!text) return {};
  for (std::size_t i = 0; i < 8 && text[i]; ++i)
    if (text[i] == ' ') text[i] = '0';

  auto const length = length_up_to_9(text);
  text_reader in{text};
  auto const key = in.number(length == 7 ? 5 : length == 8 ? 6 : 4);
  if (!key) return {};
  return {*key, in.number(2).value_or(0)};
}

// 1 when written, 0 for what 8 digits cannot show.
int write_key_number(char* text, key_number number) noexcept {
  auto const [key, rest] = number;
  if (key < 0 || key > 999'999 || rest < 0 || rest > 99) return 0;
  text_writer{text, count_text_size}.number(static_cast<int>(key), 6).number(static_cast<int>(rest), 2);
  return 1;
}

constexpr int keys_of(unsigned char digits) noexcept {
  int keys = 1;
  for (int bits = std::countr_one(static_cast<unsigned char>(digits >> 2)); bits > 0; --bits) keys *= 10;
  return keys;
}

// A frame from 0 up, once round a span.
constexpr std::int64_t wrap_once(std::int64_t frame, std::int64_t span) noexcept {
  if (frame < 0) return frame + span;
  return frame >= span ? frame - span : frame;
}

int read_three_perf(int* film, char* text, int phase, int* phase_out) noexcept {
  if (!phase_out) return 0;
  auto const [key, frames] = read_key_number(text);
  if (!three_perf::is_phase(phase)) return 0;

  int const whole_key = static_cast<int>(key);
  int first_phase = phase - whole_key % three_perf::keys;
  if (first_phase <= 0) first_phase += three_perf::keys;
  return put_count(film, three_perf::frames_before(whole_key, first_phase) + frames + 1, phase_out, first_phase);
}

int write_three_perf(int film, char* text, int phase, int* phase_out, int keys) noexcept {
  if (!phase_out || !three_perf::is_phase(phase)) return 0;
  auto const frame = wrap_once(std::int64_t{film} - 1, three_perf::frames_before(keys, phase));

  auto key = frame / three_perf::frames * three_perf::keys;
  auto rest = frame % three_perf::frames;
  for (; rest >= three_perf::frames_of_key(phase); ++key) {
    rest -= three_perf::frames_of_key(phase);
    phase = three_perf::phase_after(phase);
  }
  if (!write_key_number(text, {key, rest})) return 0;
  *phase_out = phase;
  return 1;
}

}  // namespace

int keycode_to_film_frames(int* film, char* text, int phase, int* phase_out, label_type label,
                           int per_key) noexcept {
  auto const& row = count_label_row_of(label);
  if (row.form != text_form::keycode || !film) return 0;
  if (label == Label_keycode_3perf) return read_three_perf(film, text, phase, phase_out);
  if (per_key <= 0) return 0;

  auto const [key, rest] = read_key_number(text);
  return put_count(film, (key * per_key + rest) / row.units_per_frame + 1);
}

int film_frames_to_keycode(int film, char* text, int phase, int* phase_out, label_type label, int per_key,
                           unsigned char digits) noexcept {
  auto const& row = count_label_row_of(label);
  if (row.form != text_form::keycode || !text) return 0;
  if (label == Label_keycode_3perf) return write_three_perf(film, text, phase, phase_out, keys_of(digits));
  if (per_key <= 0) return 0;

  auto const span = std::int64_t{keys_of(digits)} * per_key / row.units_per_frame;
  auto const units = wrap_once(std::int64_t{film} - 1, span) * row.units_per_frame;
  return write_key_number(text, {units / per_key, units % per_key});
}

int keycode_to_video_frames(int* video, char* text, int key_phase, int* key_phase_out, int phase, label_type label,
                            transfer_type transfer, int per_key) noexcept {
  // First, since reading a key number changes the text.
  if (!video || !find_transfer(transfer)) return 0;
  int film = 0;
  if (!keycode_to_film_frames(&film, text, key_phase, key_phase_out, label, per_key)) return 0;
  return film_frames_to_video_frames(film, video, phase, -1, transfer);
}

int video_frames_to_keycode(int video, char* text, int key_phase, int* key_phase_out, int phase, label_type label,
                            transfer_type transfer, int per_key, unsigned char digits) noexcept {
  int film = 0;
  int ignored_phase = 0;
  if (!video_frames_to_film_frames(video, &film, phase, &ignored_phase, transfer)) return 0;
  return film_frames_to_keycode(film, text, key_phase, key_phase_out, label, per_key, digits);
}
