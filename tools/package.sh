#!/usr/bin/env bash
# Builds the Debian package from a clean clone of what is committed, looks at it with lintian and at how its programs are linked, and
# with --try installs it into an empty Debian 12 (tools/package-try.sh).
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
rm -f "$target"/kontorelle_*.deb
cp "$work"/kontorelle_*.deb "$target"
package=$(ls "$target"/kontorelle_*.deb)
echo "package: $package"

echo 'package: lintian'
lintian --allow-root --fail-on error,warning "$work"/*.changes

# A fault in reading a stranger's file is to end the program instead of running what the file brings.
hardened() {
  local header dynamic symbols
  header=$(readelf -hW "$1")
  dynamic=$(readelf -dlW "$1")
  symbols=$(readelf --dyn-syms -W "$1")
  grep -q 'Type: *DYN' <<< "$header" || { echo "package: $1 is not position independent"; return 1; }
  grep -q GNU_RELRO <<< "$dynamic" || { echo "package: $1 has no RELRO"; return 1; }
  grep -qE 'BIND_NOW|FLAGS.*NOW' <<< "$dynamic" || { echo "package: $1 binds late"; return 1; }
  grep -q '__stack_chk_fail' <<< "$symbols" || { echo "package: $1 has no stack protector"; return 1; }
  # Functions that always have a checked variant; what the compiler has checked itself, as memcpy of a known size, stays plain.
  ! grep -qE ' (v?f?printf|v?sn?printf|strcpy|strcat|fgets|getcwd|readlink)@' <<< "$symbols" || { echo "package: $1 is not fortified"; return 1; }
  if readelf -SW "$1" | grep -qE '\.(symtab|debug_info)'; then echo "package: $1 is not stripped"; return 1; fi
}
dpkg-deb -x "$package" "$work/unpacked"
for program in "$work"/unpacked/usr/bin/* "$work"/unpacked/usr/lib/*/kontorelle/*.so; do
  hardened "$program"
done
echo 'package: programs are hardened and stripped'

[ $try = no ] || tools/package-try.sh "$package"
