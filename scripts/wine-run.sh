#!/usr/bin/env bash
# wine-run.sh DPI PROGRAM ARGS...: runs a Windows program where a logical inch has DPI pixels; ends with its exit code.
# Prefix and virtual display belong to the build folder that holds the program, or to ORTIN_WINE_FOLDER.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/display.sh
. "$scripts/display.sh"
# shellcheck source=scripts/wine.sh
. "$scripts/wine.sh"

if [ $# -lt 2 ]; then
    echo "usage: wine-run.sh DPI PROGRAM [ARGS...]" >&2
    exit 2
fi
dpi=$1
program=$2
shift 2
case $dpi in
    '' | *[!0-9]*) echo "error: '$dpi' is not a number of pixels" >&2; exit 2 ;;
esac
if [ ! -f "$program" ]; then
    echo "error: there is no program $program" >&2
    exit 2
fi
if [ ! -x "$wine_program" ]; then
    echo "error: Wine is not installed (Debian package wine64)" >&2
    exit 2
fi
if ! locale -a | grep -qix 'pl_PL.utf-\?8'; then
    echo "error: the locale pl_PL.UTF-8 is not generated; ./test.sh does that" >&2
    exit 2
fi
if ! folder=${ORTIN_WINE_FOLDER:-$(build_folder_of "$program")/wine}; then
    echo "error: $program does not lie in a build folder" >&2
    exit 2
fi
mkdir -p "$folder"

usable_display || hold_virtual_display "$folder"
use_wine_environment "$folder/$dpi"
ensure_wine_prefix "$folder/$dpi" "$dpi"

status=0
without_display_lock "$wine_program" "$program" "$@" || status=$?
exit "$status"
