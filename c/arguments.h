// What all functions of the C interface do with their arguments.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>
#include <new>
#include <optional>
#include <string_view>

#include "labelcheck/read.h"
#include "labelsbase/c.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace labels_c {

inline constexpr labels_fault no_fault{};

// Writes as much of a struct as the caller knows.
template <typename Struct>
void give(Struct const& value, Struct* out, std::size_t size) noexcept {
  if (out) std::memcpy(static_cast<void*>(out), &value, std::min(size, sizeof value));
}

// Returns a struct with as much of it as the caller knows, and zeros behind.
template <typename Struct>
[[nodiscard]] Struct taken(Struct const* in, std::size_t size) noexcept {
  Struct value{};
  std::memcpy(static_cast<void*>(&value), in, std::min(size, sizeof value));
  return value;
}

// Copies a text, cut to the room that there is.
template <std::size_t size>
void put(char (&out)[size], std::string_view text) noexcept {
  out[text.copy(out, size - 1)] = '\0';
}

// The text of an argument. A null pointer is accepted if the length is 0.
class text_argument {
 public:
  text_argument(char const* text, std::size_t length) noexcept {
    if (!text && length != 0) return;
    if (length == LABELS_TERMINATED) length = std::strlen(text);
    if (length <= std::numeric_limits<std::ptrdiff_t>::max()) view_ = std::string_view{text ? text : "", length};
  }

  [[nodiscard]] bool is_text() const noexcept { return view_.has_value(); }
  [[nodiscard]] std::string_view view() const noexcept { return *view_; }

 private:
  std::optional<std::string_view> view_{};
};

// Where a function reports what is wrong.
class fault_argument {
 public:
  fault_argument(labels_fault* out, std::size_t size) noexcept : out_{out}, size_{size} {}

  [[nodiscard]] labels_status none() const noexcept {
    give(no_fault, out_, size_);
    return LABELS_OK;
  }

  // Reports a message, or the words for the status, and returns the status.
  [[nodiscard]] labels_status is(labels_status status, std::string_view message = {},
                                 std::string_view nearest = {}) const noexcept {
    labels_fault fault{};
    put(fault.message, message.empty() ? labels_status_text(status) : message);
    put(fault.nearest, nearest);
    fault.field = "";
    fault.reason = -1;
    give(fault, out_, size_);
    return status;
  }

  [[nodiscard]] labels_status is(labelcheck::refusal const& refused) const {
    labels_fault fault{};
    put(fault.message, labelcheck::explain(refused));
    put(fault.nearest, refused.nearest);
    fault.field = labelcheck::field_name(refused.wrong);
    fault.position = refused.position;
    fault.reason = static_cast<int32_t>(refused.why);
    give(fault, out_, size_);
    return refused.why == labelcheck::reason::no_labels ? LABELS_UNKNOWN : LABELS_REFUSED;
  }

 private:
  labels_fault* out_;
  std::size_t size_;
};

// Returns what `work` returns. No exception goes further.
template <typename Work>
[[nodiscard]] labels_status answer(fault_argument const& fault, Work work) noexcept {
  try {
    return work();
  } catch (std::bad_alloc const&) {
    return fault.is(LABELS_NO_MEMORY);
  } catch (...) {
    return fault.is(LABELS_FAILED);
  }
}

template <typename Work>
[[nodiscard]] labels_status answer(Work work) noexcept {
  return answer({nullptr, 0}, work);
}

[[nodiscard]] inline bool has_labels(int32_t type) noexcept {
  return labelsbase::facts_of(static_cast<label_t>(type)).has_labels();
}

// Reports that a type has no labels.
[[nodiscard]] inline labels_status no_labels(int32_t type, fault_argument const& fault) {
  return fault.is(labelcheck::refusal{.why = labelcheck::reason::no_labels, .type = static_cast<label_t>(type)});
}

// Writes how many items an array was refused, and returns the status that says so.
[[nodiscard]] inline labels_status count_refused(std::size_t count, std::size_t* refused) noexcept {
  if (refused) *refused = count;
  return count > 0 ? LABELS_REFUSED : LABELS_OK;
}

}  // namespace labels_c
