// Private: the strict reader of timecode.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "labelcheck/read.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/registry.h"

namespace labelcheck {

// How the labels of a type look and count.
struct timecode_form {
  labelsbase::timecode_facts const& facts;
  int frames_per_second;  // after the host's setting

  [[nodiscard]] constexpr labelsbase::timecode_count count() const noexcept {
    return labelsbase::timecode_count{frames_per_second, facts.drop_frame};
  }
  [[nodiscard]] constexpr int last_frame() const noexcept { return frames_per_second - 1; }
};

// Returns the form of a type. Asks the library's converter how the host's setting has 50 and 60 frame timecode
// count: only it knows.
[[nodiscard]] inline timecode_form form_of(labelsbase::label_facts const& facts) {
  auto const& timecode = facts.timecode;
  return {timecode,
          timecode.setting ? get_static_label_cvt(facts.type)->get_modulus() : timecode.frames_per_second};
}

// As read, for a type of timecode: explains what is wrong with a text that the quick parser has refused.
[[nodiscard]] std::variant<reading, refusal> explain_timecode(labelsbase::label_facts const& facts,
                                                              std::string_view text);

// Reads as much as people would, and moves each number to the nearest that exists. Returns an empty text if
// nothing is legible.
//
//   blank* ("-" | "+")? blank* digit*, then up to three times: mark blank* digit*       mark: one of :;.,+-
//   blank* ("-" | "+")? blank* digit+ blank*                                           packed: "1000000"
//
// Packed digits are those of a whole label; only the first may be left out. Skips other characters behind the
// digits of a field. Fields that are left out are 0. `is_slow` is timecode of two samples a frame: ":" before the
// frames marks the second one.
[[nodiscard]] std::string nearest_timecode(timecode_form const& form, bool is_slow, std::string_view text);

}  // namespace labelcheck
