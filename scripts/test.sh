#!/usr/bin/env bash
# Builds everything and runs the whole test suite twice: in the ordinary build
# and in the AddressSanitizer + UndefinedBehaviorSanitizer build; then builds
# the fuzz targets and gives each a short run. Prints the time of each phase,
# and all of them at the end.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"

phases=()
started=$SECONDS
phase_start=$SECONDS
# Ends the current phase: prints and keeps its time.
end_phase() {
    local line
    line="$(printf '%-24s %5d s' "$1" $((SECONDS - phase_start)))"
    echo "== time: $line"
    phases+=("$line")
    phase_start=$SECONDS
}

bash scripts/install-deps.sh
end_phase "install dependencies"

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
# Cached objects are kept between runs; a fresh clone finds them too (the
# build hashes paths relative to the source folder).
export CCACHE_MAXSIZE="${CCACHE_MAXSIZE:-5G}"

jobs="$(nproc)"
ordinary=()
# CI needs line tables only; a developer's tree keeps full debug information.
[ "${CI:-}" = "true" ] && ordinary+=(-DQ9_LEAN_DEBUG_INFO=ON)

echo "== ordinary build =="
bash scripts/build.sh build "${ordinary[@]}"
end_phase "ordinary build"
ctest --test-dir build --output-on-failure --parallel "$jobs" --timeout 60
end_phase "ordinary tests"

echo "== sanitizer build =="
bash scripts/build.sh build-asan -DQ9_SANITIZE=ON -DQ9_BUILD_BENCHMARKS=OFF
end_phase "sanitizer build"
ctest --test-dir build-asan --output-on-failure --parallel "$jobs" --timeout 60
end_phase "sanitizer tests"

# The readers of outside data under libFuzzer, built with clang in a tree of
# their own; each target runs a short fixed number of times over its seeds
# (scripts/fuzz.sh runs them long, see docs/reliability.md).
echo "== fuzz build =="
bash scripts/build-fuzz.sh build-fuzz
end_phase "fuzz build"
ctest --test-dir build-fuzz --output-on-failure --parallel "$jobs" --timeout 120
end_phase "fuzz runs"

echo "== times =="
printf '%s\n' "${phases[@]}"
printf '%-24s %5d s\n' "total" $((SECONDS - started))
