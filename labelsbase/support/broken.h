// The assertion message.
#pragma once

namespace labelsbase {

// Prints "assertion failed EXPRESSION at MODULE line N\n" on standard output, in one piece. The program goes on,
// and the caller returns a defined result.
void broken(char const* expression, char const* module, int line = __builtin_LINE()) noexcept;

inline constexpr char labelcvt_module[] = "labelsbase/labelcvt";

}  // namespace labelsbase
