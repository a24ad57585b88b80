#!/usr/bin/env bash
# Makes one site of the documents and the headers, build/docs/html. Fails on a public name without a comment and on a
# link that leads nowhere.
set -euo pipefail
root=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/..")
cd "$root"
documents=({README,ARCHITECTURE,CONTRIBUTING,CHANGELOG,bench/README}.md docs/*.md)

rm -rf build/docs
docs/for_doxygen.py build/docs/source "${documents[@]}" docs/images \
  host labelsbase labelcheck labelconvert labelnames c/include refhost/refhost.h
(cd build/docs/source && doxygen "$root/docs/Doxyfile")
docs/check_links.py build/docs/html "${documents[@]}"
