#include "labelsbase/labelcvt/registry.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>

#include "labelsbase/labelcvt/feet.h"
#include "labelsbase/labelcvt/film_frames.h"
#include "labelsbase/labelcvt/ink.h"
#include "labelsbase/labelcvt/invalid_converter.h"
#include "labelsbase/labelcvt/keycode.h"
#include "labelsbase/labelcvt/timecode.h"
#include "labelsbase/support/broken.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

using maker = label_cvt* (*)();

template <class Cvt>
label_cvt* make() {
  if constexpr (std::is_base_of_v<timecode_label, Cvt>) {
    auto* const made = new Cvt(Format_full);
    use_one_pass(*made);
    return made;
  } else {
    return new Cvt();
  }
}

template <class... Cvts>
constexpr auto makers_of() noexcept {
  std::array<maker, numLabelCvts> makers{};
  ((makers[Cvts::kind] = &make<Cvts>), ...);
  return makers;
}

// The makers by type. Types without a class here have the invalid converter.
// clang-format off
constexpr auto makers = makers_of<
    pal_label, ntsc_label, ntsc_drop_label, tc_24_label, tc_48_label, tc_50_label, tc_60_label,
    tc_50_duration_label, tc_60_duration_label, tc_12_label, tc_15_label, tc_20_label, tc_80_label,
    tc_90_label, tc_100_label, tc_120_label, tc_240_label,
    keycode_35_label, keycode_35_label_4, keycode_35_label_5, keycode_35_label_6,
    keycode_16_label, keycode_16_label_4, keycode_16_label_5, keycode_16_label_6,
    keycode_353_label, keycode_353_label_4, keycode_353_label_5, keycode_353_label_6,
    keycode_352_label, keycode_358_label, keycode_655_80_label, keycode_658_80_label, keycode_6510_80_label,
    keycode_655_120_label, keycode_658_120_label, keycode_6510_120_label, keycode_6515_120_label,
    ink_35_label, ink_16_label, foot_35_label, foot_16_label, foot_353_label, film_frames_label>();
// clang-format on

maker maker_of(label_t type) noexcept {
  return is_label_type(type) ? makers[static_cast<std::size_t>(type)] : nullptr;
}

using converters = std::array<label_cvt*, numLabelCvts>;

// Never freed: points hold on to these to the last.
converters const& shared_converters() {
  static converters const all = [] {
    converters made;
    std::ranges::transform(makers, made.begin(), [](maker make_one) -> label_cvt* {
      return make_one ? make_one() : &invalid_converter.converter;
    });
    return made;
  }();
  return all;
}

}  // namespace

label_cvt* get_static_label_cvt(label_t type) {
  auto const& shared = shared_converters();
  if (is_label_type(type)) return shared[static_cast<std::size_t>(type)];
  broken("false", labelcvt_module);
  return &invalid_converter.converter;
}

label_t get_label_type(char const* name) {
  auto const& shared = shared_converters();
  auto const found = std::ranges::find(shared, std::string_view{or_empty(name)},
                                       [](label_cvt const* cvt) { return std::string_view{cvt->type_str()}; });
  return found == shared.end() ? null_label_t : static_cast<label_t>(found - shared.begin());
}

label_cvt* make_any_label_cvt(label_t type) {
  maker const make_one = maker_of(type);
  return make_one ? make_one() : new dummy_label();
}
