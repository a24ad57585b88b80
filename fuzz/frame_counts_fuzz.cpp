// Calls the frame counts with any label, phase and count. They must read a text as sscanf reads it, and write 8
// characters or none.

#include <bit>

#include "fuzz/fuzz_input.h"
#include "labelsbase/framecounts.h"

extern int const fuzz_numbers = 11;

namespace {

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

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const label = static_cast<label_type>(input.number<std::uint32_t>() % 48);
  auto const transfer = static_cast<transfer_type>(input.number<std::uint32_t>() % 9);
  auto const edit = static_cast<edit_type>(input.number<std::uint32_t>() % 3);
  auto const material = static_cast<material_type>(input.number<std::uint32_t>() % 4);
  int const phase = input.number(), key_phase = input.number(), count = input.number(), drop = input.number();
  int const per_key = input.number();
  auto const digits = input.number<unsigned char>();
  auto const seconds = static_cast<double>(std::bit_cast<float>(input.number()));
  auto text = input.rest();
  demand_text_read_as_scanf_does(text);

  int frames = 0, key_phase_out = 0, phase_out = 0;
  char out[] = "before!!guard";
  auto const demand_label = [&](int status) {
    demand(status >= 0 && status <= 2, "the status is 0, 1 or 2", text);
    demand(std::string_view{out + 9, 4} == "uard", "nothing is written behind a label", text);
    demand(std::strlen(out) == (status ? 8 : 13), "a label has 8 characters", text);
    std::memcpy(out, "before!!guard", sizeof out);
  };
  (void)label_to_frames(text.data(), key_phase, &key_phase_out, phase, &phase_out, &frames, label, drop, transfer,
                        edit, per_key);
  for (int const tried : {frames, count})
    demand_label(frames_to_label(out, key_phase, &key_phase_out, phase, -1, tried, label, drop, transfer, edit,
                                 per_key, digits));
  demand_label(label_plus_frames(out, &key_phase_out, &phase_out, text.data(), key_phase, phase, count, label,
                                 drop, per_key, digits, transfer, edit));
  demand_label(label_plus_time(out, &key_phase_out, &phase_out, text.data(), key_phase, phase, seconds, label,
                               drop, per_key, material, transfer, edit, digits));
  (void)video_frames_to_film_frames(count, &frames, phase, &phase_out, transfer);
  (void)film_frames_to_video_frames(count, &frames, phase, key_phase, transfer);
  return 0;
}
