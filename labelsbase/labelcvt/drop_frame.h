// Drop-frame timecode: the sample of a label.
#pragma once

#include "labelsbase/labelcvt/timecode.h"
#include "labelsbase/support/drop_frame.h"
#include "labelsbase/support/integers.h"

namespace labelsbase::drop_frame {

// The sample of a label that is given by its fields, whatever they hold. A label that is left out comes out as one
// of the last two samples of the minute before.
[[nodiscard]] constexpr int sample_of(timecode_fields const& fields) noexcept {
  auto const [hours, minutes, seconds, frames] = fields;
  int const before_minute_0 = minutes % 10 < 0 ? 2 : 0;
  int const in_minute = wrap_sub(wrap_add(wrap_mul(seconds, 30), frames), before_minute_0);
  return wrap_add(wrap_add(wrap_mul(hours, hour), minute_start(minutes)), in_minute);
}

}  // namespace labelsbase::drop_frame
