#!/usr/bin/env bash
# clang-tidy over the changed units: what is not committed, or the last commit when everything is. With --all over all.
# A changed header is seen through its own source, else through one that includes it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
if ! command -v clang-tidy >/dev/null; then
  echo 'tidy: clang-tidy is not installed, nothing was looked at'
  exit 0
fi

if [ "${1:-}" != --all ] && ! git rev-parse HEAD >/dev/null 2>&1; then
  echo 'tidy: without a clone nobody knows what has changed, nothing was looked at; --all looks at everything'
  exit 0
fi

code='src tests tools fuzz bench'
changed() {
  local base=HEAD
  [ -n "$(git status --porcelain -- $code)" ] || base=HEAD~1
  git diff --name-only --diff-filter=ACMR "$base" -- $code 2>/dev/null || true
  git ls-files -o --exclude-standard -- $code
}

if [ "${1:-}" = --all ]; then
  mapfile -t units < <(find $code -name '*.cpp' | sort)
else
  mapfile -t files < <(changed | grep -E '\.(cpp|h)$' | sort -u || true)
  mapfile -t units < <(
    for file in "${files[@]}"; do
      case $file in
        *.cpp) echo "$file" ;;
        *) if [ -f "${file%.h}.cpp" ]; then echo "${file%.h}.cpp"; else grep -rlF "#include \"${file#src/}\"" $code --include='*.cpp' | sort | head -1; fi || true ;;
      esac
    done | sort -u)
  most=60 # some minutes; a change of everything is looked at with --all
  if [ ${#units[@]} -gt $most ]; then
    echo "tidy: ${#units[@]} units have changed; the first $most are looked at, all of them with --all"
    units=("${units[@]:0:$most}")
  fi
fi
[ ${#units[@]} -gt 0 ] || { echo 'tidy: nothing changed'; exit 0; }

if [ ! -f build/dev/compile_commands.json ]; then
  echo 'tidy: build first, the commands are those of build/dev: tools/build.sh dev'
  exit 1
fi
mkdir -p build/tidy

# Reading the toolkit's headers takes nearly all of the time, so units are read many at a time. A batch names files that end
# in .cpp in its includes; that and what follows from it is no finding.
mapfile -t batches < <(tools/tidy-batches.py build/dev/compile_commands.json build/tidy "${units[@]}")
[ ${#batches[@]} -gt 0 ] || exit 0
options=(-p build/tidy --quiet --header-filter='(/include-roots/.+\.h|/(src|tests|tools|fuzz|bench)/.+\.(cpp|h))$'
  --checks=-bugprone-suspicious-include,-google-global-names-in-headers --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-shadow)
if ! printf '%s\0' "${batches[@]}" | xargs -0 -n1 -P"${TIDY_JOBS:-$(nproc)}" clang-tidy "${options[@]}" > build/tidy/log 2>/dev/null; then
  grep -hE 'warning:|error:' build/tidy/log | sed "s#$PWD/##; s#build/dev/include-roots/[a-z]*/#src/#" | sort -u
  exit 1
fi
echo 'tidy: nothing found'
