#!/usr/bin/env bash
# Installs the packages of tools/packages.txt that this machine does not have yet, with --test those of
# tools/packages-test.txt too. Needs root or sudo only when one is missing.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

lists=(tools/packages.txt)
[ "${1:-}" = --test ] && lists+=(tools/packages-test.txt)
mapfile -t wanted < <(grep -hvE '^[[:space:]]*(#|$)' "${lists[@]}")
if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
  echo "install: this is no Debian system. Please provide the equivalents of: ${wanted[*]}"
  exit 0
fi

installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' 2>/dev/null | sed -n 's/^installed //p')
mapfile -t missing < <(printf '%s\n' "${wanted[@]}" | grep -vxFf <(printf '%s\n' "$installed") || true)
if [ ${#missing[@]} -eq 0 ]; then
  echo 'install: all packages are there'
  exit 0
fi

admin=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "install: missing are ${missing[*]}" >&2
    echo 'install: run this as root, or install sudo' >&2
    exit 1
  fi
  admin=(sudo)
fi

echo "install: installing ${missing[*]}"
"${admin[@]}" apt-get update -q
"${admin[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
