#!/usr/bin/env bash
# Whole-process start-up of penwick on a data folder of 30 years (144,000
# entries), under a virtual X server: from launch until its first window is on
# the screen, and from a desktop search's first call, with the bus starting
# the program in the background, until the answer. Prints each run and the
# minimum, median and maximum.
#
#   bench/startup.sh [BUILD_DIR] [RUNS]
#
# Needs Xvfb, xwininfo, dbus-daemon and gdbus (installed by scripts/install-deps.sh).
set -euo pipefail

build=${1:-build}
runs=${2:-10}
if [[ -z ${DISPLAY:-} ]]; then
  exec "$(dirname "$0")/../scripts/with-own-x-server.sh" "$0" "$build" "$runs"
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/home/.config
export XDG_RUNTIME_DIR=$scratch/runtime LC_ALL=C.UTF-8
mkdir -p "$XDG_CONFIG_HOME/Penwick" "$XDG_RUNTIME_DIR" "$HOME/data"
chmod 700 "$XDG_RUNTIME_DIR"
"$build/bench/make_ledger" "$HOME/data" >/dev/null
# The input window and the list window, which reads this month at once.
printf '[General]\nVersion=1\nDataPath=%s\nOpenWindow_1=true\n' "$HOME/data" \
  >"$XDG_CONFIG_HOME/Penwick/Penwick.conf"

summary() {
  local label=$1
  shift
  local sorted=($(printf '%s\n' "$@" | sort -n))
  echo "$label: min ${sorted[0]} ms, median ${sorted[$((runs / 2))]} ms, max ${sorted[-1]} ms"
}

times=()
for ((i = 0; i < runs; i++)); do
  start=$(date +%s%N)
  "$build/src/app/penwick" 2>/dev/null &
  pid=$!
  until xwininfo -root -tree | grep -q '"Book Entries'; do sleep 0.002; done
  end=$(date +%s%N)
  kill -TERM "$pid"
  wait "$pid" || true
  times+=($(((end - start) / 1000000)))
  echo "run $((i + 1)): ${times[-1]} ms"
done
summary "start-up to first window" "${times[@]}"

# A bus of our own that starts the program for the search.
source "$(dirname "$0")/../scripts/activating-bus.sh"
start_activating_bus "$scratch" "$(realpath "$build/src/app/penwick")"
trap 'kill "$bus_pid"; rm -rf "$scratch"' EXIT

times=()
for ((i = 0; i < runs; i++)); do
  start=$(date +%s%N)
  gdbus call --session --dest org.penwick.Penwick.Search --object-path /org/penwick/Penwick/SearchProvider \
    --method org.gnome.Shell.SearchProvider2.GetInitialResultSet "['Bakery']" >/dev/null
  end=$(date +%s%N)
  pid=$(gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
          --method org.freedesktop.DBus.GetConnectionUnixProcessID org.penwick.Penwick.Search |
        sed 's/.* \([0-9]*\),)/\1/')
  kill -TERM "$pid"
  while kill -0 "$pid" 2>/dev/null; do sleep 0.01; done
  times+=($(((end - start) / 1000000)))
  echo "search run $((i + 1)): ${times[-1]} ms"
done
summary "desktop search, cold start to first answer" "${times[@]}"
