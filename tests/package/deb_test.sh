#!/usr/bin/env bash
# Builds the Debian package with CPack into a scratch directory, checks that
# its dependencies were worked out from the shared libraries, unpacks it with
# dpkg-deb -x and runs the programs from the unpacked tree.
#   deb_test.sh BUILD-DIR INSTALLATION-DIR
# (INSTALLATION-DIR as in the package, e.g. usr/lib/q9)
set -euo pipefail
build="$1"
installation="$2"

scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
unset Q9_INSTALL_DIR Q9_REGISTRY_DIR
export QT_QPA_PLATFORM=offscreen

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

cpack --config "$build/CPackConfig.cmake" -B "$scratch/out" > "$scratch/cpack.log" 2>&1 || {
    cat "$scratch/cpack.log"
    fail "cpack"
}
debs=("$scratch"/out/*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || fail "cpack made no single .deb: ${debs[*]}"
deb="${debs[0]}"
echo "ok: built $(basename "$deb")"

# dpkg-shlibdeps found the libraries the binaries link (Qt, libsodium, the C++
# runtime) and named their packages.
depends="$(dpkg-deb -f "$deb" Depends)"
for package in libc6 libstdc++6 libqt6widgets6 libsodium23; do
    [[ "$depends" == *"$package "* || "$depends" == *"$package," || "$depends" == *"$package" ]] \
        || fail "Depends lacks $package: $depends"
done
echo "ok: Depends: $depends"

root="$scratch/root"
dpkg-deb -x "$deb" "$root"
output="$("$root/usr/bin/q9cfg" report)" || fail "q9cfg report exited with $?: $output"
[ "$output" = "result: 1" ] || fail "q9cfg report printed \"$output\""
echo "ok: usr/bin/q9cfg report -> $output"
output="$("$root/$installation/q9admin" store get-dword 0 59)" || fail "q9admin exited with $?"
[ "$output" = "0x00000002 (2)" ] || fail "q9admin store get-dword 0 59 printed \"$output\""
echo "ok: $installation/q9admin store get-dword 0 59 -> $output"
