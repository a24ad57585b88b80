// Writes the labels that read.h reads.
//
//   labelcheck::writer drop{ntsc_drop_label_t};
//   drop.write(1800)                            // "00:01:00;02"
//   labelcheck::writer key{keycode_35_label_t, "KJ123456"};
//   key.write(64)                               // "KJ1234560001+00"
//   key.write(-1)                               // "": the sample has no label; range.h says why
//   char text[11];
//   drop.write(1800, text)                      // 11: the length of the label, which is in `text` now
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

#include "labelcheck/range.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/label_point.h"

namespace labelcheck {

// How timecode is written; other labels have one style.
enum class label_style {
  own,       // as the type writes it: "01:00:00.00", "01:00:00;00" and "01:00:00+00"
  exchange,  // timecode as other systems write it: ":" before the frames, ";" for drop-frame only
};

// Writes samples as labels, without a sign column before labels of 0 and more.
class writer {
 public:
  // The prefix is for key numbers and ink numbers; without one, they have the prefix of unknown film, "XX000000".
  // What exceeds LabelPoint::prefix_length is left out.
  explicit writer(label_t type, std::string_view prefix = "", label_style style = label_style::own);

  // Returns the label of a sample, or an empty text if it has none. Valid until the next call. Allocates nothing.
  [[nodiscard]] std::string_view write(int sample) { return {text_, write(sample, text_)}; }

  // Writes the label of a sample to the start of `out`, without a terminator. Returns its length, or 0 if the
  // sample has no label or the label has more characters than `out`, which may then hold some of them.
  [[nodiscard]] std::size_t write(int sample, std::span<char> out);

 private:
  // A converter remembers what it last wrote. With one of their own, writers on several threads never mix up their
  // prefixes, and do not wait for each other's memory. Null if the host has no memory: the shared one serves then.
  std::unique_ptr<label_cvt> own_converter_;
  LabelPoint negative_;
  LabelPoint positive_;
  sample_range range_;
  char text_[LabelPoint::text_length] = {};
  std::size_t exchange_digits_;  // behind the separator that exchange style replaces; 0 for other styles
};

}  // namespace labelcheck
