#!/usr/bin/env bash
# package_test.sh BUILD_FOLDER: two small hosts are configured, built and run against what that build installs: one that
# has no Boost, one that brings its own. The installed folder is moved first, so that nothing in it may remember where it
# was.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/installed" >"$work/install.log"
mv "$work/installed" "$work/package"
mkdir "$work/boost"
ln -s /usr/include/boost "$work/boost/boost"
# The hosts must not find anything in the project itself.
cp -r "$root/tests/package/host" "$work/source"
cmake -S "$work/source" -B "$work/host" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64-x86_64.cmake" -DCMAKE_PREFIX_PATH="$work/package" \
    -DBOOST_HEADERS="$work/boost"
if grep -rqF -e "$root" -e "$build" "$work/package/lib/cmake"; then
    echo "FAILED: the package remembers where it was built"
    exit 1
fi
cmake --build "$work/host"
expect() { # expect PROGRAM WORDS
    local said
    said=$(ORTIN_WINE_FOLDER=$build/wine "$root/scripts/wine-run.sh" 96 "$work/host/$1.exe" | tr -d '\r')
    echo "$1 says: $said"
    [ "$said" = "$2" ]
}
expect host "table made, columns: 1, frame begun"
expect json_host "font came back, a list refused"
