#!/usr/bin/env bash
# Configures and builds one build tree:
#   scripts/build.sh <dir> [cmake options...] [-- build options...]
# e.g. scripts/build.sh build -- --target demo
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="$1"
shift
configure=()
while [ $# -gt 0 ] && [ "$1" != "--" ]; do
    configure+=("$1")
    shift
done
[ $# -gt 0 ] && shift
mkdir -p "$dir"
cmake -S "$root" -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${configure[@]}" > "$dir/configure.log" 2>&1 \
    || { cat "$dir/configure.log"; exit 1; }
cmake --build "$dir" --parallel "$@"
