#!/usr/bin/env bash
# Runs every fuzz target long, one after the other, in the fuzz tree
# (build-fuzz/, built first), and prints one line per target: its name, the
# runs done and the result.
#   scripts/fuzz.sh [--runs N | --time SECONDS] [Name...]
# Default: 10 million runs per target; --time runs each target for that many
# seconds instead. Names pick targets (HiveText, StoreFile, ...); default all.
# Inputs found are kept in build-fuzz/long-corpus/<Name> for the next run;
# a failing input is written to build-fuzz/artifacts/ and named in the result;
# each target's whole output is in build-fuzz/logs/<Name>.log.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$root/build-fuzz"

limit=(-runs=10000000)
names=()
while [ $# -gt 0 ]; do
    case "$1" in
        --runs) limit=(-runs="$2"); shift 2 ;;
        --time) limit=(-runs=-1 -max_total_time="$2"); shift 2 ;;
        -h|--help) sed -n '2,11p' "$0"; exit 0 ;;
        -*) echo "unknown option $1" >&2; exit 2 ;;
        *) names+=("$1"); shift ;;
    esac
done

bash "$root/scripts/build-fuzz.sh" "$build"
if [ ${#names[@]} -eq 0 ]; then
    for args in "$build"/targets/*.args; do
        names+=("$(basename "$args" .args)")
    done
fi

export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"
export LSAN_OPTIONS="${LSAN_OPTIONS:-suppressions=$root/tests/lsan.supp:print_suppressions=0}"
mkdir -p "$build/logs"

# Runs one target; prints its summary line and fails when the run failed.
run_target() {
    local name="$1" work="$build/long-corpus/$1" log="$build/logs/$1.log"
    [ -f "$build/targets/$name.args" ] || { printf '%-24s %14s  %s\n' "$name" - "no such target"; return 1; }
    mkdir -p "$work"
    local options status=0
    mapfile -t options < "$build/targets/$name.args"
    "$build/${name}Fuzzer" "${limit[@]}" "${options[@]}" "$work" "$root/fuzz/corpus/$name" \
        > "$log" 2>&1 || status=$?
    local runs artifact result
    runs="$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)"
    artifact="$(sed -n 's/.*Test unit written to //p' "$log" | tail -1)"
    if [ "$status" -eq 0 ]; then
        result="ok"
    elif [ -n "$artifact" ]; then
        result="FAILED ($(basename "$artifact" | sed "s/^$name-//; s/-.*//")): $artifact"
    else
        result="FAILED (exit $status): see $log"
    fi
    printf '%-24s %14s  %s\n' "$name" "${runs:-?}" "$result"
    [ "$status" -eq 0 ]
}

failed=0
printf '%-24s %14s  %s\n' "target" "runs" "result"
for name in "${names[@]}"; do
    line="$(run_target "$name")" || failed=1
    echo "$line"
done
exit "$failed"
