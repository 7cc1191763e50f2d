#!/usr/bin/env bash
# Builds the Debian package from a clean clone of what is committed, checks it with lintian, and with --try installs it into an
# empty Debian 12 root, starts both programs there and removes it again.
#
#   tools/package.sh [--try] [FOLDER]     the package lies in FOLDER afterwards, without one in build/package
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

try=no
[ "${1:-}" = --try ] && { try=yes; shift; }
target=$(mkdir -p "${1:-build/package}" && readlink -f "${1:-build/package}")
missing=()
for program in dpkg-buildpackage dh lintian; do
  command -v "$program" >/dev/null || missing+=("$program")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "package: missing are ${missing[*]}: apt-get install dpkg-dev debhelper lintian" >&2
  exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
echo "package: building in $work"
git clone -q --no-hardlinks . "$work/kontorelle"
(cd "$work/kontorelle" && DEB_BUILD_OPTIONS="parallel=$(nproc) ${DEB_BUILD_OPTIONS:-}" dpkg-buildpackage -us -uc -b)
cp "$work"/*.deb "$target"
package=$(ls "$target"/kontorelle_*.deb)
echo "package: $package"

echo 'package: lintian'
lintian --fail-on error,warning "$work"/*.changes

[ $try = yes ] || exit 0
if [ "$(id -u)" -ne 0 ] || ! command -v debootstrap >/dev/null; then
  echo 'package: --try needs root and debootstrap' >&2
  exit 1
fi
root=$work/root
echo 'package: an empty Debian 12'
debootstrap --variant=minbase bookworm "$root" "$(sed -n 's/^deb \(\[[^]]*\] \)\?\([^ ]*\) .*/\2/p;s/^URIs: \([^ ]*\).*/\1/p' /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null | head -1)" >/dev/null
cp "$package" "$root/tmp/kontorelle.deb"
cp /etc/resolv.conf "$root/etc/resolv.conf" 2>/dev/null || true
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/root DEBIAN_FRONTEND=noninteractive "$@"; }
inside apt-get update -q
find "$root" -xdev \( -path "$root/proc" -o -path "$root/sys" -o -path "$root/var" -o -path "$root/tmp" \) -prune -o -print | sort > "$work/before"
inside apt-get install -y -q --no-install-recommends /tmp/kontorelle.deb
inside kontorelle-cli --version
inside kontorelle-cli demo /tmp/demo.db
inside kontorelle-cli --database /tmp/demo.db balances
inside env QT_QPA_PLATFORM=offscreen kontorelle --version
echo 'package: removing it'
inside apt-get purge -y -q kontorelle
inside apt-get autoremove -y -q
left=$(find "$root" -xdev \( -path "$root/proc" -o -path "$root/sys" -o -path "$root/var" -o -path "$root/tmp" \) -prune -o -iname '*kontorelle*' -print)
[ -z "$left" ] || { echo "package: left behind: $left" >&2; exit 1; }
echo 'package: installed, started and removed without a trace'
