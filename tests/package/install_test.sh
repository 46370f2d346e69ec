#!/usr/bin/env bash
# Installs the build into a scratch prefix and checks that the installation
# works from there: the files are where docs/packaging.md says, the programs
# run (through their links in bin/ too) on the installation's own data, the
# installation still works after being moved, and a program outside the
# project builds against it once with find_package(Q9CfgUL) and once with
# pkg-config, links the library and calls Q9CfgUL_Report.
#   install_test.sh BUILD-DIR CALLER-SOURCE-DIR LIBDIR INSTALLATION-DIR
# (LIBDIR and INSTALLATION-DIR relative to the prefix, e.g. lib and lib/q9)
set -euo pipefail
build="$1"
caller_source="$2"
libdir="$3"
installation="$4"

scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
unset Q9_INSTALL_DIR Q9_REGISTRY_DIR
export QT_QPA_PLATFORM=offscreen

fail() {
    echo "FAIL: $*" >&2
    exit 1
}
expect_output() {  # expect_output EXPECTED COMMAND...
    local expected="$1" output
    shift
    output="$("$@")" || fail "$* exited with $?: $output"
    [ "$output" = "$expected" ] || fail "$* printed \"$output\", expected \"$expected\""
    echo "ok: $* -> $output"
}

prefix="$scratch/prefix"
cmake --install "$build" --prefix "$prefix" > "$scratch/install.log" || {
    cat "$scratch/install.log"
    fail "cmake --install"
}
dir="$prefix/$installation"

# Where everything goes.
for file in \
    "$dir/libQ9CfgUL.so" "$dir/libQ9CfgUL.so.1" "$dir/libQ9CfgUL.so.1.0.0" \
    "$dir/libQ9Problems.so" "$dir/libQ9CfgE.so" "$dir/libOrvI18N.so" "$dir/libOrvInst.so" "$dir/libQ9SSCtrl.so" \
    "$dir/libQ9P3ATHL.so" "$dir/libQ9IMcfg.so" "$dir/libQ9MsgFlt.so" "$dir/libOrvDMZ.so" \
    "$dir/q9cfg" "$dir/q9admin" "$dir/Q9CfgDef.dat" "$dir/OrvMd.dat" "$dir/Q9Sec.dat" \
    "$dir/Resource/Wizard.bmp" "$dir/Resource/Schedule_Wizard.bmp" "$dir/registry/HKLM.reg" \
    "$prefix/bin/q9cfg" "$prefix/bin/q9admin" "$prefix/include/q9cfgul.h" \
    "$prefix/share/man/man1/q9cfg.1.gz" "$prefix/share/man/man1/q9admin.1.gz" \
    "$prefix/share/bash-completion/completions/q9cfg" \
    "$prefix/share/bash-completion/completions/q9admin" \
    "$prefix/share/applications/q9cfg.desktop" \
    "$prefix/share/icons/hicolor/scalable/apps/q9cfg.svg"; do
    [ -e "$file" ] || fail "not installed: ${file#"$prefix"/}"
done
ls "$dir"/Lang/*.qm > /dev/null || fail "no translations in ${dir#"$prefix"/}/Lang"
[ -L "$dir/libQ9CfgUL.so" ] && [ "$(readlink "$dir/libQ9CfgUL.so")" = libQ9CfgUL.so.1 ] \
    || fail "libQ9CfgUL.so is not a link to libQ9CfgUL.so.1"
soname="$(readelf -d "$dir/libQ9CfgUL.so.1.0.0" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')"
[ "$soname" = libQ9CfgUL.so.1 ] || fail "SONAME is \"$soname\""
for program in q9cfg q9admin; do
    [ -L "$prefix/bin/$program" ] || fail "bin/$program is not a link"
    case "$(readlink "$prefix/bin/$program")" in
        /*) fail "bin/$program is an absolute link" ;;
    esac
done
echo "ok: files in place"

# The programs, from the installation directory and through bin/: the seeded
# protection level (Medium, 2) from the factory defaults, and the registry
# seed's scheduled scan.
level="0x00000002 (2)"
for where in "$dir" "$prefix/bin"; do
    expect_output "result: 1" "$where/q9cfg" report
    expect_output "$level" "$where/q9admin" store get-dword 0 59
    "$where/q9admin" registry dump HKLM | grep -q 'Schedule' \
        || fail "$where/q9admin registry dump HKLM lacks the seeded schedule"
done
# Found through PATH, as the desktop entry starts it.
expect_output "result: 1" env PATH="$prefix/bin:$PATH" q9cfg report

# Moved elsewhere, the installation works as well.
mv "$prefix" "$scratch/moved"
prefix="$scratch/moved"
dir="$prefix/$installation"
expect_output "result: 1" "$prefix/bin/q9cfg" report
expect_output "$level" "$prefix/bin/q9admin" store get-dword 0 59

# A caller built with CMake: find_package(Q9CfgUL), target Q9CfgUL::Q9CfgUL.
cmake -S "$caller_source" -B "$scratch/caller-cmake" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_BUILD_TYPE=Release > "$scratch/caller-cmake.log" 2>&1 \
    && cmake --build "$scratch/caller-cmake" >> "$scratch/caller-cmake.log" 2>&1 || {
    cat "$scratch/caller-cmake.log"
    fail "the CMake caller does not build"
}
expect_output "Q9CfgUL_Report: 1" "$scratch/caller-cmake/caller"

# A caller built with plain g++ and pkg-config.
export PKG_CONFIG_PATH="$prefix/$libdir/pkgconfig"
flags="$(pkg-config --cflags --libs q9cfgul)" || fail "pkg-config q9cfgul"
# shellcheck disable=SC2086 # the flags are words
g++ -o "$scratch/caller-pkgconfig" "$caller_source/caller.cpp" $flags \
    || fail "g++ caller.cpp $flags"
expect_output "Q9CfgUL_Report: 1" "$scratch/caller-pkgconfig"
installdir="$(pkg-config --variable=installdir q9cfgul)"
[ "$(cd "$installdir" && pwd -P)" = "$(cd "$dir" && pwd -P)" ] \
    || fail "pkg-config's installdir is $installdir"
echo "ok: callers built with CMake and pkg-config"
