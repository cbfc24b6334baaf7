#!/bin/sh
# checkNoWaiting.sh FOLDER...: nothing there stands still until something else has happened. Pages, proxy and display
# share one event loop with the host; a receiver that is slow or gone must not be felt anywhere. Only who runs that loop,
# and the tour, which is a program of its own, may wait.
set -u

# Loops within the loop, the waiting calls of devices, processes, threads and sockets, and sleeping.
waiting='QEventLoop|processEvents *\(|[>.]exec *\(|::exec *\(|waitFor[A-Z][A-Za-z]* *\(|msleep *\(|usleep *\(|nanosleep *\(|sleep_for *\(|[^a-zA-Z]sleep *\(|getOpenFileName *\(|getSaveFileName *\(|QMessageBox::(question|warning|information|critical) *\('

found=$(find "$@" \( -name '*.cpp' -o -name '*.h' \) ! -name main.cpp ! -name 'tour.*' | sort | xargs grep -nE "$waiting")
if [ -n "$found" ]; then
    printf 'these wait:\n%s\nStart it, and go on in a slot when it has happened.\n' "$found"
    exit 1
fi
printf 'nothing waits\n'
