#!/usr/bin/env bash
# Compiles each header as C++17. The first error must say what is needed.
#   needs_cxx20.sh COMPILER FOLDER HEADER...
set -euo pipefail
for header in "${@:3}"; do
  errors=$(! "$1" -std=c++17 -Wfatal-errors "-I$2" -fsyntax-only -x c++ "$header" 2>&1)
  [[ $(grep -m1 -F error: <<<"$errors") == *'labelsbase needs C++20'* ]] || { echo "$header: $errors"; exit 1; }
done
