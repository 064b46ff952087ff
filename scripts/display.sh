# shellcheck shell=bash
# A display for Windows programs: the caller's own one, or a virtual one that all users of a folder share.

# usable_display: whether DISPLAY names an X server that answers.
usable_display() {
    [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1
}

# hold_virtual_display FOLDER: sets DISPLAY to the virtual display of FOLDER, starting it when it is not there.
# The display ends by itself a few seconds after the last process that holds it; a process that dies holds nothing,
# so nothing is left behind. Children must be started through without_display_lock.
hold_virtual_display() {
    local folder=$1 number
    if ! command -v Xvfb >/dev/null 2>&1; then
        echo "error: there is no usable display and Xvfb is not installed" >&2
        return 1
    fi
    mkdir -p "$folder"
    exec {display_users_lock}>>"$folder/display.users"
    flock --shared "$display_users_lock"

    exec {display_start_lock}>>"$folder/display.start"
    flock "$display_start_lock"
    number=$(cat "$folder/display.number" 2>/dev/null || true)
    if [ -z "$number" ] || ! DISPLAY=:$number xdpyinfo >/dev/null 2>&1; then
        rm -f "$folder/display.number"
        start_virtual_display "$folder"
        number=$(cat "$folder/display.number" 2>/dev/null || true)
    fi
    exec {display_start_lock}>&-
    if [ -z "$number" ]; then
        echo "error: the virtual display did not start, see $folder/display.log" >&2
        return 1
    fi
    export DISPLAY=:$number
    unset XAUTHORITY WAYLAND_DISPLAY
}

# without_display_lock COMMAND...: what Wine starts may outlive the command and must not keep the display alive.
without_display_lock() {
    if [ -n "${display_users_lock:-}" ]; then
        "$@" {display_users_lock}>&-
    else
        "$@"
    fi
}

start_virtual_display() {
    local folder=$1 waited=0
    setsid bash "${BASH_SOURCE[0]}" keep "$folder" </dev/null >"$folder/display.log" 2>&1 \
        {display_users_lock}>&- {display_start_lock}>&- &
    while [ ! -s "$folder/display.number" ] && [ $((waited += 1)) -le 200 ]; do
        sleep 0.05
    done
}

# Runs Xvfb for as long as anybody holds the folder's display, and ten seconds longer: Wine's session outlives its last
# program by five, and the next program is to find it on the display it knows.
keep_virtual_display() {
    local folder=$1 server fifo
    # The caller's own search path may end before the display does.
    PATH=$(command -p getconf PATH)
    exec {users}>>"$folder/display.users"
    fifo=$(mktemp -u "$folder/display.XXXXXX")
    mkfifo "$fifo"
    Xvfb -displayfd 9 -screen 0 1600x1200x24 -nolisten tcp 9<>"$fifo" {users}>&- &
    server=$!
    if read -r -t 10 number <"$fifo"; then
        echo "$number" >"$folder/display.number.new"
        mv "$folder/display.number.new" "$folder/display.number"
    fi
    rm -f "$fifo"
    while kill -0 "$server" 2>/dev/null && flock "$users" && flock --unlock "$users" && sleep 10; do
        if flock --nonblock "$users"; then
            break
        fi
    done
    # A server that died may have a successor by now, and the number there is that one's.
    if kill -0 "$server" 2>/dev/null; then
        rm -f "$folder/display.number"
        kill "$server"
    fi
    wait "$server"
}

if [ "${BASH_SOURCE[0]}" = "$0" ] && [ "${1:-}" = keep ]; then
    keep_virtual_display "$2"
fi
