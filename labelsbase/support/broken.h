// The message of a broken assumption.
#pragma once

namespace labelsbase {

// Prints "assertion failed EXPRESSION at MODULE line N\n" on standard output, whole. The program goes on: the
// caller returns a defined result.
void broken(char const* expression, char const* module, int line = __builtin_LINE()) noexcept;

inline constexpr char labelcvt_module[] = "labelsbase/labelcvt";

}  // namespace labelsbase
