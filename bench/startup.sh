#!/usr/bin/env bash
# Whole-process start-up of penwick: from launch until its first window is on
# the screen, on a data folder of 30 years (144,000 entries), under a virtual
# X server. Prints each run and the minimum, median and maximum.
#
#   bench/startup.sh [BUILD_DIR] [RUNS]
#
# Needs Xvfb and xwininfo (installed by scripts/install-deps.sh).
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
sorted=($(printf '%s\n' "${times[@]}" | sort -n))
echo "start-up to first window: min ${sorted[0]} ms, median ${sorted[$((runs / 2))]} ms, max ${sorted[-1]} ms"
