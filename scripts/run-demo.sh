#!/usr/bin/env bash
# Builds what the demo installation needs (the library, the sibling
# libraries, the programs, the translations and the picture tool; no tests,
# no benchmarks), lays it out in build/demo and runs the main job on it.
# Nothing outside build/demo is touched: the libraries keep their files in
# their own directory, the registry stand-in in build/demo/registry.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"

bash scripts/install-deps.sh
bash scripts/build.sh build -- --target demo

demo="$root/build/demo"
unset Q9_INSTALL_DIR Q9_REGISTRY_DIR Q9_HOST_VERSION Q9_CONFIG_WINDOW_WORD
has_display=0
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ "${QT_QPA_PLATFORM:-}" != "offscreen" ]; then
    has_display=1
else
    export QT_QPA_PLATFORM=offscreen
fi

echo
echo "Demo installation: $demo"
ls "$demo"
echo
if [ -x "$demo/q9admin" ]; then
    echo "Protection level in the store (1 High, 2 Medium, 4 Low, 8 Customized):"
    "$demo/q9admin" store get-dword 0 59
    echo "Function switch words (section 14, keys 42, 44, 46):"
    for key in 42 44 46; do "$demo/q9admin" store get-dword 14 "$key"; done
fi
echo
echo "Calling the library as the product's programs do (q9cfg):"
"$demo/q9cfg" report
echo
if [ "$has_display" = 1 ]; then
    echo "Opening the configuration dialog (q9cfg dialog); close it to end."
    "$demo/q9cfg" dialog
else
    shots="$root/build/screenshots"
    echo "No display: the configuration dialog of each edition, page by page, as PNG files:"
    for edition in installed normal master light; do
        "$demo/q9shots" --edition "$edition" --out "$shots"
    done
fi
