#!/usr/bin/env bash
# printer.sh FOLDER COMMAND...: runs COMMAND with a print spooler of its own, whose one printer, PDF, makes of each job
# the files FOLDER/TITLE.pdf and, when that is there, TITLE.txt with its text, a form feed after each page. Ends with the
# exit code of COMMAND, and the spooler with it; another spooler of the machine is neither used nor touched.
# COMMAND finds FOLDER in ORTIN_PRINTED.
set -euo pipefail

if [ $# -lt 2 ]; then
    echo "usage: printer.sh FOLDER COMMAND [ARGS...]" >&2
    exit 2
fi
mkdir -p "$1"
printed=$(cd "$1" && pwd)
shift
for tool in /usr/sbin/cupsd /usr/sbin/lpadmin gs pdftotext; do
    if ! command -v "$tool" >/dev/null; then
        echo "error: there is no print spooler ($tool is missing); ./test.sh installs one" >&2
        exit 2
    fi
done

# A short path: that of a socket has an end.
work=$(mktemp -d /tmp/ortin-printer.XXXXXX)
# The spooler of root runs its filters as another user.
chmod 755 "$work"
spooler=
# shellcheck disable=SC2317 # the trap calls it
stop() {
    if [ -n "$spooler" ]; then
        kill "$spooler" 2>/dev/null || true
        wait "$spooler" 2>/dev/null || true
    fi
    rm -rf "$work"
}
trap stop EXIT
trap 'exit 130' INT TERM

# All of the machine's filters, and a backend of our own: the usual one writes into the user's home.
mkdir -p "$work"/{etc/ppd,bin/backend,spool/tmp,cache,state}
for part in /usr/lib/cups/*; do
    [ "$(basename "$part")" = backend ] || ln -s "$part" "$work/bin"
done
# quoted TEXT: as a word of any shell.
quoted() {
    printf "'%s'" "${1//\'/\'\\\'\'}"
}
# Arguments of a backend: job, user, title, copies, options, file. The name of the text comes last, so that who waits for
# it finds all of it.
cat >"$work/bin/backend/pdffile" <<END
#!/bin/sh
[ \$# -gt 0 ] || { echo 'direct pdffile "Unknown" "PDF files"'; exit 0; }
umask 022
name=\$(printf '%s' "\$3" | tr '/' '_')
printed=$(quoted "$printed")
part='$work/spool/tmp/part'
cat "\${6:--}" >"\$part.ps" && [ -s "\$part.ps" ] &&
    gs -q -dNOPAUSE -dBATCH -dSAFER -sDEVICE=pdfwrite "-sOutputFile=\$part.pdf" "\$part.ps" >&2 &&
    pdftotext -layout "\$part.pdf" "\$part.txt" &&
    mv "\$part.pdf" "\$printed/\$name.pdf" &&
    mv "\$part.txt" "\$printed/\$name.txt"
END
# Only the spooler's own user may run it, and so it runs as that user.
chmod 700 "$work/bin/backend/pdffile"
cat >"$work/files.conf" <<END
ServerRoot $work/etc
ServerBin $work/bin
RequestRoot $work/spool
TempDir $work/spool/tmp
CacheDir $work/cache
StateDir $work/state
AccessLog $work/access.log
ErrorLog $work/error.log
PageLog $work/page.log
END
cat >"$work/cupsd.conf" <<END
Listen $work/socket
Browsing No
WebInterface No
LogLevel warn
<Location />
  Order deny,allow
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
END

/usr/sbin/cupsd -f -c "$work/cupsd.conf" -s "$work/files.conf" >"$work/cupsd.out" 2>&1 &
spooler=$!
export CUPS_SERVER=$work/socket
make_printer() {
    /usr/sbin/lpadmin -p PDF -v pdffile:/ -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd -o PageSize=A4 -E &&
        /usr/sbin/lpadmin -d PDF
}
waited=0
until [ -S "$work/socket" ] && lpstat -r >/dev/null 2>&1; do
    if [ $((waited += 1)) -gt 200 ] || ! kill -0 "$spooler" 2>/dev/null; then
        echo "error: the print spooler did not start" >&2
        cat "$work/cupsd.out" "$work/error.log" >&2 2>/dev/null || true
        exit 2
    fi
    sleep 0.05
done
if ! make_printer >"$work/lpadmin.out" 2>&1; then
    echo "error: the printer cannot be made: $(cat "$work/lpadmin.out")" >&2
    exit 2
fi

export ORTIN_PRINTED=$printed
status=0
"$@" || status=$?
# What COMMAND has handed over is printed to its end.
waited=0
while [ -n "$(lpstat -o 2>/dev/null)" ]; do
    if [ $((waited += 1)) -gt 600 ]; then
        echo "error: after a minute the spooler has not printed: $(lpstat -o 2>/dev/null)" >&2
        [ "$status" != 0 ] || status=2
        break
    fi
    sleep 0.1
done
exit "$status"
