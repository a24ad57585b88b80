#!/usr/bin/env bash
# Compares what a shared labelsbase shows to the outside with the list that is kept beside this script.
#   exported_symbols.sh LIBRARY            compare
#   exported_symbols.sh --update LIBRARY   write the list anew
set -euo pipefail
export LC_ALL=C

list=$(dirname "${BASH_SOURCE[0]}")/exported_symbols.txt

# Constructors and destructors have several symbols of one name; the list has each name once.
exported() { nm --dynamic --defined-only --demangle "$1" | sed -E 's/^[0-9a-f]* *[A-Za-z] //' | sort -u; }

if [[ $1 == --update ]]; then
  exported "$2" >"$list"
  exit
fi

if ! diff --unified=0 --label "in the list" --label "in the library" "$list" <(exported "$1"); then
  echo "The exported symbols changed. If that is meant: tests/exported_symbols.sh --update $1"
  exit 1
fi

# All memory of the library is the host's: it must not ask the program for any.
if nm --dynamic --undefined-only "$1" | grep -E ' _Z(n[wa]|d[la])'; then
  echo "The library takes or gives back memory through the program's operator new or delete above."
  exit 1
fi

# Streams live in the C++ runtime, whose memory is of the program's operator new; a text that one of them hands out
# would be freed here, by the library's operator delete.
if nm --dynamic --undefined-only --demangle "$1" |
  grep -E 'std::(__cxx11::)?(basic_[a-z]*(stream|buf|ios)|locale)\b'; then
  echo "The library uses the streams above, whose memory would cross allocators."
  exit 1
fi
