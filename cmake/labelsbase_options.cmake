# labelsbase_options: warnings and sanitizers of this project's own targets. Link it as
# $<BUILD_INTERFACE:labelsbase_options>, so that it stays out of the installed package.
#
# labelsbase_tool_options: the same for the tool and the libraries that serve it, which read files.

option(LABELSBASE_WERROR "Treat compiler warnings as errors" OFF)
option(LABELSBASE_HARDEN "Harden what optimised builds make" ${PROJECT_IS_TOP_LEVEL})
set(LABELSBASE_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them: address,undefined or thread")

add_library(labelsbase_options INTERFACE)

target_compile_options(labelsbase_options INTERFACE
  "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=."  # nothing that is built depends on the folder of the sources
  -Wall -Wextra -Wpedantic
  -Wcast-align -Wcast-qual -Wconversion -Wdouble-promotion -Wextra-semi -Wformat=2 -Wimplicit-fallthrough
  -Wmissing-declarations -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wshadow -Wsign-conversion
  -Wundef -Wunused
  -Wno-format-nonliteral  # tests compare with snprintf and sscanf, format by format
  -Wno-trigraphs          # "???" is the text of an invalid label
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-branches -Wduplicated-cond -Wlogical-op -Wsuggest-override>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # g++ 12 at -O3 mistakes the standard string's own copies for overlapping
  $<$<BOOL:${LABELSBASE_WERROR}>:-Werror>)

if(LABELSBASE_SANITIZE)
  target_compile_options(labelsbase_options INTERFACE
    -fsanitize=${LABELSBASE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    $<$<CXX_COMPILER_ID:Clang>:-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/sanitize_ignored.txt>
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)  # g++ 12 mistakes instrumented standard functions
  target_compile_definitions(labelsbase_options INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(labelsbase_options INTERFACE -fsanitize=${LABELSBASE_SANITIZE})
endif()

add_library(labelsbase_tool_options INTERFACE)
target_link_libraries(labelsbase_tool_options INTERFACE labelsbase_options)

# Everywhere what costs nothing. Checks at each call, jump and copy would cost conversions 2 to 44 %: docs/evidence.md.
if(LABELSBASE_HARDEN AND NOT LABELSBASE_SANITIZE)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  target_compile_options(labelsbase_options INTERFACE $<$<NOT:$<CONFIG:Debug>>:-fstack-clash-protection>)
  target_link_options(labelsbase_options INTERFACE LINKER:-z,relro,-z,now,-z,noexecstack)
  target_compile_options(labelsbase_tool_options INTERFACE
    $<$<NOT:$<CONFIG:Debug>>:-fstack-protector-strong>
    "$<$<NOT:$<CONFIG:Debug>>:SHELL:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3>")  # instead of what packagers define
endif()
