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

// Returns the first enumerator from 0 to `count` - 1 that `has` denies, or the value `count`, which should have no
// name.
template <typename Enum, int count>
[[nodiscard]] consteval Enum first_enumerator_without(bool (*has)(Enum) noexcept) {
  return [has]<int... values>(std::integer_sequence<int, values...>) {
    auto first = static_cast<Enum>(count);
    ((first == static_cast<Enum>(count) && is_enumerator<static_cast<Enum>(values)>() &&
              !has(static_cast<Enum>(values))
          ? void(first = static_cast<Enum>(values))
          : void()),
     ...);
    return first;
  }
  (std::make_integer_sequence<int, count>{});
}

}  // namespace labelsbase
