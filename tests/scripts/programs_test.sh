#!/usr/bin/env bash
# What the programs in the root say and do on machines that lack something. The machine is a folder of links that is
# the whole PATH, so nothing is installed or removed.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
cases=0

mkdir "$work/bin"
cp --recursive --symbolic-link /usr/bin/. "$work/bin"
changed=()

# machine_without COMMAND...: a machine that has all commands of this one but these.
machine_without() {
    local command
    for command in "${changed[@]}"; do
        rm -f "$work/bin/$command"
        [ ! -e "/usr/bin/$command" ] || ln -s "/usr/bin/$command" "$work/bin/$command"
    done
    changed=("$@")
    for command in "$@"; do
        rm -f "$work/bin/$command"
    done
    rm -f "$work/calls"
}

# pretend COMMAND SCRIPT: the machine's COMMAND runs SCRIPT and leaves a trace of the call.
pretend() {
    changed+=("$1")
    rm -f "$work/bin/$1"
    printf '#!/bin/sh\necho "%s $*" >>"%s/calls"\n%s\n' "$1" "$work" "$2" >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}

on_machine() {
    env -i PATH="$work/bin" HOME="$work" "$@" >"$work/output" 2>"$work/errors" </dev/null
    status=$?
}

# expect TITLE STATUS LAST_LINE LINES: the exit code, the last line of the standard error, and how many lines it has.
expect() {
    local last lines problem=
    last=$(tail -n 1 "$work/errors")
    lines=$(wc -l <"$work/errors")
    [ "$status" = "$2" ] || problem="exit code $status instead of $2"
    # shellcheck disable=SC2053 # the expected line is a pattern
    [[ $last == $3 ]] || problem="$problem; it says: $last"
    [ "$lines" = "$4" ] || problem="$problem; $lines lines instead of $4"
    report "$1" "$problem"
}

report() {
    cases=$((cases + 1))
    if [ -z "$2" ]; then
        echo "ok      $1"
    else
        failures=$((failures + 1))
        echo "FAILED  $1: $2"
    fi
}

expect_no_call_of() {
    if grep -qs "^$2 " "$work/calls"; then
        report "$1" "$(grep "^$2 " "$work/calls" | head -n 1)"
    else
        report "$1" ""
    fi
}

for program in test.sh run.sh bench.sh; do
    machine_without apt-get ninja sudo
    on_machine "$root/$program"
    expect "$program names the missing package where there is no package manager" 1 \
        "error: ninja-build: not installed, and there is no apt-get to install it with" 1

    machine_without ninja sudo
    pretend apt-get 'exit 0'
    pretend id 'echo 1000'
    on_machine "$root/$program"
    expect "$program names the missing package where there are no rights" 1 \
        "error: ninja-build: not installed, and neither root nor sudo is there to install it" 1
    expect_no_call_of "$program leaves the package manager alone without rights" apt-get
done

machine_without ninja
pretend apt-get 'exit 100'
pretend id 'echo 1000'
pretend sudo 'echo "a password is required" >&2; exit 1'
on_machine "$root/run.sh"
expect "a refused sudo ends in one clear line" 1 "error: ninja-build: could not be installed, see *" 2
expect_no_call_of "a refused sudo installs nothing" apt-get

machine_without ninja ccache
pretend apt-get 'case $* in *install*) exit 100 ;; esac'
pretend id 'echo 0'
on_machine "$root/run.sh"
expect "a failing installation ends in one clear line" 1 "error: ninja-build ccache: could not be installed, see *" 2

machine_without apt-get Xvfb
on_machine "$root/run.sh"
expect "without display, Xvfb and package manager no picture is promised" 1 \
    "error: xvfb: not installed, and there is no apt-get to install it with" 2

machine_without
on_machine "$root/run.sh" --shots ''
expect "a folder without a name ends in one clear line" 2 "error: --shots needs a folder" 1

machine_without
on_machine "$root/run.sh" --print ''
expect "a printer without a name ends in one clear line" 2 "error: --print needs the name of a printer" 1

machine_without sudo
pretend locale 'echo C'
pretend id 'echo 1000'
on_machine "$root/run.sh" --shots "$work/out"
expect "a locale that cannot be generated ends in one clear line" 1 \
    "error: pl_PL.UTF-8: not generated, and neither root nor sudo is there to generate it" 1

machine_without
pretend apt-get 'exit 100'
pretend localedef 'exit 1'
on_machine bash -c ". '$root/scripts/build.sh' && need_packages build test wine display print && need_locale"
expect "a machine that has everything is asked for nothing" 0 "" 0
expect_no_call_of "a machine that has everything needs no package manager" apt-get
expect_no_call_of "a machine that has everything needs no new locale" localedef

machine_without Xvfb
on_machine "$root/scripts/wine-run.sh" 96 "$1"
expect "a program without display and Xvfb ends in one clear line" 1 \
    "error: there is no usable display and Xvfb is not installed" 1

machine_without
on_machine "$root/scripts/wine-run.sh" 96 "$work/absent.exe"
expect "a missing program is named" 2 "error: there is no program $work/absent.exe" 1
on_machine "$root/scripts/wine-run.sh" 12x "$1"
expect "a malformed DPI is named" 2 "error: '12x' is not a number of pixels" 1

for code in 0 7 255; do
    on_machine "$root/scripts/wine-run.sh" 96 "$1" "$code"
    expect "exit code $code of a Windows program is handed on" "$code" "" 0
done

machine_without
on_machine "$root/scripts/printer.sh" "$work/trader's pages" lp -t 'Strony "A"' "$root/README.md"
expect "a document is printed into a folder with an apostrophe" 0 "" 0
for kind in pdf txt; do
    problem=
    [ -s "$work/trader's pages/Strony \"A\".$kind" ] || problem="there is $(ls "$work/trader's pages")"
    report "the $kind of the document is there" "$problem"
done

echo "$((cases - failures)) passed, $failures failed"
[ "$failures" = 0 ]
