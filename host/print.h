// The host's diagnostic print.
#pragma once

#include "host/language.h"

// Prints a message for the maintainers of the system, formatted as printf does. Must return: messages are
// warnings, never the end of the program.
[[gnu::format(printf, 1, 2)]] void diagnostic_print(char const* format, ...);
