# shellcheck shell=bash
# Wine prefixes, one for each DPI, and the environment in which Wine runs a program.

wine_program=/usr/lib/wine/wine64
wine_server=/usr/lib/wine/wineserver64

# build_folder_of PROGRAM: the CMake build folder that holds PROGRAM.
build_folder_of() {
    local folder
    folder=$(cd "$(dirname "$1")" && pwd) || return 1
    while [ ! -e "$folder/CMakeCache.txt" ]; do
        [ "$folder" != / ] || return 1
        folder=$(dirname "$folder")
    done
    echo "$folder"
}

# use_wine_environment PREFIX: what every Wine process of the project sees. Code page and formats follow the locale.
use_wine_environment() {
    export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml="
    export LC_ALL=pl_PL.UTF-8
    unset LANG LANGUAGE LC_CTYPE
}

# window_manager_runs: whether somebody else frames the windows and moves the focus on this display.
window_manager_runs() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# wine_settings DPI MANAGED: a crash writes where it was and ends the program, instead of asking the user. Without a
# window manager each activation of a managed window costs two seconds.
wine_settings() {
    cat <<EOF
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\\Control Panel\\Desktop]
"LogPixels"=dword:$(printf '%08x' "$1")
"FontSmoothing"="0"
"FontSmoothingType"=dword:00000000

[HKEY_CURRENT_USER\\Software\\Wine\\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\\Software\\Wine]
"Version"="win10"

[HKEY_CURRENT_USER\\Software\\Wine\\X11 Driver]
"Managed"="$2"
EOF
}

# wake_wine_prefix PREFIX DPI [MANAGED]: makes the prefix once and starts its session, however many processes ask for it
# at the same time. The session ends five seconds after its last program. Its own processes start here, away from the
# caller's output: who reads a program's output to the end would wait for them, too.
wake_wine_prefix() {
    local prefix=$1 dpi=$2 settings lock
    settings=$(wine_settings "$dpi" "${3:-N}")
    mkdir -p "$prefix"
    exec {lock}>>"$prefix.lock"
    flock "$lock"
    if [ "$(cat "$prefix/settings.reg" 2>/dev/null)" != "$settings" ]; then
        echo "Making a Wine prefix of $dpi DPI..." >&2
        printf '%s\n' "$settings" >"$prefix/settings.new"
        if ! make_wine_prefix "$prefix" </dev/null >"$prefix.log" 2>&1 {lock}>&-; then
            echo "error: the Wine prefix could not be made, see $prefix.log" >&2
            return 1
        fi
        mv "$prefix/settings.new" "$prefix/settings.reg"
    fi
    if ! "$wine_server" -k0; then
        start_wine_session </dev/null >/dev/null 2>&1 {lock}>&-
    fi
    exec {lock}>&-
}

# The prefix counts as made when its registry lies on the disk, which Wine does when its session ends: a machine that is
# switched off a moment later must not leave half a prefix.
make_wine_prefix() {
    without_display_lock "$wine_server" -p5
    without_display_lock "$wine_program" wineboot -i &&
        without_display_lock "$wine_program" regedit /S "Z:${1//\//\\}\\settings.new" &&
        "$wine_server" -k
}

start_wine_session() {
    without_display_lock "$wine_server" -p5
    # Whatever asks for the desktop makes Wine start it.
    without_display_lock "$wine_program" rundll32 user32.dll,GetDesktopWindow
}
