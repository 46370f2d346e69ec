#!/usr/bin/env bash
# The bash completion of q9cfg and q9admin: sources each completion file,
# sets COMP_WORDS and COMP_CWORD as bash does, calls the completion function
# and checks COMPREPLY. The commands, options and verbs offered are checked
# against each program's --help, so that the completion follows the programs.
#   completion_test.sh COMPLETION-DIR PROGRAM-DIR
set -euo pipefail
completions="$(cd "$1" && pwd)"
programs="$(cd "$2" && pwd)"

# A working directory of known content, as file names are offered from it.
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
touch "$scratch/policy.dat" "$scratch/policy two.dat"

# shellcheck source=/dev/null
source "$completions/q9cfg"
# shellcheck source=/dev/null
source "$completions/q9admin"

failures=0
cases=0
# complete FUNCTION WORD... : COMPREPLY for the command line WORD... with the
# cursor in its last word.
complete_line() {
    local function="$1"
    shift
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMPREPLY=()
    # Bash runs completion functions without errexit; so does the test.
    "$function" || true
}
# expect FUNCTION "EXPECTED WORDS" WORD... : every expected word is offered.
expect() {
    local function="$1" expected="$2" word
    shift 2
    complete_line "$function" "$@"
    cases=$((cases + 1))
    for word in $expected; do
        if ! printf '%s\n' "${COMPREPLY[@]}" | grep -qxF -- "$word"; then
            echo "FAIL: \"$*\" does not offer \"$word\" (offers: ${COMPREPLY[*]})" >&2
            failures=$((failures + 1))
        fi
    done
}
# expect_exactly FUNCTION "EXPECTED" WORD... : exactly the expected words are
# offered, given one a line (see lines).
expect_exactly() {
    local function="$1" expected="$2" got
    shift 2
    complete_line "$function" "$@"
    cases=$((cases + 1))
    got="$([ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\n' "${COMPREPLY[@]}" | sort)"
    if [ "$got" != "$(sort <<< "$expected" | sed '/^$/d')" ]; then
        echo "FAIL: \"$*\" offers \"${got//$'\n'/|}\", expected \"${expected//$'\n'/|}\"" >&2
        failures=$((failures + 1))
    fi
}
# Its arguments one a line.
lines() {
    [ $# -eq 0 ] || printf '%s\n' "$@"
}

files="$(lines "$scratch/policy.dat" "$scratch/policy two.dat")"

# --- q9cfg: against its --help
help="$("$programs/q9cfg" --help)"
commands="$(grep -E '^  q9cfg [a-z]' <<< "$help" | awk '{print $2}' | sort -u | tr '\n' ' ')"
options="$(grep -oE -- '--[a-z0-9-]+' <<< "$help" | sort -u | tr '\n' ' ')"
flags="$(grep -oE "joined by [^:]*: [^)]*" <<< "$help" | sed -e 's/^[^:]*: //' -e 's/,/ /g')"
[ -n "$commands" ] && [ -n "$options" ] && [ -n "$flags" ] || { echo "FAIL: q9cfg --help not understood" >&2; exit 1; }
expect _q9cfg "$commands" q9cfg ""
expect _q9cfg "$options" q9cfg --
expect _q9cfg "$options" q9cfg dialog --
expect _q9cfg "$flags" q9cfg domodal --flags ""
expect_exactly _q9cfg "$(lines dialog domodal)" q9cfg d
expect_exactly _q9cfg "$(lines report)" q9cfg --page 3 re
expect_exactly _q9cfg "$(lines master)" q9cfg domodal --flags mas
expect_exactly _q9cfg "$(lines master,light)" q9cfg domodal --flags master,li
expect_exactly _q9cfg "$(lines apply)" q9cfg policy ap
expect_exactly _q9cfg "$files" q9cfg policy diff "$scratch/pol"
expect_exactly _q9cfg "$files" q9cfg dialog --path1 "$scratch/p"
expect_exactly _q9cfg "" q9cfg report ""
expect_exactly _q9cfg "" q9cfg --page ""

# --- q9admin: against its --help
help="$("$programs/q9admin" --help)"
groups="$(grep -E '^  q9admin [a-z]' <<< "$help" | awk '{print $2}' | sort -u | tr '\n' ' ')"
[ -n "$groups" ] || { echo "FAIL: q9admin --help not understood" >&2; exit 1; }
expect _q9admin "$groups" q9admin ""
for group in $groups; do
    verbs="$({ grep -E "^  q9admin $group [a-z]" <<< "$help" || true; } | awk '{print $3}' | sort -u)"
    # The verbs of the group, or none for a verb without one (journal).
    expect_exactly _q9admin "$verbs" q9admin "$group" ""
done
expect_exactly _q9admin "$(lines HKLM HKCU)" q9admin registry set-dword ""
expect_exactly _q9admin "$(lines HKCU)" q9admin registry dump HKC
expect_exactly _q9admin "$(lines get-dword get-text get-enc get-list)" q9admin store get
expect_exactly _q9admin "$files" q9admin store dump "$scratch/po"
expect_exactly _q9admin "" q9admin store get-dword ""

if [ "$failures" -gt 0 ]; then
    echo "$failures of the checks in $cases completions failed" >&2
    exit 1
fi
echo "ok: $cases completions as expected"
