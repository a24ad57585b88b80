// The values of settings as text.
#pragma once

#include <optional>
#include <string_view>

#include "host/frame_rate.h"
#include "host/output.h"

namespace refhost {

// Parses the whole text, in upper or lower case, into `value`. Returns false and leaves `value` unchanged if the
// text is not a value of the type.
[[nodiscard]] bool read_value(std::string_view text, bool& value);
[[nodiscard]] bool read_value(std::string_view text, Kiv::FrameRate& value);
[[nodiscard]] bool read_value(std::string_view text, std::optional<Kiv::FrameRate>& value);
[[nodiscard]] bool read_value(std::string_view text, Kiv::Image::ScanMode& value);

// Describes for messages what read_value accepts for a type.
template <typename Value>
inline constexpr char const* expected_value = nullptr;
template <>
inline constexpr char const* expected_value<bool> = "yes, no, true, false, 1 or 0";
template <>
inline constexpr char const* expected_value<Kiv::FrameRate> =
    "a frame rate (24, 23.976, 29.97, 30000/1001, 12.5 ...) or code:NUMBER";
template <>
inline constexpr char const* expected_value<std::optional<Kiv::FrameRate>> =
    "a frame rate (24, 23.976, 29.97, 30000/1001, 12.5 ...), code:NUMBER or project";
template <>
inline constexpr char const* expected_value<Kiv::Image::ScanMode> =
    "progressive, segmented, upper-first, lower-first or code:NUMBER";

}  // namespace refhost
