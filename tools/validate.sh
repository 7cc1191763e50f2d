#!/usr/bin/env bash
# Looks at what a build would install beside the programs: desktop file, file types, description for software centres, manual pages,
# Flatpak manifest. What it takes to look at one of them is only used where it is installed; packages-test.txt has all but the last.
#
#   tools/validate.sh build/dev
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
made=${1:-build/dev}/install
id=de.veltrino.Kontorelle
failed=0

# look PROGRAM WHAT COMMAND...: what the command says, or that it fails, is a fault.
look() {
  local program=$1 what=$2 said
  shift 2
  if ! command -v "$program" >/dev/null; then
    echo "validate: $what: $program is not installed, nothing was looked at"
  elif said=$("$@" 2>&1) && [ -z "$said" ]; then
    echo "validate: $what: good"
  else
    printf 'validate: %s:\n%s\n' "$what" "$said"
    failed=1
  fi
}

quiet() { local said; said=$("$@" 2>&1) || { echo "$said"; return 1; }; }
file_types() {
  local folder
  folder=$(mktemp -d)
  mkdir -p "$folder/mime/packages"
  cp "$1" "$folder/mime/packages/$id.xml"
  XDG_DATA_DIRS=$folder XDG_DATA_HOME=$folder update-mime-database "$folder/mime"   # says what is wrong, and ends well nevertheless
  rm -rf "$folder"
}
page() { LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null; }

manifest() { # it leaves a folder where it is started
  local folder file result
  folder=$(mktemp -d)
  file=$PWD/$1
  (cd "$folder" && flatpak-builder --show-manifest "$file" >/dev/null)
  result=$?
  rm -rf "$folder"
  return $result
}

look desktop-file-validate 'desktop file' desktop-file-validate "data/desktop/$id.desktop"
look appstreamcli 'description' quiet appstreamcli validate --strict --no-net --no-color "$made/$id.metainfo.xml"
look update-mime-database 'file types' file_types "data/desktop/$id.mime.xml"
for file in "$made"/*.1; do
  look man "manual page $(basename "$file")" page "$file"
done
look flatpak-builder 'Flatpak manifest' manifest "data/flatpak/$id.json"
exit $failed
