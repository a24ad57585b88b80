#!/usr/bin/env bash
# Builds the last commit in a bare Debian system, as a newcomer would: ./dev installs what it needs. Needs root.
#   from_source.sh WORK     WORK/bare keeps the bare system for the next run
set -euo pipefail
((EUID == 0)) || { echo "from_source.sh: debootstrap needs root"; exit 2; }
tree=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/../..") work=$(mkdir -p "$1" && readlink -f "$1")

if [[ ! -e $work/bare/complete ]]; then
  rm -rf "$work/bare"
  debootstrap --variant=minbase bookworm "$work/bare"
  touch "$work/bare/complete"
fi
root=$work/from_source
rm -rf "$root"
cp -a "$work/bare" "$root"
cp /etc/resolv.conf "$root/etc/"
mkdir "$root/labels"
git -C "$tree" archive HEAD | tar -x -C "$root/labels"

cat >"$root/use.sh" <<'END_OF_USE'
set -euxo pipefail
cd /labels
[[ $(./dev run show 29.97df 0 1799 1800 17982 | tail -1) == '00:10:00;00' ]]
./dev python -c 'import labelsbase
assert labelsbase.to_text("29.97df", [0, 1799, 1800, 17982])[3] == "00:10:00;00"'
./dev test
END_OF_USE
ln -sf pts/ptmx "$root/dev/ptmx"
unshare --mount bash -euc 'mount -t proc proc "$0/proc"
  mount -t devpts -o newinstance,ptmxmode=666 devpts "$0/dev/pts"
  exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root chroot "$0" bash /use.sh' "$root"
rm -rf "$root"
