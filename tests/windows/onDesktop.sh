#!/usr/bin/env bash
# Runs a program on a screen and a session bus of its own, with what screen readers need: "onDesktop.sh PROGRAM ARGUMENT...".
# Ends with 77 where the machine cannot do that.
set -euo pipefail

for command in Xvfb dbus-run-session; do
  if ! command -v "$command" >/dev/null; then
    echo "onDesktop: skipped, because $command is missing; tools/install.sh --test installs it"
    exit 77
  fi
done
if [ ! -f /usr/share/dbus-1/services/org.a11y.Bus.service ]; then
  echo 'onDesktop: skipped, because at-spi2-core is missing; tools/install.sh --test installs it'
  exit 77
fi

folder=$(mktemp -d)
finish() {
  [ -n "${screen:-}" ] && kill "$screen" && wait "$screen" || true
  rm -rf "$folder"
}
trap finish EXIT

# The server tells the number of its screen when it can be used.
mkfifo "$folder/number"
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$folder/number" 2>"$folder/errors" &
screen=$!
if ! read -r number <"$folder/number"; then
  cat "$folder/errors" >&2
  exit 1
fi

export DISPLAY=":$number" XDG_RUNTIME_DIR="$folder" GSETTINGS_BACKEND=memory
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
dbus-run-session -- "$@"
