// One dimension of an array, as the loops over arrays see it.
#pragma once

#include <pybind11/numpy.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace labels_python {

// Items of a fixed size at equal distances. They may stand at any address, so that fields of records do.
template <class Byte>
struct row {
  Byte* first;
  pybind11::ssize_t stride;  // bytes from item to item
  pybind11::ssize_t item;    // bytes of an item
  pybind11::ssize_t count;

  [[nodiscard]] Byte* at(pybind11::ssize_t index) const noexcept { return first + index * stride; }

  [[nodiscard]] row part(pybind11::ssize_t start, pybind11::ssize_t size) const noexcept {
    return {at(start), stride, item, size};
  }

  operator row<Byte const>() const noexcept requires(!std::is_const_v<Byte>) {
    return {first, stride, item, count};
  }
};

using input_row = row<std::byte const>;
using output_row = row<std::byte>;

inline input_row items_of(pybind11::array const& array) {
  return {static_cast<std::byte const*>(array.data()), array.strides(0), array.itemsize(), array.shape(0)};
}

inline output_row items_of(pybind11::array& array) {
  return {static_cast<std::byte*>(array.mutable_data()), array.strides(0), array.itemsize(), array.shape(0)};
}

template <class Item>
Item item_at(input_row const& items, pybind11::ssize_t index) noexcept {
  Item item;
  std::memcpy(&item, items.at(index), sizeof item);
  return item;
}

template <class Item>
void set_item(output_row const& items, pybind11::ssize_t index, Item item) noexcept {
  std::memcpy(items.at(index), &item, sizeof item);
}

// Calls `take` with every index until it returns false. Returns the index at which it did, or -1.
template <class Take>
pybind11::ssize_t first_refused(pybind11::ssize_t count, Take take) {
  for (pybind11::ssize_t index = 0; index < count; ++index)
    if (!take(index)) return index;
  return -1;
}

}  // namespace labels_python
