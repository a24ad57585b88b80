// The host's configuration: whole numbers and texts by key.
//
// The library reads these whole numbers:
//
//   key                                     values
//   50p_timecode_type, 60p_timecode_type    2: slow timecode of 25 or 30 frames, two samples (fields) to a frame
//                                           3: timecode of 25 or 30 frames, one sample to a frame
//                                           any other value: timecode of 50 or 60 frames (the default)
//   default_film_video_conversion_pulldown  0: film and video convert frame for frame (the default)
//                                           any other value: through the pulldown of the project's rates
//
// The key "video_in_film_pulldown" belongs to the host. The library never reads it.
//
// The library asks for the two timecode types while it builds its converters, at the first use of any label. A
// host must not ask for a label from within config_int: such a call gets the invalid converter.
#pragma once

#include "host/lightweight_string.h"

// Returns the whole number stored under `key`, or `default_value` if there is no such key or its text is not a
// whole number of 32 bits.
int config_int(char const* key, int default_value);

// A store of texts by key.
class configb {
 public:
  // The least size in characters, terminator included, of a buffer passed to `in`. Longer texts are cut to fit.
  static constexpr int text_size = 1024;

  // Copies the text stored under `key` into `buffer`, terminated, and returns 0. If there is no such key, returns
  // any other number and leaves `buffer` unchanged.
  virtual int in(LightweightString<char> const& key, char* buffer) const = 0;

 protected:
  ~configb() = default;
};
