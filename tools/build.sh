#!/usr/bin/env bash
# Configures a preset where needed and builds it: "tools/build.sh dev" everything, "tools/build.sh release kontorelle" one target.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

preset=$1
shift
# A build folder that has moved with the project knows its old place only.
if [ ! -f "build/$preset/build.ninja" ] || ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$(pwd -P)" "build/$preset/CMakeCache.txt"; then
  echo "build: configuring $preset"
  cmake --preset "$preset" --fresh -DAPP_UNITY=ON
elif grep -q '^APP_UNITY:BOOL=ON' "build/$preset/CMakeCache.txt" &&
     [ -n "$(find src tests tools \( -name '*.cpp' -o -name '*.h' -o -name 'uni*.py' \) -newer "build/$preset/build.ninja" -print -quit)" ]; then
  cmake "build/$preset" >/dev/null   # which units stand together follows from what they name for themselves
fi
echo "build: building $preset ${*:-(everything)}"
if [ $# -gt 0 ]; then
  cmake --build --preset "$preset" --target "$@"
else
  cmake --build --preset "$preset"
fi
