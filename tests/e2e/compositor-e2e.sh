#!/usr/bin/env bash
# A compositing manager that comes and goes while Brimly runs: the panel follows it each time,
# closed or open, pinned or not, without a restart. Without one the window is cut to the card, so
# the top strip's black box is the card itself (nothing at all closed, where no notch hides an
# outline; the rounded 600 x 148 card open) and never, not for one frame, the window's whole
# 600 x 148 rectangle; with one, the card's corners are translucent.
#
# usage: compositor-e2e.sh <brimly executable>
# Exit status 77 (a skip for CTest) only when Xvfb itself is not installed.
set -uo pipefail

app=$1
here=$(cd "$(dirname "$0")" && pwd)
fbtool="$here/framebuffer.py"
width=1512
height=982
# shellcheck source=virtual-desktop.sh
source "$here/virtual-desktop.sh"
require_tools xdotool xsetroot picom python3


# --- the desktop ---------------------------------------------------------------------------------
start_screen
xsetroot -solid '#3a6ea5'
xdotool mousemove $((width / 2)) 500

compositor_pid=
start_compositor() {
  picom --backend xrender --no-fading-openclose --shadow-radius 0 >>"$work/compositor.log" 2>&1 &
  compositor_pid=$!
  pids+=($compositor_pid)
  sleep 1  # picom takes the selection and draws its first frame
}
# Killed outright, as a crash would: nothing is handed over.
kill_compositor() {
  kill -KILL "$compositor_pid"
  wait "$compositor_pid" 2>/dev/null
}

# --- reading the screen --------------------------------------------------------------------------
region="0 0 $width 200"
black_box() { "$fbtool" box "$fb" $region; }
pixel() { "$fbtool" pixel "$fb" "$1" "$2"; }
wait_for_box() { "$fbtool" wait "$fb" $region "$1" "${2:-10}" >/dev/null 2>"$work/wait.err"; }
# What shows where no window covers the screen: the root (or the compositor's own background).
desktop() { pixel 100 100; }
open_box="600x148+$((width / 2 - 300))+0"
# Pixels of the panel's window that nothing covers while it is closed: where an outline would be
# (the 200 x 32 notch at the top centre), beside that and below it; and those just outside the
# open card's rounded lower corners.
closed_panel=($((width / 2)) 16 $((width / 2 - 98)) 4 $((width / 2 + 97)) 4 $((width / 2)) 30
  480 10 1030 10 $((width / 2)) 100 480 140 1030 140)
outside_open_corners=(457 146 1054 146 458 145 1053 145)
# Watches those pixels in the background while something happens; `saw_no_black` tells.
watch_black() {
  "$fbtool" ever-black "$fb" 3 "$@" >"$work/black" 2>&1 &
  watcher=$!
}
saw_no_black() { wait $watcher && grep -q never "$work/black"; }
corners_show_desktop() {
  local colour
  colour=$(desktop)
  [ "$(pixel 457 146)" = "$colour" ] && [ "$(pixel 1054 146)" = "$colour" ]
}

start_brimly() {  # start_brimly <pinned: true|false>
  local config="$work/config-$1" runtime="$work/runtime"
  mkdir -p "$config/brimly" && mkdir -m 700 -p "$runtime"
  [ "$1" = true ] && printf '[General]\nisPinned=true\n' >"$config/brimly/Brimly.conf"
  XDG_CONFIG_HOME="$config" XDG_RUNTIME_DIR="$runtime" "$app" >"$work/brimly.out" 2>>"$work/brimly.err" &
  brimly=$!
  pids+=($brimly)
}
# Brimly's panel window is mapped within 20 s.
panel_mapped() {
  for _ in $(seq 400); do
    xdotool search --onlyvisible --pid "$brimly" --name '^Brimly$' >/dev/null 2>&1 && return 0
    sleep 0.05
  done
  return 1
}
stop_brimly() {
  kill -TERM "$brimly"
  wait "$brimly" 2>/dev/null
}

# --- closed, the compositor goes and comes back --------------------------------------------------
start_compositor
start_brimly false
check "with a compositor the closed panel's window is mapped" panel_mapped
sleep 0.5
check "… and nothing black shows at the top of the screen" test "$(black_box)" = none
watch_black "${closed_panel[@]}"
kill_compositor
check "the compositor killed while closed: no black, not for a frame" saw_no_black
check "the top of the screen is still free of black" test "$(black_box)" = none
check "the top centre shows the desktop" test "$(pixel $((width / 2)) 16)" = "$(desktop)"

watch_black "${closed_panel[@]}"
start_compositor
check "the compositor back: no black, not for a frame" saw_no_black
check "the top centre shows the desktop" test "$(pixel $((width / 2)) 16)" = "$(desktop)"

# --- open, the compositor goes -------------------------------------------------------------------
xdotool mousemove_relative -- 0 -490  # into the notch zone
check "the card opens to 600 x 148" wait_for_box "$open_box" 10
sleep 0.5
check "with a compositor the open card's corners show the desktop" corners_show_desktop
watch_black "${outside_open_corners[@]}"
kill_compositor
check "the compositor killed while open: the corners never turn black" saw_no_black
sleep 0.3
check "the open card's corners show the desktop, not black" corners_show_desktop
echo "      corner pixels $(pixel 457 146) $(pixel 1054 146), desktop $(desktop)"
xdotool mousemove_relative -- 0 490
check "without a compositor the card closes and vanishes" wait_for_box none 10
stop_brimly

# --- pinned at launch without a compositor, then one comes ---------------------------------------
start_brimly true
check "pinned without a compositor the open card (600 x 148) shows" wait_for_box "$open_box" 20
sleep 0.5
check "its corners show the desktop" corners_show_desktop
start_compositor
check "a compositor started while pinned open: still the open card" wait_for_box "$open_box" 5
check "its corners show the desktop" corners_show_desktop
stop_brimly

finish
