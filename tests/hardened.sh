#!/usr/bin/env bash
# Holds what an optimised build makes against what hardening promises.
#   hardened.sh TOOL LIBRARY
set -euo pipefail

expect() { # FILE WHAT PATTERN OPTION...
  grep -qE "$3" <<<"$(readelf --wide "${@:4}" "$1")" || { echo "$1: $2"; exit 1; }
}

for file in "$@"; do
  expect "$file" "is not loaded to any address" 'Type: +DYN' --file-header
  expect "$file" "can be written to after loading" GNU_RELRO --segments
  expect "$file" "binds symbols late" 'BIND_NOW|Flags:.* NOW' --dynamic
  expect "$file" "has a stack that can be executed" 'GNU_STACK .* RW  ' --segments
done
expect "$1" "returns over a smashed stack" __stack_chk_fail --dyn-syms
