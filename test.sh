#!/usr/bin/env bash
# test.sh [CTEST OPTIONS]: builds and runs every test; ends with CTest's summary.
set -euo pipefail
# shellcheck source=scripts/build.sh
. "$(dirname "${BASH_SOURCE[0]}")/scripts/build.sh"

need_packages build test wine display print
need_locale
build core-sanitize
build windows

# The tests have a display of their own, whatever display the user has, and those that move the mouse a second one.
wine_folder=$root/build/windows/wine
hold_virtual_display "$wine_folder"
for dpi in 96 144; do
    (use_wine_environment "$wine_folder/$dpi" && wake_wine_prefix "$wine_folder/$dpi" "$dpi")
done

# One summary over both builds.
mkdir -p build/tests
printf 'subdirs("%s" "%s")\n' "$root/build/core-sanitize" "$root/build/windows" >build/tests/CTestTestfile.cmake
step "running the tests"
without_display_lock ctest --test-dir build/tests --output-on-failure --no-tests=error --parallel "$(nproc)" "$@"
