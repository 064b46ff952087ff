#!/usr/bin/env bash
# run.sh [OPTIONS]: builds and starts OrtinDesk; --help lists its options.
# With --shots DIR, or where there is no display, the desk writes pictures of its scenes into DIR (out) and DIR/144.
set -euo pipefail
caller=$PWD
# shellcheck source=scripts/build.sh
. "$(dirname "${BASH_SOURCE[0]}")/scripts/build.sh"

options=()
shots=
window=yes
while [ $# -gt 0 ]; do
    case $1 in
        --shots)
            if [ $# = 1 ] || [ -z "$2" ]; then
                echo "error: --shots needs a folder" >&2
                exit 2
            fi
            shots=$2
            shift
            ;;
        --help)
            window=no
            options+=("$1")
            ;;
        *) options+=("$1") ;;
    esac
    shift
done

need_packages build wine
if [ "$window" = yes ] && [ -z "$shots" ] && ! usable_display; then
    step "there is no display, so pictures are written into out"
    shots=out
fi
if [ -n "$shots" ] || ! usable_display; then
    need_packages display
fi
need_locale
build windows OrtinDesk

desk=$root/build/windows/bin/OrtinDesk.exe
# Wine begins on the drive of the root, so that paths mean the same on both sides.
cd "$caller"
if [ -z "$shots" ]; then
    step "starting OrtinDesk"
    exec "$root/scripts/wine-run.sh" --desktop 96 "$desk" "${options[@]}"
fi
for dpi in 96 144; do
    folder=$shots
    [ "$dpi" = 96 ] || folder=$shots/$dpi
    step "writing pictures at $dpi DPI into $folder"
    DISPLAY='' "$root/scripts/wine-run.sh" "$dpi" "$desk" "${options[@]}" --shots "$folder" | sed 's/\r$//; s#\\#/#g'
done
