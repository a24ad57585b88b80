#include "labelsbase/labelcvt/registry.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <type_traits>

#include "labelsbase/labelcvt/feet.h"
#include "labelsbase/labelcvt/film_frames.h"
#include "labelsbase/labelcvt/ink.h"
#include "labelsbase/labelcvt/invalid_converter.h"
#include "labelsbase/labelcvt/keycode.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/timecode.h"
#include "labelsbase/labelcvt/type_by_name.h"
#include "labelsbase/support/broken.h"
#include "labelsbase/support/enumerators.h"
#include "labelsbase/support/memory.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// Reaches what a family keeps for the classes below it. A converter made here is of the named class itself, so
// nothing overrides its arithmetic.
template <class Family>
struct settled : Family {
  static label_cvt* settle(Family* converter) noexcept {
    (converter->*&settled::settle_arithmetic)();
    return converter;
  }
};

template <class Cvt>
label_cvt* make() {
  if constexpr (std::is_base_of_v<timecode_label, Cvt>) {
    return settled<timecode_label>::settle(new Cvt(Format_full));
  } else if constexpr (std::is_base_of_v<prefix_label, Cvt>) {
    return settled<prefix_label>::settle(new Cvt());
  } else {
    return new Cvt();
  }
}

using maker = label_cvt* (*)();

template <class... Cvts>
struct class_list {
  static constexpr auto makers = [] {
    std::array<maker, numLabelCvts> by_type{};
    ((by_type[Cvts::kind] = &make<Cvts>), ...);
    return by_type;
  }();

  [[nodiscard]] static consteval bool has(label_t type) { return ((Cvts::kind == type) || ...); }
};

// The classes, by which their types have labels. All other types have the invalid converter.
using classes =
    class_list<pal_label, ntsc_label, ntsc_drop_label, tc_24_label, tc_48_label, tc_50_label, tc_60_label,
               tc_50_duration_label, tc_60_duration_label, tc_12_label, tc_15_label, tc_20_label, tc_80_label,
               tc_90_label, tc_100_label, tc_120_label,
               tc_240_label,                                                                                  //
               keycode_35_label, keycode_35_label_4, keycode_35_label_5, keycode_35_label_6,                  //
               keycode_16_label, keycode_16_label_4, keycode_16_label_5, keycode_16_label_6,                  //
               keycode_353_label, keycode_353_label_4, keycode_353_label_5, keycode_353_label_6,              //
               keycode_352_label, keycode_358_label,                                                          //
               keycode_655_80_label, keycode_658_80_label, keycode_6510_80_label,                             //
               keycode_655_120_label, keycode_658_120_label, keycode_6510_120_label, keycode_6515_120_label,  //
               ink_35_label, ink_16_label, foot_35_label, foot_16_label, foot_353_label, film_frames_label>;

[[nodiscard]] consteval label_t first_without_class() {
  for (auto const& facts : all_label_facts)
    if (facts.has_labels() && !classes::has(facts.type)) return facts.type;
  return null_label_t;
}

static_assert(has_no_name<label_t{numLabelCvts}>, "numLabelCvts is one more than the last label type");
static_assert(is_null<first_without_class()>, "this label type has labels, but its class is not in the list");

using converters = std::array<label_cvt*, numLabelCvts>;

// While a thread builds the registry, the host answers for its settings. A host that asks for a label then gets
// the invalid converter.
thread_local bool is_building = false;

converters build_converters() noexcept {
  converters made;
  is_building = true;
  std::ranges::transform(classes::makers, made.begin(), [](maker make_one) -> label_cvt* {
    auto* const converter = make_one ? null_on_throw(make_one) : nullptr;
    return converter ? converter : &invalid_converter.converter;
  });
  is_building = false;
  return made;
}

constinit std::atomic<converters const*> shared_converters{nullptr};

// Builds the shared converters, once. Returns null while this thread builds them. They are never freed: points
// hold on to them to the last.
[[gnu::noinline]] converters const* build_shared_converters() {
  if (is_building) return nullptr;
  static converters const all = build_converters();
  shared_converters.store(&all, std::memory_order_release);
  return &all;
}

}  // namespace

label_cvt* get_static_label_cvt(label_t type) {
  auto const* shared = shared_converters.load(std::memory_order_acquire);
  if (!shared) shared = build_shared_converters();
  if (!shared) return &invalid_converter.converter;
  if (is_label_type(type)) return (*shared)[static_cast<std::size_t>(type)];
  broken("false", labelcvt_module);
  return &invalid_converter.converter;
}

label_t get_label_type(char const* name) {
  label_t const type = all_types_by_name.find(or_empty(name));
  return get_static_label_cvt(type) == &invalid_converter.converter ? null_label_t : type;
}

label_cvt* make_any_label_cvt(label_t type) {
  auto const row = static_cast<std::size_t>(is_label_type(type) ? type : null_label_t);
  maker const make_one = classes::makers[row];
  return null_on_throw(make_one ? make_one : make<dummy_label>);
}
