#!/usr/bin/env bash
# All memory of a shared labelsbase is the host's: it must not ask the program for any.
#   memory_of_host.sh LIBRARY
set -euo pipefail
wanted=$(nm --dynamic --undefined-only "$1")

if grep -E ' _Z(n[wa]|d[la])' <<<"$wanted"; then
  echo "The library takes or gives back memory through the program's operator new or delete above."
  exit 1
fi

# Streams live in the C++ runtime, whose memory is of the program's operator new; a text that one of them hands out
# would be freed here, by the library's operator delete.
if c++filt <<<"$wanted" | grep -E 'std::(__cxx11::)?(basic_[a-z]*(stream|buf|ios)|locale)\b'; then
  echo "The library uses the streams above, whose memory would cross allocators."
  exit 1
fi
