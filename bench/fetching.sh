#!/usr/bin/env bash
# 100,000 transactions as a bank's answer beside the same file, MT940 and camt: all within the days that a fetch remembers,
# and spread over two years. Of the last run, MT940 and camt: 1.18 and 1.27, 1.46 and 1.37 the second time; spread 1.02 and
# 1.12, 1.12 and 1.17.
# cmake --preset release -DBUILD_TESTING=ON -DAPP_BENCH=ON && cmake --build --preset release --target readStatement readFetched
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
for days in 20 700; do
  build/release/bin/readStatement --write "$folder" "$days"
  for file in a.sta a.xml; do
    echo "$file, $days days ($(stat -c %s "$folder/$file") bytes)"
    build/release/bin/readFetched "$folder/$file"
  done
done
