// Frame counts as texts: timecode and key numbers.

#include <array>
#include <cstdio>
#include <string>

#include "bench/timecode_rates.h"
#include "bench/work.h"
#include "labelsbase/framecounts.h"

namespace bench {
namespace {

using text = std::array<char, 24>;

constexpr int per_key = 16;                 // frames
constexpr unsigned char key_digits = 0x3C;  // four

std::vector<text> texts_of(rate const& r) {
  std::vector<text> texts;
  for (int const sample : random_samples(r.end))
    video_frames_to_timecode(sample + 1, texts.emplace_back().data(), r.count, r.drop);
  return texts;
}

pass write_count(rate const& r) {
  return over(random_samples(r.end), [r, out = text{}](int sample) mutable {
    return video_frames_to_timecode(sample + 1, out.data(), r.count, r.drop);
  });
}

pass read_count(rate const& r) {
  return over(texts_of(r), [r](text& in) {
    int frames;
    compute(timecode_to_video_frames(&frames, in.data(), r.count, r.drop));
    return frames;
  });
}

pass add_frames(rate const& r) {
  return over(texts_of(r), [r, out = text{}](text& in) mutable {
    int key_phase, phase;
    return label_plus_frames(out.data(), &key_phase, &phase, in.data(), 0, 0, 100, r.count, r.drop, per_key,
                             key_digits, Transfer_none, Edit_video);
  });
}

int write_libc(rate const& r, int sample, text& out) {
  auto const [h, m, s, f] = split(r, sample);
  return std::snprintf(out.data(), out.size(), "%02d%02d%02d%02d", h, m, s, f);
}

int read_libc(rate const& r, text const& in) {
  timecode_numbers at{};
  std::sscanf(in.data(), "%2d%2d%2d%2d", &at.hours, &at.minutes, &at.seconds, &at.frames);
  return join(r, at);
}

pass write_count_libc(rate const& r) {
  return over(random_samples(r.end), [r, out = text{}](int sample) mutable { return write_libc(r, sample, out); });
}

pass read_count_libc(rate const& r) {
  return over(texts_of(r), [r](text const& in) { return read_libc(r, in); });
}

pass add_frames_libc(rate const& r) {
  return over(texts_of(r), [r, out = text{}](text const& in) mutable {
    return write_libc(r, (read_libc(r, in) + 100) % r.end, out);
  });
}

int write_key(int frames, text& out) {
  return film_frames_to_keycode(frames + 1, out.data(), 0, nullptr, Label_keycode_frames, per_key, key_digits);
}

constexpr int key_frames = 160'000;

pass write_key_count() {
  return over(random_samples(key_frames), [out = text{}](int frames) mutable { return write_key(frames, out); });
}

pass read_key_count() {
  std::vector<text> texts;
  for (int const frames : random_samples(key_frames)) write_key(frames, texts.emplace_back());
  return over(texts, [](text& in) {
    int frames;
    compute(keycode_to_film_frames(&frames, in.data(), 0, nullptr, Label_keycode_frames, per_key));
    return frames;
  });
}

}  // namespace

void add_frame_counts(works& list) {
  auto const all = {tc_25, tc_30_drop};
  add(list, "write_count", all, write_count, "libc", write_count_libc);
  add(list, "read_count", all, read_count, "libc", read_count_libc);
  add(list, "add_frames", all, add_frames, "libc", add_frames_libc);
  list.push_back({"write_count/key", write_key_count});
  list.push_back({"read_count/key", read_key_count});
}

}  // namespace bench
