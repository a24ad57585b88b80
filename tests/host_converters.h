// Converters as a host would derive them.
#pragma once

#include <array>

#include "labelsbase/labelcvt.h"

// A timecode converter whose fields can be read and set.
template <class Timecode>
class open_timecode : public Timecode {
 public:
  using Timecode::Timecode;

  std::array<int, 4> split(int sample) {
    bool second_field = false;
    this->sample_to_hmsf(sample, second_field);
    return {this->hours_, this->minutes_, this->seconds_, this->frames_};
  }

  int join(std::array<int, 4> const& fields) {
    this->hours_ = fields[0];
    this->minutes_ = fields[1];
    this->seconds_ = fields[2];
    this->frames_ = fields[3];
    return this->hmsf_to_sample();
  }
};
