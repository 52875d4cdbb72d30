#!/bin/sh
# Runs a Windows program: in a Wine prefix of this checkout's own, made on first use, without a display, without
# Wine's chatter, and without the debugger that it would start, for seconds, on every crash.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX="${WINEPREFIX:-$root/build/wine}"
export WINEDEBUG=-all WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml,winedbg.exe=}"
unset DISPLAY
export LC_ALL=C.UTF-8 # in the C locale, arguments outside ASCII arrive mangled
# One start in some thousands would have its heap, at a random place, where Wine needs to put pages of its own,
# and would end at once, without a word.
wine="setarch -R /usr/lib/wine/wine64"
setarch -R true 2>/dev/null || wine=/usr/lib/wine/wine64
mkdir -p "$WINEPREFIX"
if [ ! -e "$WINEPREFIX/.ready" ]; then
    # Tests start in parallel: only one makes the prefix.
    (
        flock 9
        if [ ! -e "$WINEPREFIX/.ready" ]; then
            $wine wineboot --init >"$WINEPREFIX/wineboot.log" 2>&1 </dev/null
            touch "$WINEPREFIX/.ready"
        fi
    ) 9>"$WINEPREFIX/.lock"
fi
# A server that outlives its last program for a while spares the next one the start of a whole Windows.
/usr/lib/wine/wineserver64 -p30 >/dev/null 2>&1 </dev/null || true

# The server now and then drops a program that is just starting, and says so: that one is started once more.
messages=$(mktemp)
trap 'rm -f "$messages"' EXIT
status=0
$wine "$@" 2>"$messages" || status=$?
if grep -q '^wine client error' "$messages"; then
    status=0
    $wine "$@" 2>"$messages" || status=$?
fi
cat "$messages" >&2
exit $status
