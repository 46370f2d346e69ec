#!/usr/bin/env bash
# Builds everything and runs the main job on the bundled demo installation.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"

bash scripts/install-deps.sh
bash scripts/build.sh build

echo
echo "Built:"
for file in build/src/libQ9CfgUL.so build/tests/q9_*_tests build/bench/q9_bench; do
    [ -e "$file" ] && echo "  $file"
done
echo
echo "The library builds; the demo installation and the host program that opens"
echo "the configuration dialog are not part of this build yet."
