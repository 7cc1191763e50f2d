#!/usr/bin/env bash
# Takes what "fuzz/run.sh FORMAT" found into corpus/FORMAT: as few and as small files as reach the same code.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"

format=$1
build=../build/fuzz
merged=$(mktemp -d)
trap 'rm -rf "$merged"' EXIT
# One file for each piece of code is enough for the corpus; how often it runs does not count.
"$build/bin/fuzz-$format" -set_cover_merge=1 -use_counters=0 -max_len=16384 "$merged" "corpus/$format" "$build/found/$format" 2>&1 | tail -1
mkdir -p "corpus/$format"
# Files with names of their own are kept: they were written by hand or showed a fault.
find "corpus/$format" -type f -regextype posix-extended -regex '.*/[0-9a-f]{40}' -delete
cp -n "$merged"/* "corpus/$format/"
