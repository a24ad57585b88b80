// Labels in NumPy arrays of fixed-width texts: bytes ("S") or code points ("U"), filled up with zeros. See
// arrays.cpp.

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core.h"
#include "labelcheck/write.h"
#include "rows.h"

namespace labels_python {
namespace {

namespace py = pybind11;

// --- Bytes ---

std::string_view text_at(input_row texts, py::ssize_t index) noexcept {
  auto const* const text = reinterpret_cast<char const*>(texts.at(index));
  auto size = static_cast<std::size_t>(texts.item);
  while (size > 0 && text[size - 1] == '\0') --size;
  return {text, size};
}

py::ssize_t write_bytes(labelcheck::writer& labels, input_row samples, output_row texts) {
  auto const width = static_cast<std::size_t>(texts.item);
  return first_refused(samples.count, [&](py::ssize_t i) {
    auto* const text = reinterpret_cast<char*>(texts.at(i));
    auto const length = labels.write(item_at<std::int32_t>(samples, i), {text, width});
    if (length == 0) return false;
    if (length < width) std::memset(text + length, 0, width - length);
    return true;
  });
}

std::optional<int> sample_of(labelcheck::label_reader read_label, illegal_labels illegal, std::string_view text) {
  auto const read = read_label(text);
  if (auto const* const label = std::get_if<labelcheck::reading>(&read)) return label->sample;
  std::string respelt;
  auto const label = read_illegal(std::get<labelcheck::refusal>(read), text, illegal, respelt);
  return label ? std::optional{label->sample} : std::nullopt;
}

py::ssize_t read_bytes(label_t type, illegal_labels illegal, input_row texts, output_row samples,
                       output_row refused) {
  auto const read_label = labelcheck::reader_of(type);
  return first_refused(samples.count, [&](py::ssize_t i) {
    auto const sample = sample_of(read_label, illegal, text_at(texts, i));
    set_item(samples, i, sample.value_or(labelsbase::invalid_sample));
    if (refused.first) set_item(refused, i, !sample);
    return sample || refused.first;
  });
}

// --- Code points ---

// The compiler makes these two loops take 16 characters at a time.
void narrow_run(std::byte const* from, std::byte* to, py::ssize_t characters) noexcept {
  for (py::ssize_t i = 0; i < characters; ++i) {
    char32_t code_point;
    std::memcpy(&code_point, from + i * py::ssize_t{sizeof code_point}, sizeof code_point);
    to[i] = static_cast<std::byte>(as_byte(code_point));
  }
}

void widen_run(std::byte const* from, std::byte* to, py::ssize_t characters) noexcept {
  for (py::ssize_t i = 0; i < characters; ++i) {
    auto const code_point = static_cast<char32_t>(from[i]);
    std::memcpy(to + i * py::ssize_t{sizeof code_point}, &code_point, sizeof code_point);
  }
}

// Converts items of one row into those of another: in one run if there is nothing between them.
template <class Convert>
void convert_items(input_row from, output_row to, Convert convert, py::ssize_t characters) noexcept {
  if (from.stride == from.item && to.stride == to.item)
    return convert(from.first, to.first, from.count * characters);
  for (py::ssize_t i = 0; i < from.count; ++i) convert(from.at(i), to.at(i), characters);
}

// Calls `work` with the index of an item, and with room for the bytes of the items from there on, until it refuses
// one. Takes some thousand characters at a time, which stay in the processor's cache.
template <class Work>
py::ssize_t in_blocks(py::ssize_t count, py::ssize_t width, Work work) {
  auto const items = std::max(py::ssize_t{4096} / std::max(width, py::ssize_t{1}), py::ssize_t{1});
  std::vector<std::byte> bytes(static_cast<std::size_t>(items * width));
  for (py::ssize_t start = 0; start < count; start += items) {
    output_row const block{bytes.data(), width, width, std::min(items, count - start)};
    if (auto const refused = work(start, block); refused >= 0) return start + refused;
  }
  return -1;
}

py::ssize_t write_code_points(labelcheck::writer& labels, input_row samples, output_row texts) {
  auto const width = texts.item / py::ssize_t{sizeof(char32_t)};
  return in_blocks(samples.count, width, [&](py::ssize_t start, output_row block) {
    auto const refused = write_bytes(labels, samples.part(start, block.count), block);
    auto const written = refused < 0 ? block.count : refused;
    convert_items(block.part(0, written), texts.part(start, written), widen_run, width);
    return refused;
  });
}

py::ssize_t read_code_points(label_t type, illegal_labels illegal, input_row texts, output_row samples,
                             output_row refused) {
  auto const width = texts.item / py::ssize_t{sizeof(char32_t)};
  return in_blocks(samples.count, width, [&](py::ssize_t start, output_row block) {
    convert_items(texts.part(start, block.count), block, narrow_run, width);
    return read_bytes(type, illegal, block, samples.part(start, block.count), refused.part(start, block.count));
  });
}

bool is_code_points(py::array const& array) { return array.dtype().kind() == 'U'; }

py::ssize_t write_texts(label_t type, std::string const& prefix, labelcheck::label_style style,
                        py::array const& samples, py::array texts) {
  labelcheck::writer labels{type, prefix, style};
  auto const write = is_code_points(texts) ? write_code_points : write_bytes;
  auto const from = items_of(samples);
  auto const to = items_of(texts);
  py::gil_scoped_release const others_may_run;
  return write(labels, from, to);
}

// Marks the labels that are refused in `refused`. Without it, ends at the first of them.
py::ssize_t read_texts(label_t type, illegal_labels illegal, py::array const& texts, py::array samples,
                       std::optional<py::array> refused) {
  auto const read = is_code_points(texts) ? read_code_points : read_bytes;
  auto const mask = refused ? items_of(*refused) : output_row{};
  auto const from = items_of(texts);
  auto const to = items_of(samples);
  py::gil_scoped_release const others_may_run;
  return read(type, illegal, from, to, mask);
}

}  // namespace

void add_text_arrays(py::module_& module) {
  module.def("write_texts", write_texts);
  module.def("read_texts", read_texts);
}

}  // namespace labels_python
