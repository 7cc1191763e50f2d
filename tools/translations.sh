#!/usr/bin/env bash
# Collects the German texts of the sources into the catalogues under data/translations; what is new there is marked as
# unfinished and waits for a translation. German itself needs no catalogue, because it is the language of the sources.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
lupdate=$(command -v lupdate || echo /usr/lib/qt6/bin/lupdate)
"$lupdate" src -silent -no-obsolete -locations none -tr-function-alias tr+=Tr -source-language de -ts data/translations/kontorelle_en.ts
grep -c 'type="unfinished"' data/translations/kontorelle_en.ts | sed 's/^/translations: unfinished texts: /' || true
