#!/usr/bin/env bash
# The man page says what --help says: every command line of the program's
# --help (the lines "  PROGRAM ...", up to the description column) and every
# option it lists ("--name VALUE") appear in the generated man page, and so
# does each flag name --help lists.
#   man_test.sh PROGRAM MAN-PAGE (the roff file scdoc wrote)
set -euo pipefail
program="$1"
page="$2"
name="$(basename "$program")"

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

help="$("$program" --help)" || fail "$name --help exited with $?"
# The page as plain text: roff's font changes and escapes taken out, each
# run of blanks made one space, one line.
text="$(sed -e 's/\\f[BIRP]//g' -e 's/\\&//g' -e 's/\\-/-/g' -e "s/\\\\(aq/'/g" \
            -e 's/\\e/\\/g' -e '/^\.[A-Za-z]/d' "$page" | tr -s ' \n\t' '   ')"
[ -n "$text" ] || fail "$page is empty"

checked=0
# The text as a whole word sequence: not inside a longer word.
check() {
    grep -qwF -- "$1" <<< "$text" || fail "\"$1\" (from $name --help) is not in $page"
    checked=$((checked + 1))
}

# The command lines: "  PROGRAM WORDS...   description".
while IFS= read -r line; do
    command="$(sed -e 's/^ *//' -e 's/  .*//' <<< "$line")"
    check "$command"
done < <(grep -E "^  $name( |$)" <<< "$help")

# The options listed in the text: "--name" followed by its value's name when
# it has one in capitals (--flags F, --parent WINDOW-ID).
while IFS= read -r option; do
    check "$option"
done < <(grep -oE -- '--[a-z0-9-]+( [A-Z][A-Z0-9-]*)?' <<< "$help" | sort -u)

# The flag names --help lists after "joined by ',' or '|':".
if flags="$(grep -oE "joined by [^:]*: [^)]*" <<< "$help")"; then
    for flag in $(sed -e 's/^[^:]*: //' -e 's/,/ /g' <<< "$flags"); do
        check "$flag"
    done
fi

[ "$checked" -gt 5 ] || fail "only $checked lines of $name --help were found to check"
echo "ok: $checked command, option and flag texts of $name --help are in $(basename "$page")"
