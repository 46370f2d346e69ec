#!/usr/bin/env bash
# Crash trials: kills the writer of the live configuration store and of a
# registry hive at random moments and checks that what it leaves behind is
# whole (docs/reliability.md, "Crash trials").
#
#   scripts/crash-trials.sh [TRIALS]        (default 1000)
#
# Trials alternate between the store and the hive. Each starts
# q9_crash_writer for generation g + 1 over a folder that holds generation g,
# kills it with SIGKILL after a random delay between 0 and 1.2 times the
# writer's measured running time, and has the same program read the folder
# back in a process of its own.
#
# Environment:
#   Q9_CRASH_WRITER  the q9_crash_writer program to use; nothing is built
#   Q9_CRASH_BUILD   otherwise the build tree to build it in (default: build)
#   Q9_CRASH_SEED    seed of the random delays (default: from the clock)
#   Q9_CRASH_DIR     where the trials' folders are made (default: $TMPDIR or
#                    /tmp); a memory file system such as /dev/shm runs faster
#                    but leaves the unsafe moments of a writer far shorter
#
# The last line is the summary; the exit status is 1 when a torn file, a lost
# setting or a failed write was found (the folders are then kept).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"

trials="${1:-1000}"
if ! [[ "$trials" =~ ^[1-9][0-9]*$ ]]; then
    echo "usage: $0 [TRIALS]" >&2
    exit 2
fi

# --- The program --------------------------------------------------------------
writer="${Q9_CRASH_WRITER:-}"
if [ -z "$writer" ]; then
    build="${Q9_CRASH_BUILD:-build}"
    [[ "$build" = /* ]] || build="$root/$build"
    if [ -f "$build/build.ninja" ]; then
        cmake --build "$build" --target q9_crash_writer > /dev/null
    else
        bash "$root/scripts/build.sh" "$build" -- --target q9_crash_writer > /dev/null
    fi
    writer="$build/tests/q9_crash_writer"
fi

seed="${Q9_CRASH_SEED:-$((SECONDS + $$))}"
RANDOM=$seed

work="$(mktemp -d "${Q9_CRASH_DIR:-${TMPDIR:-/tmp}}/q9crash.XXXXXX")"
keep=0
trap '[ "$keep" = 1 ] || rm -rf "$work"' EXIT

declare -A generation=() runtime=() runs=() finished=() ended=()
torn=0 lost=0 failed=0 old=0 new=0 partway=0

# --- Helpers ------------------------------------------------------------------
# Microseconds of the clock.
now_us() {
    local t="$EPOCHREALTIME"
    echo $((10#${t//[.,]/}))
}

data_file() {
    if [ "$1" = store ]; then echo "$work/store/Q9Cfg.dat"; else echo "$work/hive/HKLM.reg"; fi
}

# A random number of microseconds from 0 to $1.
random_us() { echo $(((RANDOM * 32768 + RANDOM) % ($1 + 1))); }

# Sets $verdict to the checker's line for folder $1 that held generation $2,
# and $sound to 1 when the checker found the folder sound, else 0. A checker
# that gives no verdict stops the trials.
check() {
    sound=1
    verdict="$("$writer" check "$1" "$work/$1" "$2" 2> "$work/check.err")" || sound=0
    if ! [[ "$verdict" =~ ^[a-z-]+\ missing\ [0-9]+\ damaged\ [0-9]+$ ]]; then
        echo "the checker gave no verdict on the $1 folder:" >&2
        cat "$work/check.err" >&2
        keep=1
        exit 1
    fi
}

# A failure found: reported, and the folder kept for a look.
keep_failure() {
    local name="$1" mode="$2"
    echo "$name ($mode): $verdict" >&2
    keep=1
    cp -a "$work/$mode" "$work/failed-${name// /-}"
}

# Runs the writer to its end and checks that it wrote the whole generation;
# a complete write that fails stops the trials. Sets $took to the writer's
# running time in microseconds.
write_whole() {
    local mode="$1" gen="$2" start
    start=$(now_us)
    if ! "$writer" write "$mode" "$work/$mode" "$gen" > "$work/writer.log" 2>&1; then
        echo "a complete write of generation $gen ($mode) failed:" >&2
        cat "$work/writer.log" >&2
        keep=1
        exit 1
    fi
    took=$(($(now_us) - start))
    check "$mode" $((gen - 1))
    if [ "$verdict" != "new missing 0 damaged 0" ]; then
        echo "after a complete write of generation $gen ($mode): $verdict" >&2
        keep=1
        exit 1
    fi
    generation[$mode]=$gen
}

# Writes generations 1 to 6 uninterrupted; the running time is the median
# of the runs over an existing file (the first one creates it).
measure() {
    local mode="$1" gen times=()
    for gen in 1 2 3 4 5 6; do
        write_whole "$mode" "$gen"
        [ "$gen" -gt 1 ] && times+=("$took")
    done
    runtime[$mode]=$(printf '%s\n' "${times[@]}" | sort -n | sed -n 3p)
}

# The checker must catch what the trials look for: a file cut short and a
# file that mixes two generations (the last word of the set one generation
# ahead). Works on copies of the folder.
self_test() {
    local mode="$1" gen="${generation[$1]}" name
    name="$(basename "$(data_file "$mode")")"
    copy_to_probe "$mode"
    truncate -s $(($(stat -c %s "$work/probe/$name") / 2)) "$work/probe/$name"
    if check_probe "$mode" "$gen"; then
        echo "the checker passed a $mode file cut in half: $verdict" >&2
        exit 1
    fi
    copy_to_probe "$mode"
    tac "$work/$mode/$name" |
        sed "0,/dword:$(printf %08x "$gen")/Is//dword:$(printf %08x $((gen + 1)))/" |
        tac > "$work/probe/$name"
    if check_probe "$mode" "$gen" || [[ "$verdict" != mixed* ]]; then
        echo "the checker did not see two generations in a $mode file: $verdict" >&2
        exit 1
    fi
    rm -rf "$work/probe"
}

copy_to_probe() {
    rm -rf "$work/probe"
    cp -a "$work/$1" "$work/probe"
}

# Checks the probe folder as a folder of mode $1 that held generation $2;
# sets $verdict, and succeeds when the checker found it sound.
check_probe() {
    local status=0
    verdict="$("$writer" check "$1" "$work/probe" "$2" 2> /dev/null)" || status=$?
    return $status
}

# Brings a folder left part-way back to one generation: the writer of the
# same generation run to its end.
settle() {
    write_whole "$1" $((generation[$1] + 1))
}

# One trial of the given mode; the trial's number in $2.
trial() {
    local mode="$1" number="$2" gen="${generation[$1]}" delay seconds status=0
    local state missing damaged
    delay=$(random_us $((runtime[$mode] * 12 / 10)))
    # Formatted before the writer starts: a command substitution would fork
    # and add to the delay.
    printf -v seconds '%d.%06d' $((delay / 1000000)) $((delay % 1000000))
    "$writer" write "$mode" "$work/$mode" $((gen + 1)) > "$work/writer.log" 2>&1 &
    local pid=$!
    sleep "$seconds"
    kill -KILL "$pid" 2> /dev/null || true
    # Quietly: the shell would announce the killed job.
    { wait "$pid"; } 2> /dev/null || status=$?
    runs[$mode]=$((${runs[$mode]:-0} + 1))
    if [ "$status" -eq 0 ]; then
        finished[$mode]=$((${finished[$mode]:-0} + 1))
    elif [ "$status" -ne 137 ]; then
        failed=$((failed + 1))
        echo "trial $number ($mode): the writer failed with status $status:" >&2
        cat "$work/writer.log" >&2
    fi

    check "$mode" "$gen"
    read -r state _ missing _ damaged <<< "$verdict"
    if [ "$state" = unreadable ] || [ "$state" = mixed ] || [ "$damaged" -gt 0 ]; then
        torn=$((torn + 1))
    fi
    lost=$((lost + missing))
    ended[$mode $state]=$((${ended[$mode $state]:-0} + 1))
    case "$state" in
        old) old=$((old + 1)) ;;
        new) new=$((new + 1)) ; generation[$mode]=$((gen + 1)) ;;
        part-way) partway=$((partway + 1)) ; settle "$mode" ;;
    esac
    if [ "$sound" = 0 ]; then
        keep_failure "trial $number" "$mode"
        # Starts the folder over, so that the next trials test the writer
        # and not this broken file.
        rm -f "$(data_file "$mode")"
        write_whole "$mode" $((gen + 1))
    fi
}

count_temporaries() {
    find "$work/store" "$work/hive" -name '.Q9Cfg.dat.*' -o -name '.HKLM.reg.*' | wc -l
}

# --- The trials ---------------------------------------------------------------
mkdir -p "$work/store" "$work/hive"
for mode in store hive; do
    measure "$mode"
    self_test "$mode"
done

for ((number = 1; number <= trials; number++)); do
    if ((number % 2 == 1)); then trial store "$number"; else trial hive "$number"; fi
done

# Temporaries of killed writers are left where they are: the writes after
# them must work all the same, and one more complete write of each shows it.
temporaries=$(count_temporaries)
write_whole store $((generation[store] + 1))
write_whole hive $((generation[hive] + 1))

for mode in store hive; do
    printf '%s: writer %d ms, kills from 0 to %d ms, %d of %d writers ended before the kill;' \
        "$mode" $((runtime[$mode] / 1000)) $((runtime[$mode] * 12 / 10000)) \
        "${finished[$mode]:-0}" "${runs[$mode]:-0}"
    printf ' old %d, new %d, part-way %d\n' "${ended[$mode old]:-0}" "${ended[$mode new]:-0}" \
        "${ended[$mode part-way]:-0}"
done
echo "seed $seed; folders in $work$([ "$keep" = 1 ] && echo ' (kept)' || echo ' (removed)')"

summary="crash trials: $trials trials (store ${runs[store]:-0}, hive ${runs[hive]:-0}),"
summary+=" $torn torn files, $lost lost settings (old $old, new $new, part-way $partway)"
[ "$temporaries" -gt 0 ] && summary+=", $temporaries leftover temporaries (later writes unharmed)"
[ "$failed" -gt 0 ] && summary+=", $failed failed writes"
echo "$summary"
[ $((torn + lost + failed)) -eq 0 ]
