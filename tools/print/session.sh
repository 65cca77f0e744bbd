#!/bin/bash
# Runs a command with a printing service of its own:
#   tools/print/session.sh tools/wine/session.sh wine program.exe
# The service is a CUPS daemon of this script's, beside the machine's own one if there is one: it
# listens on a socket in a folder of its own, and has one printer, which turns each document into
# a PDF in the folder that QX_PRINTED names. Programs find it by CUPS_SERVER. It ends with the
# command, whose exit status is this script's.  Without the packages (group "printing" of
# tools/setup/packages.sh), or where the service does not start, the command runs all the same,
# without QX_PRINTED.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)

if [ ! -x /usr/sbin/cupsd ] || ! command -v gs >/dev/null; then
    echo "There is no printing service here: cups-daemon or ghostscript is not installed." >&2
    exec "$@"
fi

# The daemon needs no privileges, so it gets none: run by root it is "nobody", who cannot enter
# root's own folders. Socket names are short, temporary folders may not be.
folder=$(TMPDIR=/tmp mktemp -d -t qx-print.XXXXXX) || exec "$@"
as_printer=()
[ "$(id -u)" != 0 ] || as_printer=(setpriv --reuid nobody --regid nogroup --clear-groups)

make_folder() {
    mkdir -p "$folder"/{config/ppd,data/mime,bin/backend,state,cache,spool,temp,log,printed}
    ln -s /usr/lib/cups/daemon "$folder/bin/daemon"
    cp "$here/pdf_printer.ppd" "$folder/config/ppd/PDF.ppd"
    install -m 755 "$here/pdf_backend.sh" "$folder/bin/backend/pdf"
    echo 'application/postscript ps string(0,%!)' >"$folder/data/mime/print.types"
    : >"$folder/data/mime/print.convs"
    cat >"$folder/config/cups-files.conf" <<-END
		ServerRoot $folder/config
		ServerBin $folder/bin
		DataDir $folder/data
		StateDir $folder/state
		CacheDir $folder/cache
		RequestRoot $folder/spool
		TempDir $folder/temp
		AccessLog $folder/log/access
		ErrorLog $folder/log/error
		PageLog $folder/log/page
		Printcap
	END
    cat >"$folder/config/cupsd.conf" <<-END
		Listen $folder/socket
		Browsing Off
		WebInterface No
		LogLevel info
	END
    cat >"$folder/config/printers.conf" <<-END
		<DefaultPrinter PDF>
		DeviceURI pdf:$folder/printed
		State Idle
		Accepting Yes
		ErrorPolicy abort-job
		</DefaultPrinter>
	END
    chmod 755 "$folder"
    [ "$(id -u)" != 0 ] || chown -R nobody:nogroup "$folder"
}

# Ends with this script, however that ends. A copy of the daemon, as a system can confine the one
# that it runs itself to that one's folders.
start_service() {
    cp /usr/sbin/cupsd "$folder/cupsd"
    "${as_printer[@]}" setpriv --pdeathsig TERM \
        "$folder/cupsd" -f -c "$folder/config/cupsd.conf" -s "$folder/config/cups-files.conf" \
        >"$folder/log/start" 2>&1 </dev/null &
    service=$!
    for _ in $(seq 100); do
        [ ! -S "$folder/socket" ] || return 0
        kill -0 "$service" 2>/dev/null || return 1
        sleep 0.1
    done
    return 1
}

cleanup() {
    [ -z "${service:-}" ] || { kill "$service" 2>/dev/null; wait "$service" 2>/dev/null; }
    if [ -n "${KEEP_SESSION:-}" ]; then echo "kept $folder"; else rm -rf "$folder"; fi
}
service=
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP
make_folder
if start_service; then
    export CUPS_SERVER=$folder/socket QX_PRINTED=$folder/printed
else
    echo "The printing service does not start here:" >&2
    cat "$folder/log/start" "$folder/log/error" >&2 2>/dev/null
fi
status=0
"$@" || status=$?
exit "$status"
