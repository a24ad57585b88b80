#!/usr/bin/env bash
# Holds a shared labelsbase against the recorded description of its interface. What was there must stay as it was, the
# layout of classes and the order of virtual functions included; what is new does no harm. An incompatible change needs
# another soname.
#   interface_kept.sh LIBRARY            compare
#   interface_kept.sh --update LIBRARY   record anew what the library has, built by g++ with -O2 -g
set -euo pipefail
recorded=$(dirname "${BASH_SOURCE[0]}")/interface.abi.gz
library=${!#}
command -v abidiff >/dev/null || { echo "abidiff is not installed"; exit 77; }
readelf --sections --wide "$library" | grep -q '\.debug_info' || { echo "$library has no debug information"; exit 77; }

if [[ $1 == --update ]]; then
  abidw --no-corpus-path --no-comp-dir-path --no-show-locs "$library" | gzip -9n >"$recorded"
  exit
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
gzip -dc "$recorded" >"$scratch/recorded.abi"
if ! abidiff --no-added-syms --no-corpus-path "$scratch/recorded.abi" "$library"; then
  echo "Programs that are built already would break. Undo the change, or raise the soname: tests/interface_kept.sh --update $library"
  exit 1
fi
