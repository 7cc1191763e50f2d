#!/usr/bin/env bash
# Time from process start to the idle window, processor time until then, and memory (PSS), beside an empty window of the
# toolkit and one with words in it. Needs a display or xvfb-run, and the programs of build/release (see bench/CMakeLists.txt).
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
bin=build/release/bin
rounds=${1:-7}
if [ -z "${DISPLAY:-}" ]; then
  command -v xvfb-run >/dev/null || { echo 'start: no display and no xvfb-run'; exit 1; }
  exec xvfb-run -a -s '-noreset -screen 0 1400x900x24' "$0" "$@"
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
exec {never}<> <(:) # a pause that starts no process of its own

# Idle is the beginning of the first 300 ms in which no 10 ms used more than 5 % of a core; a window that only waits for
# the display does not count before it has done something. Prints milliseconds, processor time in microseconds and KiB.
measure() {
  local pid begin idle now step=0 used=0 before=0 atIdle=0
  begin=$(date +%s%N)
  "$@" >/dev/null 2>&1 &
  pid=$!
  idle=$begin
  while :; do
    read -r -t 0.01 -u "$never" || true
    read -r used _ < "/proc/$pid/schedstat" # nanoseconds on a processor
    now=${EPOCHREALTIME/[.,]/}000
    step=$((now - ${last:-$begin}))
    last=$now
    if [ $(((used - before) * 20)) -gt $step ] || [ "$used" -lt 4000000 ]; then idle=$now; atIdle=$used; fi
    before=$used
    [ $((now - idle)) -lt 300000000 ] || break
  done
  unset last
  echo "$(((idle - begin) / 1000000)) $((atIdle / 1000)) $(sed -n 's/^Pss: *\([0-9]*\) kB/\1/p' "/proc/$pid/smaps_rollup")"
  kill "$pid"
  wait "$pid" 2>/dev/null || true
}

# The middle one of a column of figures.
median() { cut -d' ' -f"$2" "$work/$1.figures" | sort -n | sed -n "$(((rounds + 1) / 2))p"; }

report() {
  local time processor memory
  time=$(median "$1" 1) processor=$(median "$1" 2) memory=$(median "$1" 3)
  printf '%-16s %5d ms (%4.2f of the empty window) %7.1f ms of a processor %7.1f MB\n' "$1" "$time" \
    "$(awk "BEGIN { print $time / $(median 'empty window' 1) }")" "$(awk "BEGIN { print $processor / 1000 }")" \
    "$(awk "BEGIN { print $memory / 1024 }")"
}

for size in 12000 100000; do
  mkdir -p "$work/$size/Veltrino Kontorelle"
  "$bin/kontorelle-cli" demo --entries $size "$work/$size/Veltrino Kontorelle/data.db" >/dev/null
  measure "$bin/kontorelle" --profile "$work/$size" >/dev/null # a first start brings the book up to date
done
# The rounds take turns, because what else the machine does changes from one minute to the next.
for ((round = 0; round < rounds; ++round)); do
  measure "$bin/emptywindow" >> "$work/empty window.figures"
  measure "$bin/wordswindow" >> "$work/window of words.figures"
  measure "$bin/kontorelle" --profile "$work/12000" >> "$work/12,000 entries.figures"
  measure "$bin/kontorelle" --profile "$work/100000" >> "$work/100,000 entries.figures"
done
report 'empty window'
report 'window of words'
report '12,000 entries'
report '100,000 entries'
