#!/usr/bin/env bash
# bench.sh [--json FILE]: builds what is shipped and measures it against the platform's own controls and bare GDI.
set -euo pipefail
caller=$PWD
# shellcheck source=scripts/build.sh
. "$(dirname "${BASH_SOURCE[0]}")/scripts/build.sh"

need_packages build test wine display
need_locale
build windows-release ortin_bench

step "measuring"
# Wine begins on the drive of the root, so that paths mean the same on both sides.
cd "$caller"
DISPLAY='' "$root/scripts/wine-run.sh" 96 "$root/build/windows-release/bin/ortin_bench.exe" "$@"
