// The host's output picture, and the rate at which a project is played out.
#pragma once

#include <cstdint>

#include "host/frame_rate.h"

namespace Kiv::Image {

// How a picture is scanned. The library accepts any 32-bit value: 3 and 4 are progressive, every other value is
// interlaced.
enum ScanMode : std::int32_t {
  ScanMode_unknown = 0,
  ScanMode_interlaced_upper_first = 1,
  ScanMode_interlaced_lower_first = 2,
  ScanMode_progressive = 3,
  ScanMode_segmented_frame = 4,  // progressive pictures carried as two fields
};

}  // namespace Kiv::Image

namespace OutputFormat {

// The part of an output format that labels depend on.
class Details {
 public:
  virtual ~Details() = default;

  // Returns how the output picture is scanned.
  virtual Kiv::Image::ScanMode getScanMode() const = 0;

  // Returns the frame rate of the output picture.
  virtual Kiv::FrameRate getFrameRate() const = 0;
};

}  // namespace OutputFormat

namespace Kiv {

// The rate at which a project is played out, and whether the playout goes through a pulldown.
class OutputGearing {
 public:
  // Option 1 reads the gearing of the current project at the moment of the call. The library uses no other option.
  explicit OutputGearing(int option);

  // A gearing of these values.
  OutputGearing(FrameRate rate, bool use_pulldown) : rate_{rate}, use_pulldown_{use_pulldown} {}

  // Returns the rate of the playout.
  FrameRate getFrameRate() const { return rate_; }

  // Returns true if the playout goes through a pulldown.
  bool getUsePulldown() const { return use_pulldown_; }

 private:
  FrameRate rate_ = FrameRate_unknown;
  bool use_pulldown_ = false;
};

}  // namespace Kiv
