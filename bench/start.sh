#!/usr/bin/env bash
# Time from process start to the idle window, and its memory (PSS), beside an empty window of the toolkit.
# Needs a display or xvfb-run, and the programs of build/release (see bench/CMakeLists.txt).
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
bin=build/release/bin
rounds=${1:-7}
if [ -z "${DISPLAY:-}" ]; then
  command -v xvfb-run >/dev/null || { echo 'start: no display and no xvfb-run'; exit 1; }
  exec xvfb-run -a -s '-screen 0 1400x900x24' "$0" "$@"
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Idle is the last moment before the main thread did nothing for 100 ms; prints milliseconds and KiB.
measure() {
  local begin pid used last=0 still=0 now
  begin=$(date +%s%N)
  now=$begin
  "$@" >/dev/null 2>&1 &
  pid=$!
  while [ $still -lt 20 ]; do
    sleep 0.005
    read -r used _ < "/proc/$pid/schedstat"   # nanoseconds on a processor
    if [ "$used" -gt 4000000 ] && [ $((used - last)) -lt 100000 ]; then still=$((still + 1)); else still=0; now=$(date +%s%N); fi
    last=$used
  done
  echo "$(((now - begin) / 1000000)) $(sed -n 's/^Pss: *\([0-9]*\) kB/\1/p' "/proc/$pid/smaps_rollup")"
  kill "$pid"
  wait "$pid" 2>/dev/null || true
}

# The median of the rounds, because the first one reads the disk.
median() {
  local i
  for ((i = 0; i < rounds; ++i)); do measure "$@"; done | tee "$work/figures" | cut -d' ' -f1 | sort -n | sed -n "$(((rounds + 1) / 2))p" | tr '\n' ' '
  cut -d' ' -f2 "$work/figures" | sort -n | sed -n "$(((rounds + 1) / 2))p"
}

report() { local name=$1; shift; read -r time memory < <(median "$@"); printf '%-24s %5d ms %7.1f MB\n' "$name" "$time" "$(echo "$memory" | awk '{ print $1 / 1024 }')"; }

for size in 12000 100000; do
  mkdir -p "$work/$size/Veltrino Kontorelle"
  "$bin/kontorelle-cli" demo --entries $size "$work/$size/Veltrino Kontorelle/data.db" >/dev/null
done
report 'empty window' "$bin/emptywindow"
report '12,000 entries' "$bin/kontorelle" --profile "$work/12000"
report '100,000 entries' "$bin/kontorelle" --profile "$work/100000"
