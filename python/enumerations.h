// Enumerations of the library cross over as plain numbers: Python's own IntEnum stands for them there.
#pragma once

#include <pybind11/pybind11.h>

#include "labelcheck/read.h"
#include "labelsbase/MediumRoll/medium_roll.h"
#include "labelsbase/framecounts/count_types.h"
#include "labelsbase/uiflabels/label_choices.h"

namespace pybind11::detail {

template <class Enumeration>
struct number_caster {
  PYBIND11_TYPE_CASTER(Enumeration, const_name("int"));

  bool load(handle number, bool convert) {
    make_caster<int> read;
    if (!read.load(number, convert)) return false;
    value = static_cast<Enumeration>(static_cast<int>(read));
    return true;
  }

  static handle cast(Enumeration number, return_value_policy, handle) {
    return PyLong_FromLong(static_cast<long>(number));
  }
};

template <>
struct type_caster<label_t> : number_caster<label_t> {};
template <>
struct type_caster<UserLabelType> : number_caster<UserLabelType> {};
template <>
struct type_caster<Kiv::FrameRate> : number_caster<Kiv::FrameRate> {};
template <>
struct type_caster<MediumRollMedium> : number_caster<MediumRollMedium> {};
template <>
struct type_caster<MediumRollGeneration> : number_caster<MediumRollGeneration> {};
template <>
struct type_caster<VagueUIFLabel> : number_caster<VagueUIFLabel> {};
template <>
struct type_caster<transfer_type> : number_caster<transfer_type> {};
template <>
struct type_caster<label_type> : number_caster<label_type> {};

}  // namespace pybind11::detail
