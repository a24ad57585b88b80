#!/usr/bin/env bash
# Holds a shared labelsbase against the recorded description of its interface: what it exports, the layout of classes and
# the order of virtual functions. What is new has to be recorded. An incompatible change needs another soname.
#   interface_kept.sh LIBRARY            compare
#   interface_kept.sh --update LIBRARY   record anew what the library has, built by g++ with -O2 -g
set -euo pipefail
recorded=$(dirname "${BASH_SOURCE[0]}")/interface.abi.gz
library=${!#}
command -v abidiff >/dev/null || { echo "abidiff is not installed"; exit 77; }
grep -q '\.debug_info' <<<"$(readelf --sections --wide "$library")" || { echo "$library has no debug information"; exit 77; }

if [[ $1 == --update ]]; then
  abidw --no-corpus-path --no-comp-dir-path --no-show-locs "$library" | gzip -9n >"$recorded"
  exit
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
gzip -dc "$recorded" >"$scratch/recorded.abi"
abidiff --no-corpus-path "$scratch/recorded.abi" "$library" && exit
incompatible=8  # a bit of abidiff's status
if (($? & incompatible)); then
  echo "Programs that are built already would break. Undo the change, or raise the soname."
else
  echo "The interface has grown. If it should not have, take LABELSBASE_API away."
fi
echo "To record the interface as it is: tests/interface_kept.sh --update $library"
exit 1
