#!/usr/bin/env bash
# Brings every translation file src/resources/translations/Q9CU_<id>.ts in
# line with the sources: the texts of the string table (context "StringTable")
# and of the dialog templates under src/resources/forms/ (*.ui) that are new
# are added as unfinished messages, texts that left the sources are dropped,
# and translations already made are kept. Run it after changing texts, then
# translate what it reports as unfinished.
#   scripts/update-translations.sh
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"

lupdate="${LUPDATE:-/usr/lib/qt6/bin/lupdate}"
if [[ ! -x "$lupdate" ]]; then
    lupdate="$(command -v lupdate6 || command -v lupdate)"
fi

# No source locations are written, so that a file changes only when a text
# does.
for ts in src/resources/translations/Q9CU_*.ts; do
    "$lupdate" -silent -no-obsolete -locations none -source-language en_US src -ts "$ts"
    unfinished="$(grep -c 'type="unfinished"' "$ts" || true)"
    echo "$(basename "$ts"): ${unfinished} message(s) to translate"
done
