#!/usr/bin/env bash
# Starts the real program on an X server and a session bus of its own (run
# under scripts/with-own-x-server.sh and dbus-run-session) with a home of its
# own, and checks what a user would: its windows appear, a second launch on the same data folder
# hands over and exits, scripts reach it, the program quits cleanly when told
# to, a killed instance does not lock the folder for the next one, and the
# desktop's search starts it in the background and finds entries (unless it
# is locked).
set -euo pipefail

app=$1
ctl=$2
scratch=$(mktemp -d)
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill -9 "$pid" 2>/dev/null || true; done
  rm -rf "$scratch"
}
trap cleanup EXIT

export HOME=$scratch/home
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share
export XDG_RUNTIME_DIR=$scratch/runtime
export LC_ALL=C.UTF-8
unset QT_QPA_PLATFORM
mkdir -p "$XDG_CONFIG_HOME/Penwick" "$XDG_RUNTIME_DIR" "$HOME/data"
chmod 700 "$XDG_RUNTIME_DIR"

fail() {
  echo "smoke test: $*" >&2
  echo "--- what the program printed:" >&2
  cat "$scratch/stderr.log" >&2 || true
  exit 1
}

# Waits up to ten seconds for a top-level window whose title starts with $1.
wait_for_window() {
  for _ in $(seq 100); do
    xwininfo -root -tree | grep -q "\"$1" && return 0
    sleep 0.1
  done
  xwininfo -root -tree >&2
  fail "no window \"$1\" appeared"
}

start() {
  "$app" "$@" 2>>"$scratch/stderr.log" &
  pids+=($!)
  last_pid=$!
}

# Quits the instance with SIGTERM, as a session ending would, and expects
# an orderly exit.
stop() {
  kill -TERM "$1"
  local status=0
  wait "$1" || status=$?
  [[ $status -eq 0 ]] || fail "exit status $status after SIGTERM"
}

# A first start: the preferences greet the user, the input window opens too.
start
first=$last_pid
wait_for_window "Preferences"
wait_for_window "Book Entries"
folder=$(sed -n 's/^DataPath=//p' "$XDG_CONFIG_HOME/Penwick/Penwick.conf")
[[ -f $folder/Data.penwick ]] || fail "the first start wrote no list file"

# A month file opened from the desktop shows in the list window.
timeout 15 "$app" "$folder/Data_2006_5.Penwick" || fail "the second launch did not hand over"
wait_for_window "May 2006"

# Scripts: book an entry and read it back.
[[ $("$ctl" categories | wc -l) -eq 14 ]] || fail "penwickctl categories"
"$ctl" book --amount 1250 --category 1 --details "Smoke test" --year 2006 --month 5 --date 7 >/dev/null \
  || fail "penwickctl book"
[[ -f $folder/Data_2006_5.Penwick ]] || fail "booking by script wrote no month file"
"$ctl" list 200605 | grep -q "Smoke test" || fail "penwickctl list does not show the booked entry"
stop "$first"

# Opened, looked at in another appearance and closed, a folder stays byte
# for byte as it was.
sums=$(cd "$folder" && sha256sum -- * | sort)
start --appearance dark
wait_for_window "Book Entries"
timeout 15 "$app" "$folder/Data_2006_5.Penwick" || fail "the second launch did not hand over"
wait_for_window "May 2006"
stop "$last_pid"
[[ $(cd "$folder" && sha256sum -- * | sort) == "$sums" ]] || fail "opening and closing changed the data folder"

# Locked with a password: the prompt is the only window, and the program
# still serves later launches.
cat >"$XDG_CONFIG_HOME/Penwick/Penwick.conf" <<CONF
[General]
Version=1
DataPath=$HOME/data
se-XCMD=pWNtzVs0HB6cU
CONF

start
first=$last_pid
wait_for_window "Password"
# The lock is per computer, in the runtime folder: a data folder shared with
# another computer must not carry it there.
folder_lock() { compgen -G "$XDG_RUNTIME_DIR/penwick-*.lock" >/dev/null; }
folder_lock || fail "the data folder is not locked"
[[ ! -e $HOME/data/.penwick.lock ]] || fail "the lock is in the data folder"

timeout 15 "$app" "$HOME/data/Data_2006_5.Penwick" || fail "the second launch did not hand over"
kill -0 "$first" 2>/dev/null || fail "the first instance ended when the second launched"
[[ ! -e $HOME/data/Data_2006_5.Penwick ]] || fail "a month was read before the password was given"
if "$ctl" categories 2>"$scratch/ctl.err"; then fail "a locked program answered a script"; fi
grep -q "locked" "$scratch/ctl.err" || fail "a locked program did not say so"

stop "$first"
folder_lock && fail "the lock outlived the program"

# A killed instance leaves its lock behind; the next launch takes over.
start
killed=$last_pid
wait_for_window "Password"
kill -KILL "$killed"
wait "$killed" 2>/dev/null || true
folder_lock || fail "expected a stale lock after SIGKILL"
start
wait_for_window "Password"
stop "$last_pid"

# The desktop's search on a bus of its own that starts the program as the
# installed service file says, with this build's program.
source "$(dirname "$0")/../../scripts/activating-bus.sh"
start_activating_bus "$scratch" "$app" "$scratch/stderr.log"
pids+=("$bus_pid")

provider=(gdbus call --session --dest org.penwick.Penwick.Search
          --object-path /org/penwick/Penwick/SearchProvider)
runner=(gdbus call --session --dest org.penwick.Penwick.Search --object-path /org/penwick/Penwick/Runner)
# Stops the program the bus started (not our child) and waits for it to go.
stop_activated() {
  local pid
  pid=$(gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
          --method org.freedesktop.DBus.GetConnectionUnixProcessID org.penwick.Penwick.Search |
        sed 's/.* \([0-9]*\),)/\1/')
  kill -TERM "$pid"
  for _ in $(seq 100); do kill -0 "$pid" 2>/dev/null || return 0; sleep 0.1; done
  fail "the program started for the search did not quit after SIGTERM"
}

printf '[General]\nVersion=1\nDataPath=%s\n' "$folder" >"$XDG_CONFIG_HOME/Penwick/Penwick.conf"
found=$("${provider[@]}" --method org.gnome.Shell.SearchProvider2.GetInitialResultSet "['Smoke']") \
  || fail "the bus did not start the program for the search"
id=$(grep -o "200605:[0-9]*:[0-9a-f]*" <<<"$found") || fail "the search did not find the booked entry: $found"
if xwininfo -root -tree | grep -q '"Book Entries'; then fail "a start for the search opened a window"; fi
"${provider[@]}" --method org.gnome.Shell.SearchProvider2.GetResultMetas "['$id']" |
  grep -q "2006/5/7 .*Smoke test" || fail "the search result does not read as the entry"
"${runner[@]}" --method org.kde.krunner1.Match "Smoke" | grep -q "$id" || fail "the runner did not match"
"${provider[@]}" --method org.gnome.Shell.SearchProvider2.ActivateResult "$id" "['Smoke']" 0 >/dev/null
wait_for_window "May 2006"
stop_activated

# Locked, it answers nothing and shows no window.
printf '[General]\nVersion=1\nDataPath=%s\nse-XCMD=pWNtzVs0HB6cU\n' "$folder" \
  >"$XDG_CONFIG_HOME/Penwick/Penwick.conf"
[[ $("${provider[@]}" --method org.gnome.Shell.SearchProvider2.GetInitialResultSet "['Smoke']") == "(@as [],)" ]] \
  || fail "a locked program answered the search"
[[ $("${runner[@]}" --method org.kde.krunner1.Match "Smoke") == "(@a(sssida{sv}) [],)" ]] \
  || fail "a locked program answered the runner"
"${provider[@]}" --method org.gnome.Shell.SearchProvider2.ActivateResult "$id" "['Smoke']" 0 >/dev/null
sleep 0.5
if xwininfo -root -tree | grep -qE '"(Password|May 2006)'; then fail "a locked program opened a window"; fi
stop_activated

if grep -iE 'warning|critical|fatal' "$scratch/stderr.log" | grep -v 'XDG_RUNTIME_DIR' >&2; then
  fail "the program complained"
fi
echo "smoke test passed"
