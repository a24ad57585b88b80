// Calls the frame counts with any label, phase and count. They must read a text as sscanf reads it, write 8
// characters or none, read what they wrote, and change nothing that they refuse.

#include <algorithm>

#include "fuzz/fuzz_input.h"
#include "labelsbase/framecounts.h"
#include "labelsbase/framecounts/count_label_rows.h"

extern int const fuzz_words = 11;

namespace {

// What every function takes.
struct counting {
  label_type label;
  transfer_type transfer;
  edit_type edit;
  material_type material;
  int phase, key_phase, drop, per_key;
  unsigned char digits;
};

void demand_text_read_as_scanf_does(std::string text) {
  int frame = 0, h = 0, m = 0, s = 0, f = 0, key = 0, rest = 0;
  (void)timecode_to_video_frames(&frame, text.data(), Label_timecode_50, 1);
  std::sscanf(text.c_str(), "%2d%2d%2d%2d", &h, &m, &s, &f);
  demand(frame == ((h * 60 + m) * 60 + s) * 50 + f + 1, "timecode is read as sscanf reads it", text);

  std::string filled = text;
  (void)keycode_to_film_frames(&frame, filled.data(), 0, nullptr, Label_keycode_frames, 100);
  auto const length = std::strlen(filled.c_str());
  std::sscanf(filled.c_str(), length == 7 ? "%5d%2d" : length == 8 ? "%6d%2d" : "%4d%2d", &key, &rest);
  demand(frame == key * 100 + rest + 1, "a key number is read as sscanf reads it", text);
}

// A text buffer that a function may write a label into.
class label_buffer {
 public:
  label_buffer() { std::memcpy(buffer_.text(), unwritten, sizeof unwritten); }

  [[nodiscard]] char* text() { return buffer_.text(); }

  void demand_written(int status, std::string const& input) {
    demand(status >= 0 && status <= 2, "the status is 0, 1 or 2", input);
    buffer_.demand_whole(input);
    if (status)
      demand(std::strlen(text()) == 8, "a label has 8 characters", input);
    else
      demand(!std::memcmp(text(), unwritten, sizeof unwritten), "what is refused is not written", input);
  }

 private:
  static constexpr char unwritten[labelsbase::count_text_size] = "before!!";
  guarded<labelsbase::count_text_size> buffer_;
};

// Reads a label, and returns its frame. A refused label must leave the frame alone.
int read_frames(counting const& how, std::string text, int unread) {
  int frames = unread, key_phase = 0, phase = 0;
  int const status = label_to_frames(text.data(), how.key_phase, &key_phase, how.phase, &phase, &frames, how.label,
                                     how.drop, how.transfer, how.edit, how.per_key);
  demand(status || frames == unread, "what is refused is not counted", text);
  return frames;
}

// Returns how many frames from the first one are within the day, or within the first key.
int frames_of_one_run(counting const& how) {
  auto const form = labelsbase::count_label_row_of(how.label).form;
  return form == labelsbase::text_form::timecode ? 24 * 3'600 * 24 : std::min(how.per_key, 21);
}

// Writes a frame. Without a pulldown, the same frame must be read.
void demand_frame_written(counting const& how, int frames, std::string const& input) {
  label_buffer out;
  int key_phase = 0;
  int const status = frames_to_label(out.text(), how.key_phase, &key_phase, how.phase, -1, frames, how.label,
                                     how.drop, how.transfer, how.edit, how.per_key, how.digits);
  out.demand_written(status, input);
  if (status && how.transfer == Transfer_none && frames > 0 && frames <= frames_of_one_run(how))
    demand(read_frames(how, out.text(), -1) == frames, "a written label is read back", out.text());
}

void demand_moved(counting const& how, std::string text, int count, double seconds) {
  label_buffer out;
  int key_phase = 0, phase = 0;
  out.demand_written(
      label_plus_frames(out.text(), &key_phase, &phase, text.data(), how.key_phase, how.phase, count, how.label,
                        how.drop, how.per_key, how.digits, how.transfer, how.edit),
      text);
  label_buffer later;
  later.demand_written(
      label_plus_time(later.text(), &key_phase, &phase, text.data(), how.key_phase, how.phase, seconds, how.label,
                      how.drop, how.per_key, how.material, how.transfer, how.edit, how.digits),
      text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  counting how{};
  how.label = input.choice<label_type>(48);
  how.transfer = input.choice<transfer_type>(9);
  how.edit = input.choice<edit_type>(3);
  how.material = input.choice<material_type>(4);
  how.phase = input.number();
  how.key_phase = input.number();
  how.drop = input.number();
  how.per_key = input.number();
  how.digits = static_cast<unsigned char>(input.number());
  int const count = input.number();
  double const seconds = input.real();
  auto const& text = input.text();

  demand_text_read_as_scanf_does(text);
  demand_frame_written(how, read_frames(how, text, count), text);
  demand_frame_written(how, count, text);
  demand_moved(how, text, count, seconds);

  int frames = 0, phase = 0;
  (void)video_frames_to_film_frames(count, &frames, how.phase, &phase, how.transfer);
  (void)film_frames_to_video_frames(count, &frames, how.phase, how.key_phase, how.transfer);
  return 0;
}
