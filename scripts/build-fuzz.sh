#!/usr/bin/env bash
# Configures and builds the fuzz tree (fuzz/, made with clang) in one build
# folder, build-fuzz/ unless another is given:
#   scripts/build-fuzz.sh [dir] [cmake options...]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="${1:-$root/build-fuzz}"
[ $# -gt 0 ] && shift
mkdir -p "$dir"
cmake -S "$root/fuzz" -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ "$@" > "$dir/configure.log" 2>&1 \
    || { cat "$dir/configure.log"; exit 1; }
cmake --build "$dir" --parallel
