#!/usr/bin/env bash
# run.sh [OPTIONS]: builds and starts OrtinDesk; --help lists its options.
# With --shots DIR, or where there is no display, the desk writes pictures of its scenes into DIR (out) and DIR/144, and
# of each printed page into DIR.
set -euo pipefail
caller=$PWD
# shellcheck source=scripts/build.sh
. "$(dirname "${BASH_SOURCE[0]}")/scripts/build.sh"

options=()
shots=
printer=
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
        --print)
            if [ $# = 1 ] || [ -z "$2" ]; then
                echo "error: --print needs the name of a printer" >&2
                exit 2
            fi
            printer=$2
            window=no
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

# system_has PRINTER: whether the machine's own spooler knows it.
system_has() {
    lpstat -e 2>/dev/null | grep --quiet --line-regexp --fixed-strings -- "$1"
}

need_packages build wine
if [ "$window" = yes ] && [ -z "$shots" ] && ! usable_display; then
    step "there is no display, so pictures are written into out"
    shots=out
fi
if [ -n "$shots" ] || ! usable_display; then
    need_packages display
fi
# Pictures of pages come from a printer of the project; and so does PDF, where the machine has no printer of that name.
own_printer=no
if [ -n "$shots" ] || { [ "$printer" = PDF ] && ! system_has PDF; }; then
    own_printer=yes
    need_packages print
fi
need_locale
build windows OrtinDesk

desk=$root/build/windows/bin/OrtinDesk.exe
# Wine begins on the drive of the root, so that paths mean the same on both sides.
cd "$caller"

# print_table: prints without a question; a printer of the project writes into out.
print_table() {
    local run=("$root/scripts/wine-run.sh" 96 "$desk" "${options[@]}" --print "$printer")
    step "printing on $printer"
    if [ "$own_printer" = no ]; then
        exec "${run[@]}"
    fi
    DISPLAY='' "$root/scripts/printer.sh" out "${run[@]}"
    echo out/*.pdf
}

# write_pages FOLDER: the pages of the printed documents of FOLDER as pictures beside the scenes.
write_pages() {
    local document
    rm -f "$shots"/page-*.png
    for document in "$1"/*.pdf; do
        [ ! -e "$document" ] || pdftoppm -r 110 -png "$document" "$shots/page"
    done
    ls "$shots"/page-*.png
}

write_shots() {
    local dpi folder printed
    printed=$(mktemp -d)
    # shellcheck disable=SC2064 # the folder of now
    trap "rm -rf '$printed'" EXIT
    for dpi in 96 144; do
        folder=$shots
        [ "$dpi" = 96 ] || folder=$shots/$dpi
        step "writing pictures at $dpi DPI into $folder"
        DISPLAY='' "$root/scripts/printer.sh" "$printed/$dpi" "$root/scripts/wine-run.sh" "$dpi" "$desk" \
            "${options[@]}" --shots "$folder" --print "${printer:-PDF}" | sed 's/\r$//; s#\\#/#g'
    done
    # One set of pages is enough: at 144 DPI rows are rounded to other heights, nothing else. One scene may print none.
    if compgen -G "$printed/96/*.pdf" >/dev/null; then
        write_pages "$printed/96"
    fi
}

if [ -n "$shots" ]; then
    write_shots
elif [ -n "$printer" ]; then
    print_table
else
    step "starting OrtinDesk"
    exec "$root/scripts/wine-run.sh" --desktop 96 "$desk" "${options[@]}"
fi
