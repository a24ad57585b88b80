#!/usr/bin/env bash
# Runs a program as the comment at the top of its source shows, and compares the output.
#   check_output.sh PROGRAM SOURCE
set -euo pipefail
example=$(sed -n '/^\/\/   /s///p; /^#include/q' "$2")
read -ra command <<<"${example%%$'\n'*}"
diff --unified <(printf '%s\n' "${example#*$'\n'}") <("$1" "${command[@]:2}")
