#!/usr/bin/env bash
# Builds and runs the consumer by pkg-config, against what is installed.
#   with_pkg_config.sh LIBDIR COMPILER
set -euo pipefail
command -v pkg-config >/dev/null || { echo "pkg-config is not installed"; exit 77; }

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export PKG_CONFIG_PATH=$1/pkgconfig LD_LIBRARY_PATH=$1
eval "flags=($(pkg-config --cflags --libs "labelcheck >= 14.5"))"
"$2" -std=c++20 -o "$scratch/consumer" "$(dirname "$0")"/{main,shown}.cpp "${flags[@]}"
"$scratch/consumer"
