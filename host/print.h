// The host's diagnostic print.
#pragma once

// Prints for whoever looks after the system, in the manner of printf. Never stops the program.
[[gnu::format(printf, 1, 2)]] void diagnostic_print(char const* format, ...);
