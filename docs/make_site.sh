#!/usr/bin/env bash
# Makes one site of the documents and the headers, build/docs/html. Fails on a public name without a comment and on a
# link that leads nowhere.
set -euo pipefail
root=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/..")
cd "$root"
documents=({README,ARCHITECTURE,CONTRIBUTING,CHANGELOG,bench/README}.md docs/*.md)

# Doxygen breaks links in a folder whose name has a blank.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp docs/{Doxyfile,layout.xml,site.css} "$scratch"
docs/for_doxygen.py "$scratch/source" "${documents[@]}" docs/images \
  host labelsbase labelcheck labelconvert labelnames c/include refhost/refhost.h
(cd "$scratch/source" && doxygen ../Doxyfile)
rm -rf build/docs
mkdir -p build/docs
mv "$scratch/html" build/docs
docs/check_links.py build/docs/html "${documents[@]}"
