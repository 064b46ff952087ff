# shellcheck shell=bash
# What the programs of the project need from the machine, and how it gets there. Sourced by build.sh, which sets root.
# shellcheck disable=SC2154

# A line is a Debian package and a probe: a command or a file that only this package brings. Probing needs no package
# manager, so a machine that has everything is never asked for rights, and a second start costs nothing.
packages_for() {
    case $1 in
        build)
            cat <<'END'
cmake cmake
ninja-build ninja
ccache ccache
g++-mingw-w64-x86-64-posix x86_64-w64-mingw32-g++-posix
googletest /usr/src/googletest/CMakeLists.txt
libboost1.81-dev /usr/include/boost/json/src.hpp
libmsgsl-dev /usr/include/gsl/narrow
END
            ;;
        test)
            echo "g++ g++"
            ;;
        wine)
            cat <<'END'
wine64 /usr/lib/wine/wine64
fonts-liberation /usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf
fonts-wine /usr/share/wine/fonts/tahoma.ttf
libxcomposite1 /usr/lib/x86_64-linux-gnu/libXcomposite.so.1
libxcursor1 /usr/lib/x86_64-linux-gnu/libXcursor.so.1
libxfixes3 /usr/lib/x86_64-linux-gnu/libXfixes.so.3
libxi6 /usr/lib/x86_64-linux-gnu/libXi.so.6
libxrandr2 /usr/lib/x86_64-linux-gnu/libXrandr.so.2
libxrender1 /usr/lib/x86_64-linux-gnu/libXrender.so.1
x11-utils xdpyinfo
locales /usr/share/i18n/locales/pl_PL
END
            ;;
        display)
            echo "xvfb Xvfb"
            ;;
        print)
            cat <<'END'
cups /usr/lib/cups/filter/pstops
cups-daemon /usr/sbin/cupsd
cups-client /usr/sbin/lpadmin
libcups2 /usr/lib/x86_64-linux-gnu/libcups.so.2
printer-driver-cups-pdf /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd
ghostscript gs
poppler-utils pdftotext
END
            ;;
        check)
            cat <<'END'
clang-format clang-format
clang-tidy clang-tidy
g++ g++
libclang-14-dev /usr/lib/llvm-14/include/clang-tidy/ClangTidyCheck.h
llvm-14-dev /usr/lib/llvm-14/include/llvm/ADT/StringRef.h
python3 python3
shellcheck shellcheck
END
            ;;
    esac
}

missing_packages() {
    local group package probe
    for group in "$@"; do
        while read -r package probe; do
            if [ "${probe#/}" != "$probe" ]; then
                [ -e "$probe" ] || echo "$package"
            else
                command -v "$probe" >/dev/null 2>&1 || echo "$package"
            fi
        done < <(packages_for "$group")
    done
}

# as_administrator COMMAND...: fails when the user is neither root nor able to become root.
as_administrator() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

may_administrate() {
    [ "$(id -u)" = 0 ] || command -v sudo >/dev/null 2>&1
}

# need_packages GROUP...: installs what is missing of these groups.
need_packages() {
    local missing log
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    command -v apt-get >/dev/null 2>&1 ||
        fail "${missing[*]}: not installed, and there is no apt-get to install it with"
    may_administrate || fail "${missing[*]}: not installed, and neither root nor sudo is there to install it"

    step "installing ${missing[*]}"
    mkdir -p "$root/build"
    log=$root/build/packages.log
    {
        as_administrator apt-get -o DPkg::Lock::Timeout=300 update &&
            as_administrator env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 install \
                --yes --no-install-recommends "${missing[@]}"
    } >"$log" 2>&1 || fail "${missing[*]}: could not be installed, see $log"
    hash -r
}

# need_locale: the locale that fixes code page, dates and numbers of every program under Wine.
need_locale() {
    ! locale -a 2>/dev/null | grep -qix 'pl_PL.utf-\?8' || return 0
    may_administrate || fail "pl_PL.UTF-8: not generated, and neither root nor sudo is there to generate it"
    step "generating the locale pl_PL.UTF-8"
    as_administrator localedef -i pl_PL -c -f UTF-8 -A /usr/share/locale/locale.alias pl_PL.UTF-8 ||
        fail "pl_PL.UTF-8: could not be generated"
}
