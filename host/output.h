// The host's output picture and the gearing between project and output.
#pragma once

#include <cstdint>

#include "host/frame_rate.h"

namespace Kiv::Image {

// How a picture is scanned. Any 32-bit value may be handed in; all but the two progressive modes are taken as
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

// An output format as far as labels are concerned.
class Details {
 public:
  virtual ~Details() = default;
  virtual Kiv::Image::ScanMode getScanMode() const = 0;
  virtual Kiv::FrameRate getFrameRate() const = 0;
};

}  // namespace OutputFormat

namespace Kiv {

// At what rate the current project is played out, and whether through a pulldown.
class OutputGearing {
 public:
  // Option 1: the gearing of the current project, as it is now. The library uses no other option.
  explicit OutputGearing(int option);
  OutputGearing(FrameRate rate, bool use_pulldown) : rate_{rate}, use_pulldown_{use_pulldown} {}

  FrameRate getFrameRate() const { return rate_; }
  bool getUsePulldown() const { return use_pulldown_; }

 private:
  FrameRate rate_ = FrameRate_unknown;
  bool use_pulldown_ = false;
};

}  // namespace Kiv
