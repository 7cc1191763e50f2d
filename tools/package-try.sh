#!/usr/bin/env bash
# Installs a package into an empty Debian 12, starts both programs there, the window on a virtual screen where there is Xvfb, and
# removes it again. What is left behind then is a fault. Needs root and debootstrap.
#
#   tools/package-try.sh PACKAGE.deb
set -euo pipefail
package=$(readlink -f "$1")
if [ "$(id -u)" -ne 0 ] || ! command -v debootstrap >/dev/null; then
  echo 'package: trying it needs root and debootstrap' >&2
  exit 1
fi

work=$(mktemp -d)
screen=
leave() {
  [ -z "$screen" ] || kill "$screen" || true
  rm -rf "$work"
}
trap leave EXIT
root=$work/root

# The mirror of this machine is good enough for the other one too.
mirror=$(apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' | awk '$2 == "bookworm" && $3 == "main" { print $1; exit }')
echo "package: an empty Debian 12 in $root"
debootstrap --variant=minbase bookworm "$root" ${mirror:+"$mirror"} > "$work/debootstrap" || { tail "$work/debootstrap" >&2; exit 1; }
cp /etc/resolv.conf "$root/etc/resolv.conf"
cp "$package" "$root/tmp/kontorelle.deb"

# Runs in it with mounts and processes of its own, which end with the command.
inside() {
  unshare --fork --mount --pid --kill-child --mount-proc="$root/proc" chroot "$root" \
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/tmp/home DEBIAN_FRONTEND=noninteractive "$@"
}
files() { find "$root" -xdev \( -path "$root/proc" -o -path "$root/tmp" -o -path "$root/var/log" -o -path "$root/var/cache" -o -path "$root/var/lib/dpkg" \) -prune -o -print | sort; }
quietly() { "$@" > "$work/output" 2>&1 || { tail -20 "$work/output" >&2; return 1; }; }

quietly inside apt-get update -q
# What keeps lists of menus, file types, icons and manual pages comes first: it has to forget the package as well.
quietly inside apt-get install -y -q --no-install-recommends desktop-file-utils shared-mime-info hicolor-icon-theme man-db
quietly inside apt-get satisfy -y -q --no-install-recommends "$(dpkg-deb -f "$package" Depends)"
files > "$work/before"
echo 'package: installing'
quietly inside dpkg -i /tmp/kontorelle.deb
inside kontorelle-cli --version
inside kontorelle-cli demo /tmp/demo.db
inside kontorelle-cli --database /tmp/demo.db balances | tail -3
# What writes Excel files and what paints are files of their own.
inside kontorelle-cli --database /tmp/demo.db export /tmp/demo.xlsx
inside kontorelle-cli --database /tmp/demo.db chart ausgaben --png /tmp/demo.png
inside sh -c 'grep -q "application/x-camt+zip" /usr/share/mime/types && grep -q Kontorelle /usr/share/applications/mimeinfo.cache'

# The window program says that it is there by its window, or at least by the book that it makes.
if command -v Xvfb >/dev/null && command -v xwininfo >/dev/null; then
  number=$((100 + $$ % 900))
  Xvfb ":$number" -screen 0 1280x900x24 -nolisten tcp > "$work/screen" 2>&1 &
  screen=$!
  on=(DISPLAY=":$number")
  shown() { xwininfo -root -tree -display ":$number" 2>/dev/null | grep -q '"[^"]*Kontorelle": ("kontorelle"'; }
else
  on=(QT_QPA_PLATFORM=offscreen)
  shown() { [ -s "$root/tmp/profile/Veltrino Kontorelle/data.db" ]; }
fi
# timeout ends a program that nobody closes; the way it ends is not looked at
inside timeout 120 env "${on[@]}" kontorelle --profile /tmp/profile > "$work/window" 2>&1 &
started=$!
seconds=0
until shown; do
  if [ $((seconds += 1)) -gt 100 ] || ! kill -0 "$started" 2>/dev/null; then
    echo 'package: the window did not come up' >&2
    cat "$work/window" >&2
    exit 1
  fi
  sleep 1
done
echo "package: the window is there (${on[*]})"
kill "$started"
wait "$started" || true

echo 'package: removing it'
quietly inside dpkg --purge kontorelle
files > "$work/after"
if ! diff "$work/before" "$work/after" > "$work/left"; then
  echo 'package: what is not as it was before:' >&2
  cat "$work/left" >&2
  exit 1
fi
echo 'package: installed, started and removed without a trace'
