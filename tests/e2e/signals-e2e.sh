#!/usr/bin/env bash
# SIGTERM, SIGINT and SIGHUP end Brimly the way its "Quit" button does: the event loop quits, the
# shutdown steps run, and the process leaves with status 0 at once; the single-instance lock is
# free again, so the next Brimly starts.
#
# usage: signals-e2e.sh <brimly executable>
# Exit status 77 (a skip for CTest) only when Xvfb itself is not installed.
set -uo pipefail

app=$1
width=1280
height=800
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=virtual-desktop.sh
source "$here/virtual-desktop.sh"
require_tools xdotool
start_screen
export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime"
mkdir -p "$XDG_CONFIG_HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"

# Starts Brimly and waits (at most 20 s) until its panel is on screen; the process id lands in
# $started_pid. A background job of a script starts with SIGINT ignored, and Brimly leaves an
# ignored signal ignored (as under nohup): it is given back its default, as in a terminal.
start_brimly() {
  env --default-signal=INT "$app" >"$work/brimly.out" 2>"$work/brimly.err" &
  started_pid=$!
  pids+=($started_pid)
  for _ in $(seq 400); do
    xdotool search --onlyvisible --pid "$started_pid" --name '^Brimly$' >/dev/null 2>&1 && return 0
    if ! kill -0 "$started_pid" 2>/dev/null; then
      sed 's/^/      (stderr) /' "$work/brimly.err"
      return 1
    fi
    sleep 0.05
  done
  return 1
}

# Waits (at most 10 s) for process $1 to end; its exit status lands in $ended_status, or 255 when
# it is still running.
wait_for_end() {
  ended_status=255
  for _ in $(seq 200); do
    if ! kill -0 "$1" 2>/dev/null; then
      wait "$1"
      ended_status=$?
      return 0
    fi
    sleep 0.05
  done
  return 1
}

for signal in TERM INT HUP; do
  check "Brimly starts and shows its panel (before SIG$signal)" start_brimly
  pid=$started_pid
  sent=$(now)
  kill -s "$signal" "$pid"
  wait_for_end "$pid"
  took=$(elapsed "$sent" "$(now)")
  check "SIG$signal ends Brimly with status 0 (status $ended_status, after $took s)" test "$ended_status" = 0
  check "SIG$signal ends Brimly within 2 s" awk -v t="$took" 'BEGIN { exit !(t <= 2) }'
done

# The lock went with the last one: the next Brimly starts and stays.
check "the next Brimly takes the lock and runs" start_brimly
check "it is still running" kill -0 "$started_pid"
kill -s TERM "$started_pid"
wait_for_end "$started_pid"

finish
