#!/usr/bin/env bash
# wine-run.sh [--desktop] DPI PROGRAM ARGS...: runs a Windows program where a logical inch has DPI pixels; ends with its
# exit code. --desktop is for a person: the windows are handed to the window manager where there is one.
# Prefix and virtual display belong to the build folder that holds the program, or to ORTIN_WINE_FOLDER.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/display.sh
. "$scripts/display.sh"
# shellcheck source=scripts/wine.sh
. "$scripts/wine.sh"

desktop=no
if [ "${1:-}" = --desktop ]; then
    desktop=yes
    shift
fi
if [ $# -lt 2 ]; then
    echo "usage: wine-run.sh [--desktop] DPI PROGRAM [ARGS...]" >&2
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
prefix=$folder/$dpi
managed=N
if [ "$desktop" = yes ]; then
    # A session of its own: one that has just ended on the virtual display still has Wine's desktop there.
    prefix=$folder/$dpi-desktop
    ! window_manager_runs || managed=Y
fi
use_wine_environment "$prefix"
wake_wine_prefix "$prefix" "$dpi" "$managed"

status=0
without_display_lock "$wine_program" "$program" "$@" || status=$?
exit "$status"
