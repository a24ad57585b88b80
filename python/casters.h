// How values cross over: enumerations as plain numbers, for which Python has IntEnum, and texts byte by byte.
#pragma once

#include <pybind11/pybind11.h>

#include <string>

#include "labelcheck/read.h"
#include "labelsbase/MediumRoll/medium_roll.h"
#include "labelsbase/framecounts/count_types.h"
#include "labelsbase/uiflabels/label_choices.h"

namespace labels_python {

// A character as the library reads it. No label has characters beyond ASCII; they become one that no label has.
constexpr char as_byte(char32_t character) noexcept {
  return static_cast<char>(character < 0x80 ? character : 0xFF);
}

// A text with a byte for each character, so that positions count characters. Any str crosses over, lone surrogates
// too.
struct plain_text {
  std::string bytes{};
};

}  // namespace labels_python

namespace pybind11::detail {

template <>
struct type_caster<labels_python::plain_text> {
  PYBIND11_TYPE_CASTER(labels_python::plain_text, const_name("str"));

  bool load(handle text, bool) {
    if (!PyUnicode_Check(text.ptr())) return false;
    auto const length = PyUnicode_GetLength(text.ptr());
    value.bytes.resize(static_cast<std::size_t>(length));
    for (ssize_t i = 0; i < length; ++i)
      value.bytes[static_cast<std::size_t>(i)] = labels_python::as_byte(PyUnicode_ReadChar(text.ptr(), i));
    return true;
  }

  static handle cast(labels_python::plain_text const& text, return_value_policy, handle) {
    return PyUnicode_DecodeLatin1(text.bytes.data(), static_cast<ssize_t>(text.bytes.size()), nullptr);
  }
};

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
