#!/usr/bin/env bash
# Runs the caller tests (the library loaded as the product's programs load
# it, whole sessions with real widgets, message boxes and dialogs) under
# valgrind's memcheck: invalid reads and writes, uses of uninitialised
# values, bad frees and mismatched allocations. Leaks are left to the
# sanitizer build, whose LeakSanitizer (with tests/lsan.supp) sees them at a
# fraction of the cost. Reports that belong to Qt or the system libraries,
# not to this system, are suppressed by tests/valgrind.supp.
#
#   scripts/valgrind.sh [build dir] [test filter]
#
# Prints one summary line; the exit status is 1 when valgrind reported an
# error or a test failed.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="${1:-$root/build}"
filter="${2:-*}"
command -v valgrind > /dev/null || apt-get install -y valgrind
cmake --build "$dir" --target q9_caller_tests > /dev/null
log="$dir/valgrind.log"
status=0
QT_QPA_PLATFORM=offscreen valgrind --error-exitcode=9 --leak-check=no --num-callers=30 \
    --suppressions="$root/tests/valgrind.supp" \
    "$dir/tests/q9_caller_tests" --gtest_filter="$filter" > "$log" 2>&1 || status=$?
errors="$(grep -E '^==[0-9]+== ERROR SUMMARY' "$log" | tail -1 | sed -E 's/.*SUMMARY: ([0-9]+) errors.*/\1/')"
passed="$(grep -cE '^\[       OK \]' "$log" || true)"
failed="$(grep -cE '^\[  FAILED  \] .*\(' "$log" || true)"
echo "valgrind: ${passed} tests passed, ${failed} failed, ${errors:-?} errors (log: $log)"
[ "$status" -eq 0 ] || exit 1
