#!/usr/bin/env bash
# Takes a picture of every window of the program (input, list, the three
# charts, the line chart with budgets, balance, budgets, preferences,
# password prompt) in English and Japanese,
# light and dark, on a generated data folder, as a user would see them on a
# fresh start. Runs on a virtual X server and a session bus of its own, with
# a home of its own, so nothing of the user's is read or changed.
#
#   scripts/screenshots.sh [--scale FACTOR] [--out FOLDER] [BUILD_DIR]
#
# BUILD_DIR (default: build) must hold a built penwick, penwickctl and
# make_ledger (configured with -DPENWICK_BUILD_BENCH=ON, the default); this
# script builds nothing. The pictures go to docs/screenshots/ as
# WINDOW-LANGUAGE-LOOK.png (list-ja-dark.png); with a scale factor other
# than 1 (QT_SCALE_FACTOR, to check high-DPI screens) they go to
# BUILD_DIR/screenshots-FACTORx/ instead, for looking, not for committing.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(dirname "$here")
scale=1
out=
build=build
while [[ $# -gt 0 ]]; do
  case $1 in
    --scale) scale=$2; shift 2 ;;
    --out) out=$2; shift 2 ;;
    -h|--help) sed -n '2,15s/^# \{0,1\}//p' "$0"; exit 0 ;;
    -*) echo "screenshots: unknown option $1" >&2; exit 2 ;;
    *) build=$1; shift ;;
  esac
done
build=$(cd "$build" && pwd)
if [[ -z $out ]]; then
  if [[ $scale == 1 ]]; then out=$root/docs/screenshots; else out=$build/screenshots-${scale}x; fi
fi
app=$build/src/app/penwick
ctl=$build/src/cli/penwickctl
make_ledger=$build/bench/make_ledger

# On the first call, check everything, then go on under an X server of our
# own, as large as the scale needs.
if [[ -z ${PENWICK_SCREENSHOTS_INNER:-} ]]; then
  missing=()
  for tool in Xvfb:xvfb xdotool:xdotool import:imagemagick optipng:optipng \
              dbus-daemon:dbus-daemon; do
    command -v "${tool%%:*}" >/dev/null || missing+=("${tool#*:}")
  done
  if [[ ${#missing[@]} -gt 0 ]]; then
    echo "screenshots: missing tools; install them with: apt-get install ${missing[*]}" >&2
    exit 1
  fi
  for program in "$app" "$ctl" "$make_ledger"; do
    [[ -x $program ]] || {
      echo "screenshots: no $program; build it first (make_ledger needs -DPENWICK_BUILD_BENCH=ON)" >&2
      exit 1
    }
  done
  mkdir -p "$out"
  size=$(awk -v s="$scale" 'BEGIN { printf "%dx%dx24", 1280 * (s > 1 ? s : 1), 800 * (s > 1 ? s : 1) }')
  PENWICK_SCREENSHOTS_INNER=1 OWN_X_SCREEN=$size exec "$here/with-own-x-server.sh" \
    "$0" --scale "$scale" --out "$(cd "$out" && pwd)" "$build"
fi

scratch=$(mktemp -d)
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  for pid in "${pids[@]}"; do wait "$pid" 2>/dev/null || true; done
  rm -rf "$scratch"
}
trap cleanup EXIT

export HOME=$scratch/home
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share XDG_CACHE_HOME=$HOME/.cache
export XDG_RUNTIME_DIR=$scratch/runtime
export QT_SCALE_FACTOR=$scale
unset QT_QPA_PLATFORM QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE
mkdir -p "$XDG_CONFIG_HOME/Penwick" "$XDG_RUNTIME_DIR" "$HOME/data"
chmod 700 "$XDG_RUNTIME_DIR"
source "$here/activating-bus.sh"
start_activating_bus "$scratch" "$app" "$scratch/bus.log"
pids+=("$bus_pid")

# Two years of entries up to this month, so that every window has something
# to show.
this_year=$(date +%Y)
"$make_ledger" --first-year $((this_year - 1)) --years 2 --per-month 30 "$HOME/data" >/dev/null

# Budgets for a few categories and for all spending, so that the list
# window's budget pane, the balance window and the line chart show them.
last_month=$(date -d "$(date +%Y-%m-15) -1 month" +%Y%m)
budget() {
  printf '<dict><key>Category</key><integer>%s</integer><key>Amount</key><real>%s</real>' "$1" "$2"
  if [[ -n ${3:-} ]]; then
    printf '<key>RollOver</key><true/><key>RollOverSince</key><integer>%s</integer>' "$3"
  else
    printf '<key>RollOver</key><false/>'
  fi
  printf '</dict>'
}
{
  printf '<?xml version="1.0" encoding="UTF-8"?>\n<plist version="1.0"><dict><key>Categories</key><array>'
  budget 0 40000
  budget 1 15000 "$last_month"
  budget 2 12000
  budget 3 20000
  budget 7 9000
  printf '</array><key>AllSpending</key><dict><key>Amount</key><real>150000</real>'
  printf '<key>RollOver</key><false/></dict></dict></plist>\n'
} >"$HOME/data/Budgets.plist"

settings() {
  printf '[General]\nVersion=1\nDataPath=%s\n%s' "$HOME/data" "${1:-}" \
    >"$XDG_CONFIG_HOME/Penwick/Penwick.conf"
}

fail() {
  echo "screenshots: $*" >&2
  cat "$scratch/program.log" >&2 || true
  exit 1
}

# The program's windows on show, one id a line.
shown_windows() {
  xdotool search --onlyvisible --pid "$program" 2>/dev/null | sort || true
}

# Waits for a window that was not on show before and sets `window` to it.
known=()
wait_for_new_window() {
  local ids
  for _ in $(seq 100); do
    ids=$(comm -13 <(printf '%s\n' "${known[@]}" | sort) <(shown_windows))
    if [[ -n $ids ]]; then
      window=$(head -n1 <<<"$ids")
      known+=("$window")
      return 0
    fi
    sleep 0.1
  done
  fail "no new window appeared for $1"
}

# Saves the window, brought to the front and given the keyboard, under
# name-LANGUAGE-LOOK.png, as small as it gets without losing a pixel.
shoot() {
  local file=$out/$1-$language-$look.png
  xdotool windowraise "$window" windowfocus --sync "$window" 2>/dev/null || true
  sleep 1
  import -window "$window" "$file"
  optipng -quiet -o5 -strip all "$file"
  echo "$file"
}

start_program() {
  LC_ALL=$LANG "$app" --appearance "$look" >>"$scratch/program.log" 2>&1 &
  program=$!
  pids+=("$program")
  known=()
}

stop_program() {
  kill -TERM "$program"
  wait "$program" 2>/dev/null || true
}

for language in en ja; do
  case $language in
    en) export LANG=en_US.UTF-8 LANGUAGE=en ;;
    ja) export LANG=ja_JP.UTF-8 LANGUAGE=ja ;;
  esac
  for look in light dark; do
    settings
    start_program
    wait_for_new_window input
    shoot input

    "$ctl" show list
    wait_for_new_window list
    shoot list

    # The graph window opens on the pie; the chart menu leads its keyboard
    # order, and Down on it moves to the next chart.
    "$ctl" show graph
    wait_for_new_window graph
    shoot pie
    xdotool key --window "$window" Down
    shoot bar
    xdotool key --window "$window" Down
    shoot line
    # The budgets as dashed lines, by the check box's mnemonic.
    xdotool key --window "$window" alt+u
    shoot line-budget

    "$ctl" show balance
    wait_for_new_window balance
    shoot balance

    # The Budgets dialog, by its shortcut in the list window.
    "$ctl" show list
    window=${known[1]}
    xdotool windowraise "$window" windowfocus --sync "$window" key ctrl+6
    wait_for_new_window budgets
    shoot budgets
    xdotool windowfocus --sync "$window" key Escape 2>/dev/null || true

    # The preferences through the Window menu of the input window.
    "$ctl" show input
    window=${known[0]}
    xdotool windowraise "$window" windowfocus --sync "$window" key alt+w sleep 0.5 key p
    wait_for_new_window preferences
    shoot preferences
    stop_program

    # With a password set, the prompt is the only window.
    settings 'se-XCMD=pWNtzVs0HB6cU'
    start_program
    wait_for_new_window password
    shoot password
    stop_program
  done
done
