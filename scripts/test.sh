#!/usr/bin/env bash
# Builds everything and runs the whole test suite twice: in the ordinary build
# and in the AddressSanitizer + UndefinedBehaviorSanitizer build.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"

bash scripts/install-deps.sh

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

jobs="$(nproc)"

echo "== ordinary build =="
bash scripts/build.sh build
ctest --test-dir build --output-on-failure --parallel "$jobs"

echo "== sanitizer build =="
bash scripts/build.sh build-asan -DQ9_SANITIZE=ON -DQ9_BUILD_BENCHMARKS=OFF
ctest --test-dir build-asan --output-on-failure --parallel "$jobs"
