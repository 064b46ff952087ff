#!/usr/bin/env bash
# bench.sh [--json FILE]: builds what is shipped and measures it against the platform's own controls and bare GDI.
set -euo pipefail
caller=$PWD
# shellcheck source=scripts/build.sh
. "$(dirname "${BASH_SOURCE[0]}")/scripts/build.sh"

options=()
for option in "$@"; do
    options+=("$(windows_path "$option")")
done

need_packages build test wine display
need_locale
build windows-release ortin_bench

step "measuring"
cd "$caller"
DISPLAY='' "$root/scripts/wine-run.sh" 96 "$root/build/windows-release/bin/ortin_bench.exe" "${options[@]}"
