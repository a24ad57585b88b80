// Which values of an enumeration have names: so the compiler can say which one a table forgot.
#pragma once

#include <string_view>
#include <utility>

namespace labelsbase {

// Returns whether `value` is an enumerator. The compiler writes "value = Kiv::FrameRate_24" into the name of this
// function for an enumerator, and "value = (Kiv::FrameRate)31" for any other value.
template <auto value>
[[nodiscard]] consteval bool is_enumerator() noexcept {
  constexpr std::string_view key{"value = "};
  std::string_view const name{__PRETTY_FUNCTION__};
  return name[name.rfind(key) + key.size()] != '(';
}

// What the assertions about tables ask of the first entry at fault. As these are concepts, the compiler says which
// entry it is: g++ writes "value = Kiv::FrameRate_24", clang "(Kiv::FrameRate)1".
//
// Whether nothing is at fault: the value is 0, that of null_label_t, Medium_none and FrameRate_unknown.
template <auto value>
concept is_null = value == decltype(value){};

// Whether nothing is at fault: the value is a number without an enumerator, behind the last one.
template <auto value>
concept has_no_name = !is_enumerator<value>();

// Returns the first enumerator from 0 to `count` - 1 that `has` denies, or the value `count`, which should have no
// name.
template <typename Enum, int count>
[[nodiscard]] consteval Enum first_enumerator_without(bool (*has)(Enum) noexcept) {
  return [has]<int... values>(std::integer_sequence<int, values...>) {
    bool const is_named[] = {is_enumerator<static_cast<Enum>(values)>()...};
    int value = 0;
    while (value < count && (!is_named[value] || has(static_cast<Enum>(value)))) ++value;
    return static_cast<Enum>(value);
  }
  (std::make_integer_sequence<int, count>{});
}

}  // namespace labelsbase
