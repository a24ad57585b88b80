#!/usr/bin/env bash
# Installs the packages in a bare Debian system, uses them and purges them. Needs root.
#   in_chroot.sh PACKAGES WORK     WORK/base keeps the bare system for the next run
set -euo pipefail
((EUID == 0)) || { echo "in_chroot.sh: debootstrap needs root"; exit 2; }
packages=$(readlink -f "$1") work=$(mkdir -p "$2" && readlink -f "$2")
tests=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/..")

if [[ ! -e $work/base/complete ]]; then
  rm -rf "$work/base"
  debootstrap --variant=minbase --include=cmake,g++,make,pkg-config,python3-numpy bookworm "$work/base"
  touch "$work/base/complete"
fi
root=$work/run
rm -rf "$root"
cp -a "$work/base" "$root"
mkdir "$root/packages" "$root/tests"
find "$packages" -name '*.deb' ! -name '*-dbgsym_*' -exec cp {} "$root/packages" \;
cp -r "$tests/c" "$tests/consumer" "$root/tests"

# No network and no other packages: what is in the base must do.
cat >"$root/use.sh" <<'END_OF_USE'
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1
files() { find / -xdev \( -path /proc -o -path /sys -o -path /tmp -o -path /var \) -prune -o -print | sort; }
files >/tmp/before

set -x
dpkg --install /packages/*.deb
[[ $(labels show 30f-drop 1800) == '00:01:00;02' ]]
python3 -c 'import labelsbase
assert labelsbase.to_text("29.97df", [0, 1799, 1800, 17982])[3] == "00:10:00;00"'
[[ -e /usr/share/doc/labelsbase-doc/html/index.html ]]
python3 /tests/c/from_python.py liblabels_c.so.14
cd /tmp
gcc -std=c99 -o from_c /tests/c/c_interface_test.c $(pkg-config --cflags --libs labels_c)
./from_c
/tests/consumer/with_pkg_config.sh "/usr/lib/$(gcc -print-multiarch)" g++
for project in /tests/consumer /usr/share/doc/labelsbase-doc/examples; do
  cmake -S "$project" -B build
  cmake --build build
  (cd build && ctest --output-on-failure)
  rm -r build
done
dpkg --purge labels python3-labelsbase labelsbase-doc liblabelsbase-dev liblabelsbase14 liblabels-c14
set +x
files | diff /tmp/before - && echo "purged without a trace"
END_OF_USE
unshare --mount bash -euc 'mount -t proc proc "$0/proc"; exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root chroot "$0" bash /use.sh' "$root"
rm -rf "$root"
