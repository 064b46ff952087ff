#!/usr/bin/env bash
# package_test.sh BUILD_FOLDER: a small host is configured, built and run against what that build installs. The installed
# folder is moved first, so that nothing in it may remember where it was.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/installed" >"$work/install.log"
mv "$work/installed" "$work/package"
# The host must not find anything in the project itself.
cp -r "$root/tests/package/host" "$work/source"
cmake -S "$work/source" -B "$work/host" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64-x86_64.cmake" -DCMAKE_PREFIX_PATH="$work/package"
if grep -rqF -e "$root" -e "$build" "$work/package/lib/cmake"; then
    echo "FAILED: the package remembers where it was built"
    exit 1
fi
cmake --build "$work/host"
said=$(ORTIN_WINE_FOLDER=$build/wine "$root/scripts/wine-run.sh" 96 "$work/host/host.exe" | tr -d '\r')
echo "the host says: $said"
[ "$said" = "table made, columns: 1" ]
