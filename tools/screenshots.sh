#!/usr/bin/env bash
# Renders every window to PNG: light, dark, light at 200 %, in a language of long words, in English, and on a small screen in small and
# in large type.
#   tools/screenshots.sh [FOLDER]
set -eu
cd "$(dirname "$(readlink -f "$0")")/.."
folder=${1:-build/bilder}
program=build/dev/bin/kontorelle-screenshots
cmake --build build/dev --target kontorelle-screenshots
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-/tmp} LC_ALL=C.UTF-8
[ -d /dev/shm ] && export TMPDIR=/dev/shm # books are written safely, which takes a disk its time
"$program" "$folder" light
"$program" "$folder" dark
"$program" "$folder/pseudo" pseudo
"$program" "$folder/englisch" english
QT_SCALE_FACTOR=2 "$program" "$folder/200" light
"$program" "$folder/klein" light 9 784 552 # 800 x 600 without what frame and desktop take
"$program" "$folder/klein-gross" light 16 784 552
