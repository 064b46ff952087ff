# shellcheck shell=bash
# What the programs in the root share: messages and builds. Sourcing it moves to the root of the project.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"
# shellcheck source=scripts/display.sh
. "$root/scripts/display.sh"
# shellcheck source=scripts/wine.sh
. "$root/scripts/wine.sh"

step() {
    echo "==> $*" >&2
}

fail() {
    echo "error: $*" >&2
    exit 1
}

# configure PRESET: only when it is new or the presets have changed; Ninja itself sees changes of the CMake files.
configure() {
    local folder=$root/build/$1
    ! cmp -s CMakePresets.json "$folder/presets.json" || return 0
    step "configuring $1"
    mkdir -p "$folder"
    if ! cmake --preset "$1" >"$folder/configure.log" 2>&1; then
        cat "$folder/configure.log" >&2
        fail "$1: could not be configured"
    fi
    cp CMakePresets.json "$folder/presets.json"
}

# build PRESET [TARGET...]
build() {
    local preset=$1 targets=()
    shift
    [ $# = 0 ] || targets=(--target "$@")
    configure "$preset"
    step "building $preset"
    cmake --build --preset "$preset" "${targets[@]}" >&2 || fail "$preset: could not be built"
}
