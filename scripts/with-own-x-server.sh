#!/usr/bin/env bash
# Runs a command on a virtual X server of its own. The server picks a free
# display itself (-displayfd), so runs side by side never share one; a
# display number guessed from lock files can be taken by another run in the
# moment between the guess and the server's start, and the windows of this
# run then vanish with the other run's server. -noreset keeps the server up
# when its last client leaves: a server resetting then refuses the next
# program that connects in that moment. OWN_X_SCREEN sets the screen's size
# and depth (1280x800x24 unless set).
#
#   scripts/with-own-x-server.sh COMMAND [ARGS...]
set -euo pipefail

fifo_dir=$(mktemp -d)
mkfifo "$fifo_dir/display"
Xvfb -displayfd 3 -noreset -screen 0 "${OWN_X_SCREEN:-1280x800x24}" -nolisten tcp 3>"$fifo_dir/display" 2>/dev/null &
server=$!
trap 'kill "$server" 2>/dev/null || true; wait "$server" 2>/dev/null || true; rm -rf "$fifo_dir"' EXIT

read -r -t 30 number <"$fifo_dir/display" || { echo "the virtual X server did not start" >&2; exit 1; }
export DISPLAY=":$number"
status=0
"$@" || status=$?
exit "$status"
