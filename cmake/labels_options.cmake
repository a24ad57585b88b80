# labels_options: warnings and sanitizers of this project's own targets. Link it as
# $<BUILD_INTERFACE:labels_options>, so that it stays out of the installed package.

option(LABELS_WERROR "Treat compiler warnings as errors" OFF)
set(LABELS_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them: address,undefined or thread")

add_library(labels_options INTERFACE)

target_compile_options(labels_options INTERFACE
  -Wall -Wextra -Wpedantic
  -Wcast-align -Wcast-qual -Wconversion -Wdouble-promotion -Wextra-semi -Wformat=2 -Wimplicit-fallthrough
  -Wmissing-declarations -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wshadow -Wsign-conversion
  -Wundef -Wunused
  -Wno-format-nonliteral  # tests compare with snprintf and sscanf, format by format
  -Wno-trigraphs          # "???" is the text of an invalid label
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-branches -Wduplicated-cond -Wlogical-op -Wsuggest-override>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # g++ 12 at -O3 mistakes the standard string's own copies for overlapping
  $<$<BOOL:${LABELS_WERROR}>:-Werror>)

if(LABELS_SANITIZE)
  target_compile_options(labels_options INTERFACE
    -fsanitize=${LABELS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_definitions(labels_options INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(labels_options INTERFACE -fsanitize=${LABELS_SANITIZE})
endif()
