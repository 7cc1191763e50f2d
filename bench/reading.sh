#!/usr/bin/env bash
# Reads 100,000 transactions in each format, every file beside the floor of reading it and counting its lines.
# cmake --preset release -DBUILD_TESTING=ON -DAPP_BENCH=ON && cmake --build --preset release --target readStatement
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
build/release/bin/readStatement --write "$folder"
for file in "$folder"/*; do
  echo "${file##*/} ($(stat -c %s "$file") bytes)"
  build/release/bin/readStatement --floor "$file"
  for _ in 1 2 3; do build/release/bin/readStatement "$file"; done
done
