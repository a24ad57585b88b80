// The host's configuration: whole numbers and texts by key.
//
// Whole numbers that are read by key:
//   50p_timecode_type, 60p_timecode_type   1 (or anything else) plain 50 or 60 frame timecode;
//                                          2 slow timecode, two samples (fields) a frame;
//                                          3 each sample a frame of a 25 or 30 frame timecode
//   default_film_video_conversion_pulldown 0 (the default) film and video convert frame for frame;
//                                          anything else through the pulldown of the project
//
// Kept for hosts, which may read it themselves; nothing here does: video_in_film_pulldown.
#pragma once

#include "host/lightweight_string.h"

// The whole number that is stored under `key`, or `default_value` when there is none or it is not a number.
int config_int(char const* key, int default_value);

// A store of texts by key.
class configb {
 public:
  // What a buffer handed to `in` holds at least, the terminator included; longer texts are cut to fit.
  static constexpr int text_size = 1024;

  // Copies the text of `key` into `buffer` and gives 0. Any other result: no such key, `buffer` as it was.
  virtual int in(LightweightString<char> const& key, char* buffer) const = 0;

 protected:
  ~configb() = default;
};
