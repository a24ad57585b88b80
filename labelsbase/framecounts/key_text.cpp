// Key numbers.

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "labelsbase/counts/integers.h"
#include "labelsbase/framecounts/count_label_rows.h"
#include "labelsbase/framecounts/count_text.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/framecounts/put_count.h"
#include "labelsbase/framecounts/transfers.h"
#include "labelsbase/support/digits.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// Keys of 35 mm film at 3 perforations a frame, as frame counts number them: every key has whole frames, and a
// frame belongs to the key that it ends in. (Key number labels count otherwise: labelsbase/counts/film_gauge.h.)
// Three keys of 64 perforations have 64 frames. The phase says how many of the three have begun: after phase 3 it
// starts again.
//
//   phase            1    2    3
//   frames of a key 21   21   22
namespace whole_frame_keys {

constexpr int keys = 3;
constexpr int frames = 64;

constexpr bool is_phase(int phase) noexcept { return phase >= 1 && phase <= keys; }

// Returns the phase of a key from 0 up, if key 0 has the phase `phase`.
constexpr int phase_of(std::int64_t key, int phase) noexcept {
  return static_cast<int>((key + phase - 1) % keys) + 1;
}

// Returns the frames before a key from 0 up, if key 0 has the phase `phase`.
constexpr std::int64_t frames_before(std::int64_t key, int phase) noexcept {
  return (key * frames + phase - 1) / keys;
}

// Returns the key of a frame, both from 0 up.
constexpr std::int64_t key_of(std::int64_t frame, int phase) noexcept {
  return (frame * keys + keys - phase) / frames;
}

static_assert(frames_before(1, 1) == 21 && frames_before(2, 1) == 42 && frames_before(3, 1) == 64);
static_assert(frames_before(1, 3) == 22 && frames_before(2, 3) == 43 && frames_before(3, 3) == 64);
static_assert(key_of(20, 1) == 0 && key_of(21, 1) == 1 && key_of(21, 3) == 0 && key_of(22, 3) == 1);

}  // namespace whole_frame_keys

// A key, and the frames or perforations after it.
struct key_number {
  std::int64_t key;
  std::int64_t rest;
};

// Reads a key and what follows it. Any text can be read; a field that is missing is 0. Changes blanks among the
// first 8 characters to zeros in place: hosts rely on it.
//
//   kkkkff, kkkkkff or kkkkkkff: the key has 5 digits in a text of 7 characters, 6 in one of 8, and 4 in all
//   others
key_number read_key_number(char* text) noexcept {
  if (!text) return {};
  std::size_t length = 0;
  unsigned number = 0;
  unsigned largest_digit = 0;
  for (; length < 8 && text[length]; ++length) {
    if (text[length] == ' ') text[length] = '0';
    auto const digit = digit_value(text[length]);
    largest_digit = std::max(largest_digit, digit);
    number = wrap_append_digit(number, digit);
  }
  if (length == 8 && text[8]) ++length;

  // Nearly every text is 6 to 8 digits, the last two of which follow the key.
  if (largest_digit <= 9 && length >= 6 && length <= 8) return {number / 100, number % 100};

  text_reader in{text};
  auto const key = in.number(length == 7 ? 5 : length == 8 ? 6 : 4);
  if (!key) return {};
  return {*key, in.number(2).value_or(0)};
}

// Writes kkkkkkff. Returns 1, or 0 for a key number that 8 digits cannot show.
int write_key_number(char* text, key_number number) noexcept {
  auto const [key, rest] = number;
  if (key < 0 || key > 999'999 || rest < 0 || rest > 99) return 0;
  put_digits(text, static_cast<unsigned>(key), 6);
  put_pair(text + 6, static_cast<int>(rest));
  text[count_text_size - 1] = '\0';
  return 1;
}

// Returns how many keys there are: 10 to the number of consecutive bits set in `digits` from bit 2 up.
constexpr int keys_of(unsigned char digits) noexcept {
  auto const bits = std::countr_one(static_cast<unsigned char>(digits >> 2));
  return static_cast<int>(powers_of_ten<unsigned>[static_cast<unsigned>(bits)]);
}

int read_three_perf(int* film, char* text, int phase, int* phase_out) noexcept {
  if (!phase_out) return 0;
  auto const [key, rest] = read_key_number(text);
  if (!whole_frame_keys::is_phase(phase)) return 0;

  // `first_phase` is the phase of the key at or before this one that is a multiple of three. Deliberate: a key
  // below 0 counts as the multiple of three towards 0.
  auto const in_three = key % whole_frame_keys::keys;
  auto const threes = key / whole_frame_keys::keys * whole_frame_keys::frames;
  auto first_phase = phase - in_three;
  if (first_phase <= 0) first_phase += whole_frame_keys::keys;
  auto const frames = in_three > 0 ? whole_frame_keys::frames_before(in_three, static_cast<int>(first_phase)) : 0;
  return put_count(film, threes + frames + rest + 1, phase_out, first_phase);
}

int write_three_perf(int film, char* text, int phase, int* phase_out, int keys) noexcept {
  if (!phase_out || !whole_frame_keys::is_phase(phase)) return 0;
  auto const frame = wrap_once(std::int64_t{film} - 1, whole_frame_keys::frames_before(keys, phase));
  if (frame < 0) return 0;

  auto const key = whole_frame_keys::key_of(frame, phase);
  if (!write_key_number(text, {key, frame - whole_frame_keys::frames_before(key, phase)})) return 0;
  *phase_out = whole_frame_keys::phase_of(key, phase);
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
