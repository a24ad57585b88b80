// Loops over NumPy arrays. Each function takes one-dimensional arrays of one length, with any stride, and releases
// the interpreter's lock while it runs. It returns the index of the first item that it refuses, or -1 if there is
// none. The package hands over arrays of other shapes piece by piece, in the types that are read and written here.

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "core.h"
#include "labelcheck/sums.h"
#include "labelcheck/write.h"

namespace labels_python {
namespace {

namespace py = pybind11;

// One dimension of an array: items of a fixed size at equal distances.
template <class Byte>
struct row {
  Byte* first;
  py::ssize_t stride;  // bytes from item to item
  py::ssize_t item;    // bytes of an item
  py::ssize_t count;

  [[nodiscard]] Byte* at(py::ssize_t index) const noexcept { return first + index * stride; }
};

row<std::byte const> items_of(py::array const& array) {
  return {static_cast<std::byte const*>(array.data()), array.strides(0), array.itemsize(), array.shape(0)};
}

row<std::byte> items_of(py::array& array) {
  return {static_cast<std::byte*>(array.mutable_data()), array.strides(0), array.itemsize(), array.shape(0)};
}

template <class Item>
Item item_at(row<std::byte const> const& items, py::ssize_t index) noexcept {
  Item item;
  std::memcpy(&item, items.at(index), sizeof item);
  return item;
}

template <class Item>
void set_item(row<std::byte> const& items, py::ssize_t index, Item item) noexcept {
  std::memcpy(items.at(index), &item, sizeof item);
}

// Calls `take` with every index until it returns false. Returns the index at which it did, or -1.
template <class Take>
py::ssize_t first_refused(py::ssize_t count, Take take) {
  py::gil_scoped_release const others_may_run;
  for (py::ssize_t index = 0; index < count; ++index)
    if (!take(index)) return index;
  return -1;
}

// Text items have a fixed number of characters, filled up with zeros: bytes ("S") or code points ("U").
bool is_code_points(py::array const& array) { return array.dtype().kind() == 'U'; }

std::string_view without_filling(char const* text, std::size_t size) noexcept {
  while (size > 0 && text[size - 1] == '\0') --size;
  return {text, size};
}

// Reads items as texts. A text is valid until the next one is read. Bytes are read in place.
class byte_texts {
 public:
  explicit byte_texts(row<std::byte const> const& items) : items_{items} {}

  [[nodiscard]] std::string_view at(py::ssize_t index) const noexcept {
    return without_filling(reinterpret_cast<char const*>(items_.at(index)), static_cast<std::size_t>(items_.item));
  }

 private:
  row<std::byte const> items_;
};

class code_point_texts {
 public:
  explicit code_point_texts(row<std::byte const> const& items)
      : items_{items}, characters_(static_cast<std::size_t>(items.item) / sizeof(char32_t), '\0') {}

  [[nodiscard]] std::string_view at(py::ssize_t index) noexcept {
    auto const* from = items_.at(index);
    for (auto& character : characters_) {
      char32_t code_point;
      std::memcpy(&code_point, from, sizeof code_point);
      character = as_byte(code_point);
      from += sizeof code_point;
    }
    return without_filling(characters_.data(), characters_.size());
  }

 private:
  row<std::byte const> items_;
  std::string characters_;
};

bool set_bytes(row<std::byte> const& items, py::ssize_t index, std::string_view text) noexcept {
  auto const width = static_cast<std::size_t>(items.item);
  if (text.empty() || text.size() > width) return false;
  auto* const to = items.at(index);
  std::memcpy(to, text.data(), text.size());
  if (text.size() < width) std::memset(to + text.size(), 0, width - text.size());
  return true;
}

bool set_code_points(row<std::byte> const& items, py::ssize_t index, std::string_view text) noexcept {
  auto const width = static_cast<std::size_t>(items.item) / sizeof(char32_t);
  if (text.empty() || text.size() > width) return false;
  auto* to = items.at(index);
  for (char const c : text) {
    auto const code_point = static_cast<char32_t>(static_cast<unsigned char>(c));
    std::memcpy(to, &code_point, sizeof code_point);
    to += sizeof code_point;
  }
  if (text.size() < width) std::memset(to, 0, (width - text.size()) * sizeof(char32_t));
  return true;
}

py::ssize_t write_texts(label_t type, std::string const& prefix, labelcheck::label_style style,
                        py::array const& samples, py::array texts) {
  labelcheck::writer labels{type, prefix, style};
  auto const from = items_of(samples);
  auto const to = items_of(texts);
  if (is_code_points(texts))
    return first_refused(from.count, [&](py::ssize_t i) {
      return set_code_points(to, i, labels.write(item_at<std::int32_t>(from, i)));
    });
  return first_refused(
      from.count, [&](py::ssize_t i) { return set_bytes(to, i, labels.write(item_at<std::int32_t>(from, i))); });
}

template <class Texts>
py::ssize_t read_texts_of(label_t type, illegal_labels illegal, Texts texts, row<std::byte> const& samples,
                          row<std::byte> const& refused) {
  std::string respelt;
  return first_refused(samples.count, [&](py::ssize_t i) {
    auto const text = texts.at(i);
    auto const read = labelcheck::read(type, text);
    auto const* const label = std::get_if<labelcheck::reading>(&read);
    auto const taken =
        label ? std::optional{*label} : read_illegal(std::get<labelcheck::refusal>(read), text, illegal, respelt);
    set_item(samples, i, taken ? taken->sample : labelsbase::invalid_sample);
    if (refused.first) set_item(refused, i, !taken);
    return taken || refused.first;
  });
}

// Marks the labels that are refused in `refused`. Without it, ends at the first of them.
py::ssize_t read_texts(label_t type, illegal_labels illegal, py::array const& texts, py::array samples,
                       std::optional<py::array> refused) {
  auto const mask = refused ? items_of(*refused) : row<std::byte>{};
  auto const from = items_of(texts);
  return is_code_points(texts) ? read_texts_of(type, illegal, code_point_texts{from}, items_of(samples), mask)
                               : read_texts_of(type, illegal, byte_texts{from}, items_of(samples), mask);
}

py::ssize_t convert_samples(label_conversion const& conversion, bool exact, py::array const& samples,
                            py::array converted) {
  auto const from = items_of(samples);
  auto const to = items_of(converted);
  return first_refused(from.count, [&](py::ssize_t i) {
    auto const answer = conversion.of(item_at<std::int32_t>(from, i));
    if (!answer || (exact && !answer->is_exact())) return false;
    set_item(to, i, answer->sample);
    return true;
  });
}

// `counts` are 64-bit numbers of samples.
py::ssize_t add_counts(label_t type, py::array const& samples, py::array const& counts, py::array sums) {
  LabelPoint start{type, 0};
  auto const from = items_of(samples);
  auto const by = items_of(counts);
  auto const to = items_of(sums);
  return first_refused(from.count, [&](py::ssize_t i) {
    start.sample = item_at<std::int32_t>(from, i);
    auto const [sample, problem] = labelcheck::add_samples(start, item_at<std::int64_t>(by, i));
    set_item(to, i, sample);
    return problem == nullptr;
  });
}

py::ssize_t subtract(label_t type, py::array const& from_samples, py::array const& samples,
                     py::array differences) {
  LabelPoint a{type, 0};
  LabelPoint b{type, 0};
  auto const from = items_of(from_samples);
  auto const less = items_of(samples);
  auto const to = items_of(differences);
  return first_refused(from.count, [&](py::ssize_t i) {
    a.sample = item_at<std::int32_t>(from, i);
    b.sample = item_at<std::int32_t>(less, i);
    if (!labelcheck::is_sample(std::int64_t{a.sample} - b.sample)) return false;
    set_item(to, i, (a - b).sample);
    return true;
  });
}

}  // namespace

void add_arrays(py::module_& module) {
  module.def("write_texts", write_texts);
  module.def("read_texts", read_texts);
  module.def("convert_samples", convert_samples);
  module.def("add_counts", add_counts);
  module.def("subtract", subtract);
}

}  // namespace labels_python
