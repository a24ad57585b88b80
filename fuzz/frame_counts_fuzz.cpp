// Calls the frame counts with any label, phase and count.

#include <bit>

#include "fuzz/fuzz_input.h"
#include "labelsbase/framecounts.h"

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

  int frames = 0, key_phase_out = 0, phase_out = 0;
  char out[9];
  (void)label_to_frames(text.data(), key_phase, &key_phase_out, phase, &phase_out, &frames, label, drop, transfer,
                        edit, per_key);
  for (int const tried : {frames, count})
    (void)frames_to_label(out, key_phase, &key_phase_out, phase, -1, tried, label, drop, transfer, edit, per_key,
                          digits);
  (void)label_plus_frames(out, &key_phase_out, &phase_out, text.data(), key_phase, phase, count, label, drop,
                          per_key, digits, transfer, edit);
  (void)label_plus_time(out, &key_phase_out, &phase_out, text.data(), key_phase, phase, seconds, label, drop,
                        per_key, material, transfer, edit, digits);
  return 0;
}
