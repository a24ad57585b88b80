// Loops over NumPy arrays. Each function takes one-dimensional arrays of one length, with any stride, and releases
// the interpreter's lock while it runs. It returns the index of the first item that it refuses, or -1 if there is
// none. The package hands over arrays of other shapes piece by piece, in the types that are read and written here.

#include <pybind11/numpy.h>

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
#include "labelconvert/conversion.h"

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

// Reads items as texts, which a terminator follows. A text is valid until the next one is read.
template <class Character>
class text_items {
 public:
  explicit text_items(row<std::byte const> const& items)
      : items_{items}, characters_(static_cast<std::size_t>(items.item) / sizeof(Character), '\0') {}

  [[nodiscard]] std::string_view at(py::ssize_t index) noexcept {
    auto const* from = items_.at(index);
    std::size_t size = 0;
    for (std::size_t i = 0; i < characters_.size(); ++i, from += sizeof(Character)) {
      Character character;
      std::memcpy(&character, from, sizeof character);
      characters_[i] = as_byte(character);
      if (character != 0) size = i + 1;
    }
    return {characters_.data(), size};
  }

 private:
  row<std::byte const> items_;
  std::string characters_;
};

template <class Character>
bool set_text(row<std::byte> const& items, py::ssize_t index, std::string_view text) noexcept {
  auto const width = static_cast<std::size_t>(items.item) / sizeof(Character);
  if (text.empty() || text.size() > width) return false;
  auto* to = items.at(index);
  for (char const c : text) {
    auto const character = static_cast<Character>(static_cast<unsigned char>(c));
    std::memcpy(to, &character, sizeof character);
    to += sizeof character;
  }
  std::memset(to, 0, (width - text.size()) * sizeof(Character));
  return true;
}

py::ssize_t write_texts(label_t type, std::string const& prefix, labelcheck::label_style style,
                        py::array const& samples, py::array texts) {
  labelcheck::writer labels{type, prefix, style};
  auto const from = items_of(samples);
  auto const to = items_of(texts);
  if (is_code_points(texts))
    return first_refused(from.count, [&](py::ssize_t i) {
      return set_text<char32_t>(to, i, labels.write(item_at<std::int32_t>(from, i)));
    });
  return first_refused(from.count, [&](py::ssize_t i) {
    return set_text<unsigned char>(to, i, labels.write(item_at<std::int32_t>(from, i)));
  });
}

// Fills `samples`, and `refused` where a label is refused. With `stop`, ends at the first of them.
template <class Character>
py::ssize_t read_texts_of(label_t type, illegal_labels illegal, row<std::byte const> const& from,
                          row<std::byte> const& samples, row<std::byte> const& refused, bool stop) {
  text_items<Character> texts{from};
  std::string respelt;
  return first_refused(from.count, [&](py::ssize_t i) {
    auto const text = texts.at(i);
    auto const read = labelcheck::read(type, text);
    auto const* label = std::get_if<labelcheck::reading>(&read);
    std::optional<labelcheck::reading> illegal_label;
    if (!label) {
      illegal_label = read_illegal(std::get<labelcheck::refusal>(read), text, illegal, respelt);
      if (illegal_label) label = &*illegal_label;
    }
    set_item(samples, i, label ? label->sample : labelsbase::invalid_sample);
    set_item(refused, i, label == nullptr);
    return label || !stop;
  });
}

py::ssize_t read_texts(label_t type, illegal_labels illegal, py::array const& texts, py::array samples,
                       py::array refused, bool stop) {
  auto const read = is_code_points(texts) ? read_texts_of<char32_t> : read_texts_of<unsigned char>;
  return read(type, illegal, items_of(texts), items_of(samples), items_of(refused), stop);
}

py::ssize_t convert_samples(labelconvert::conversion const& conversion, bool exact, py::array const& samples,
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
