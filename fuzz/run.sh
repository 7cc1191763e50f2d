#!/usr/bin/env bash
# Looks for files that a reader does not bear: "fuzz/run.sh FORMAT SECONDS", format as the folders in corpus/.
# Files that reach new code come to build/fuzz/found/FORMAT, those that show a fault to build/fuzz/faults/FORMAT-*.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"

format=$1
seconds=${2:-900}
build=../build/fuzz
found=$build/found/$format
corpus=corpus/$format
[ -d "$corpus" ] || corpus=corpusFints/$format
mkdir -p "$found" "$build/faults"
dictionary=()
[ -f "dictionaries/$format.dict" ] && dictionary=("-dict=dictionaries/$format.dict")

nice -n 19 ionice -c3 "$build/bin/fuzz-$format" "$found" "$corpus" "${dictionary[@]}" -max_total_time="$seconds" \
  -max_len=16384 -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$build/faults/$format-"
