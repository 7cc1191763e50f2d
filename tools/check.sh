#!/usr/bin/env bash
# What has to hold before a commit. "tools/check.sh" looks at changed files, "tools/check.sh --all" at every file.
# Builds nothing; clang-tidy has a script of its own, tools/tidy.sh.
set -u
cd "$(dirname "$(readlink -f "$0")")/.."
code='src tests bench tools fuzz'
texts='README.md doc data'
failed=0
fail() { echo "check: $1"; shift; printf '  %s\n' "$@"; failed=1; }

if [ "${1:-}" = --all ]; then
  mapfile -t files < <(find $code -name '*.cpp' -o -name '*.h')
else
  mapfile -t files < <({ git diff --name-only --diff-filter=ACMR HEAD -- '*.cpp' '*.h'; git ls-files -o --exclude-standard -- '*.cpp' '*.h'; } | sort -u)
fi
[ ${#files[@]} -eq 0 ] && { echo 'check: nothing changed'; exit 0; }
echo "check: ${#files[@]} files"

# What may stand only in the named places: pattern, allowed path prefixes, reason
only() {
  local hits; hits=$(grep -nHE "$1" "${files[@]}" 2>/dev/null | grep -vE "^($2)")
  [ -n "$hits" ] && fail "$3" "$hits"
}
only '#include <(QtWidgets|QtGui|QtNetwork|QtSql)?/?(QWidget|QDialog|QMessageBox|QApplication|QMainWindow|QNetworkAccessManager|QClipboard|QDesktopServices)' 'src/(windows|app)/|tests/(windows|app|cli|faults)/|tools/|bench/' 'toolkit outside windows/ and app/'
only 'sqlite3(_|\.h)|#include <SQLiteCpp'      'src/store/|tests/|bench/' 'the database driver is called in store/ only'
only '"(SELECT|INSERT|UPDATE|DELETE|ALTER|CREATE|PRAGMA) ' 'src/store/|tests/|bench/' 'SQL text outside store/'
only 'QDate(Time)?::current|QTime::current'    'src/app/'              'the current time comes from cClock'
only 'QDateEdit|QDateTimeEdit'                 'none/'                 'days are typed in cDayEdit'
only 'QMessageBox|QInputDialog'                'src/app/|tests/(windows|app)/' 'messages and questions go through cUser'
only 'QSettings|QStandardPaths|QProcess|QLocale::system' 'src/app/|tests/(app|cli|faults)/' 'the machine is reached through the ports of base/'
only '\bthrow\b.*;|\bcatch \('                 'src/(store|app|cli)/|tests/|bench/' 'exceptions stay inside store/ and the adapters'
only '\bcSetting(Key|Family)( [A-Za-z]+)?[({]'  'src/model/'            'keys of settings are made in modSettingKey'
only '#include <Qt(Core|Widgets|Gui|Network|Test)>' 'none/'            'include single Qt headers, not whole modules'
only '\b(TODO|FIXME|XXX)\b'                          'none/'                 'finish it, or leave it out and say so in doc/decisions.md'

only '#include "store/'   'src/(store|app)/|src/(core|import|views)/.+\.cpp|tests/|bench/|tools/' 'the store is reached by sources of core, import and views only'
only '#include "import/'  'src/(import|app)/|src/views/.+\.cpp|tests/|bench/|tools/|fuzz/' 'readers are composed in sources of views/'
only '#include "views/'   'src/(views|windows|app|cli)/|tests/|bench/|tools/' 'nothing below views/ sees it'
only '#include "(windows|app)/' 'src/(windows|app|cli)/|tests/(windows|app|cli|faults)/|bench/|tools/' 'nothing below windows/ sees it'

# Texts explain themselves: they lean on no paper and no folder that a reader of this tree does not have.
papers='[Ss]pec[i]fication|spec[.]md|\bParts? [0-9]+[.][0-9]|\bshared[/]'
mapfile -t prose < <(find $texts -type f \( -name '*.md' -o -name '*.sql' -o -name '*.txt' \) 2>/dev/null)
hits=$(grep -nHE "$papers" "${files[@]}" "${prose[@]}" 2>/dev/null)
[ -n "$hits" ] && fail 'explain it here, or leave it out' "$hits"

# A key that All or Families leave out would not be spared by a reset.
keys=$(grep -cE '^inline const cSetting(Key|Family) ' src/model/modSettingKey.h)
listed=$(grep -oE '&[A-Z][A-Za-z]+' src/model/modSettingKey.cpp | sort -u | wc -l)
[ "$keys" -eq "$listed" ] || fail 'a setting is missing in All or Families' "src/model/modSettingKey.cpp: $listed of $keys"

# The CMakeLists.txt that has to list a file is the nearest one above it.
list_of() {
  local folder; folder=$(dirname "$1")
  while [ ! -f "$folder/CMakeLists.txt" ]; do folder=$(dirname "$folder"); done
  echo "$folder/CMakeLists.txt"
}

# A word of its own, because one name may be the beginning or the end of another.
is_listed() { tr -s ' ()' '\n' < "$2" | grep -qxF "$1"; }

for f in "${files[@]}"; do
  name=$(basename "$f")
  case $f in
    tests/*/test*.cpp) is_listed "${name%.cpp}" "$(list_of "$f")" || fail 'test that is not built' "$f" ;;
    tests/*) ;;
    *) list=$(list_of "$f"); is_listed "${f#"$(dirname "$list")"/}" "$list" || fail 'file that is not listed in CMakeLists.txt' "$f" ;;
  esac
  if [ -f "${f%.cpp}.h" ] && [ "$f" != "${f%.cpp}.h" ]; then
    grep -m1 '^#include' "$f" | grep -qE "[\"/]${name%.cpp}\.h\"" || fail 'own header is not the first one' "$f"
  fi
  case $f in *.h) head -1 "$f" | grep -q '^#pragma once' || fail 'header without #pragma once' "$f" ;; esac
  lines=$(wc -l < "$f"); [ "$lines" -gt 600 ] && fail 'file over 600 lines' "$f: $lines"
  tail -c1 "$f" | grep -q . && fail 'no newline at end' "$f"
done

# Lists with a line for each file or test are sorted, so that everybody finds the same place for a new one.
unsorted() {
  LC_ALL=C awk '/^ +FILES$|^set\(tests$|^unit_tests\([a-z]+$/ { last = ""; on = 1; next } /\)/ { on = 0 }
                on { if ($1 < last) print FILENAME ": " $1; last = $1 }' "$@"
}
hits=$(find . -name CMakeLists.txt -not -path './build/*' | xargs -d '\n' -n1 bash -c "$(declare -f unsorted); unsorted \"\$@\"" _)
[ -n "$hits" ] && fail 'not in its place in the sorted list' "$hits"

if [ "${1:-}" = --all ]; then
  hits=$(tools/includes.py) || fail 'include it, or declare the class' "$hits"
  hits=$(tools/rooms.py) || fail 'rooms know each other in a circle: move what both need below them' "$hits"
fi

if command -v clang-format >/dev/null; then
  hits=$(printf '%s\0' "${files[@]}" | xargs -0 clang-format --dry-run -Werror 2>&1 | sed -n 's/^\([^:]*\):.*-Wclang-format-violations.*/\1/p' | sort -u)
  [ -n "$hits" ] && fail 'run clang-format -i on' "$hits"
else
  fail 'clang-format is missing'
fi

[ $failed -eq 0 ] && echo 'check: all rules hold'
exit $failed
