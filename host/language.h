// What every public header needs of the compiler.
#pragma once

#if __cplusplus < 202002L
#error "labelsbase needs C++20: compile with -std=c++20 or later"
#endif
