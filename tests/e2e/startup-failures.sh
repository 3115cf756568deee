#!/usr/bin/env bash
# Where Qt cannot start the window system it would be asked for, Brimly leaves before creating
# its application, with status 3 and exactly one line on stderr, instead of Qt's abort with pages
# of text: an unknown platform in QT_QPA_PLATFORM or on the command line, an X display named by
# -display that nobody serves, a Wayland session without XWayland whose WAYLAND_DISPLAY nobody
# serves (also with Qt's Wayland platform chosen, whether or not its plugin is installed: Brimly
# asks the compositor itself before Qt would), no display at all. None of these needs a display of
# its own; where Xvfb is installed a working one is started beside them, so that each bad choice
# is made while a good display is at hand. (A Wayland compositor that answers, without XWayland,
# is checked under GNOME Shell by gnome-shell-e2e.sh.)
#
# usage: startup-failures.sh <brimly executable>
set -uo pipefail

app=$1
work=$(mktemp -d)
pids=()
cleanup() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; wait "$pid" 2>/dev/null; done
  rm -rf "$work"
}
trap cleanup EXIT

# A private runtime directory (single-instance lock) and settings store for every run.
export XDG_RUNTIME_DIR="$work/runtime" XDG_CONFIG_HOME="$work/config"
mkdir -m 700 "$XDG_RUNTIME_DIR" && mkdir "$XDG_CONFIG_HOME"
unset QT_QPA_PLATFORM WAYLAND_DISPLAY XDG_SESSION_TYPE XDG_CURRENT_DESKTOP XDG_SESSION_DESKTOP

# An X display number nobody serves: no socket file and no abstract socket.
free_display() {
  local n
  for n in $(seq 99 199); do
    [ -e "/tmp/.X11-unix/X$n" ] && continue
    grep -q "@/tmp/.X11-unix/X$n\$" /proc/net/unix 2>/dev/null && continue
    echo ":$n"
    return
  done
}
nobody=$(free_display)

# A display that works, when Xvfb is there to serve it.
working=$nobody
if command -v Xvfb >/dev/null 2>&1; then
  Xvfb -displayfd 3 -nolisten tcp -noreset -screen 0 640x480x24 3>"$work/display" 2>"$work/xvfb.log" &
  pids+=($!)
  for _ in $(seq 200); do [ -s "$work/display" ] && break; sleep 0.05; done
  if [ -s "$work/display" ]; then
    working=":$(head -n1 "$work/display")"
  else
    echo "      (Xvfb did not start: the checks run without a working display)"
  fi
fi

failures=0
# expect_refusal <description> <command…>: the command (brimly with its environment) must end with
# status 3 after writing exactly one line to stderr and nothing to stdout.
expect_refusal() {
  local description=$1
  shift
  # Quietly: the shell would report a core dump of its own.
  { timeout 20 "$@" >"$work/out" 2>"$work/err"; } 2>/dev/null
  local status=$?
  local lines
  lines=$(wc -l <"$work/err")
  if [ "$status" = 3 ] && [ "$lines" = 1 ] && [ ! -s "$work/out" ]; then
    echo "ok    $description"
    echo "      | $(cat "$work/err")"
  else
    echo "FAIL  $description: status $status, $lines line(s) on stderr"
    sed 's/^/      | /' "$work/err" | head -n 12
    failures=$((failures + 1))
  fi
}

expect_refusal "QT_QPA_PLATFORM=bogus" env DISPLAY="$working" QT_QPA_PLATFORM=bogus "$app"
expect_refusal "-platform bogus" env DISPLAY="$working" "$app" -platform bogus
expect_refusal "--platform bogus beside a working QT_QPA_PLATFORM" \
  env DISPLAY="$working" QT_QPA_PLATFORM=offscreen "$app" --platform bogus
expect_refusal "-display $nobody (no such server) beside a working DISPLAY" \
  env DISPLAY="$working" "$app" -display "$nobody"
expect_refusal "a Wayland session without XWayland, nobody serving WAYLAND_DISPLAY" \
  env -u DISPLAY WAYLAND_DISPLAY=wayland-0 XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=KDE "$app"
expect_refusal "QT_QPA_PLATFORM=wayland, nobody serving WAYLAND_DISPLAY" \
  env DISPLAY="$working" WAYLAND_DISPLAY=wayland-0 QT_QPA_PLATFORM=wayland "$app"
expect_refusal "no display at all" env -u DISPLAY "$app"
expect_refusal "DISPLAY naming no server" env DISPLAY="$nobody" "$app"

[ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
exit $((failures > 0))
