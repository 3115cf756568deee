#!/usr/bin/env bash
# The controls as a person meets them, on a virtual X11 desktop with a compositing manager and a
# system tray: a left or right click on Brimly's tray icon drops the control card under it;
# Escape, a click elsewhere and a second click on the icon close it; "Show Panel" opens the panel
# for about 5 s; "Launch at login" writes the autostart entry and removes it again; "Settings"
# opens the window "Brimly Settings", where "Show temperature in °F" changes the panel's TEMP text
# and the stored setting, and dragging a metric row changes the panel's order; the settings and
# About windows move when dragged by their background; Ctrl+comma in the card opens the settings
# and leaves the card open; "About" opens "About Brimly", 300 wide; "Quit" ends Brimly with status
# 0. Brimly reads a recorded laptop (a fixture tree) so that it has a temperature to show.
#
# usage: controls-e2e.sh <brimly executable> <fixture root> [screenshot folder]
# With BRIMLY_E2E_COMPOSITOR=none the desktop runs without a compositing manager: the card then
# cannot be translucent and is cut to its rounded shape instead; the same checks hold.
# Exit status 77 (a skip for CTest) only when Xvfb itself or Inter is not installed.
set -uo pipefail

app=$1
fixture=$(cd "$2" && pwd)
shots=${3:-}
here=$(cd "$(dirname "$0")" && pwd)
fbtool="$here/framebuffer.py"
width=1512
height=982
tray_size=32
# The About window's height: its content laid out in Inter.
about_height=273
# shellcheck source=virtual-desktop.sh
source "$here/virtual-desktop.sh"
require_tools xdotool convert xsetroot trayer picom python3 fc-list
# The clicks land where Inter, the windows' face on a desktop set up by install-deps, lays the
# controls out.
if [ -z "$(fc-list 'Inter' family)" ]; then
  echo "SKIPPED: Inter is not installed, and the clicks land where it lays the windows out"
  exit $skip
fi

# Polls <command…> every 50 ms for at most <seconds>.
eventually() {
  local seconds=$1
  shift
  local tries=$((seconds * 20))
  for _ in $(seq "$tries"); do "$@" && return 0; sleep 0.05; done
  return 1
}

# --- the desktop ---------------------------------------------------------------------------------
start_screen
xsetroot -solid '#3a6ea5'
start_compositor() {
  picom --backend xrender --no-fading-openclose --shadow-radius 0 >>"$work/compositor.log" 2>&1 &
  compositor_pid=$!
  pids+=($compositor_pid)
}
if [ "${BRIMLY_E2E_COMPOSITOR:-}" != none ]; then start_compositor; fi
# A tray in the top-right corner, one icon wide.
trayer --edge top --align right --widthtype pixel --width $tray_size --heighttype pixel \
  --height $tray_size --SetDockType true --SetPartialStrut true --expand false \
  >"$work/trayer.log" 2>&1 &
pids+=($!)
sleep 1

export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime"
export BRIMLY_SYSTEM_ROOT="$fixture"
mkdir -p "$XDG_CONFIG_HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"
conf="$XDG_CONFIG_HOME/brimly/Brimly.conf"
xdotool mousemove $((width / 2)) 500

pixel() { "$fbtool" pixel "$fb" "$1" "$2"; }
shot() { convert "xwd:$fb" "$@"; }
icon_x=$((width - tray_size / 2))
icon_y=$((tray_size / 2))
# The card's surface colour, (0.12, 0.125, 0.14) of 255, at a point well inside the card, which
# hangs under the icon and is pulled in 6 points from the screen's right edge.
card_probe_x=$((width - 6 - 150))
card_probe_y=$((tray_size + 18 + 40))
surface=1F2024
card_shown() { test "$(pixel $card_probe_x $card_probe_y)" = "$surface"; }
card_hidden() { ! card_shown; }
window_named() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n1; }
move_to() {  # an absolute place reached by a relative move, which sends raw motion as a mouse does
  local location x y
  location=$(xdotool getmouselocation)
  x=$(sed 's/x:\([0-9-]*\).*/\1/' <<<"$location")
  y=$(sed 's/.*y:\([0-9-]*\).*/\1/' <<<"$location")
  xdotool mousemove_relative -- $(($1 - x)) $(($2 - y))
}
click_at() { move_to "$1" "$2"; sleep 0.1; xdotool click 1; }

# Places inside Brimly's windows, from their top-left corners, as Inter, which install-deps
# brings, lays them out. The footer's row of buttons (258 points) is wider than the card's inside
# (232) and spreads 13 points into each of its paddings: "Settings" from 3 to 69 points from the
# card's left edge, "Show Panel" 73 to 158, "About" 162 to 215, "Quit" 219 to 261. The switches'
# middles lie 129, 164 and 199 points below the window's top.
window_geometry() {  # prints "x y w h" of the visible window named exactly $1
  local id
  id=$(window_named "$1")
  [ -n "$id" ] || return 1
  xdotool getwindowgeometry "$id" | tr -c '0-9\n' ' ' | awk 'NR==2 { x=$1; y=$2 } NR==3 { print x, y, $1, $2 }'
}
open_card() {
  click_at $icon_x $icon_y
  eventually 5 card_shown || return 1
  read -r card_x card_y card_w card_h < <(window_geometry 'Brimly controls')
  card_left=$((card_x + 18))
  footer_y=$((card_y + card_h - 18 - 16 - 12))
}
# The TEMP cell of the default order: the middle of the open panel's second row.
temp_cell() { shot -crop 200x60+$((width / 2 - 100))+84 +repage "$1"; }
images_differ() { ! compare -metric AE "$1" "$2" null: 2>/dev/null; }

# --- start ---------------------------------------------------------------------------------------
"$app" >"$work/brimly.out" 2>"$work/brimly.err" &
app_pid=$!
pids+=($app_pid)
desktop=$(pixel 5 500)
# The icon is a dark tile: a dark pixel at the tray's middle once Brimly's icon is in it.
icon_shown() {
  local colour
  colour=$(pixel $((icon_x - 6)) $((icon_y + 6)))
  test $((16#${colour:0:2})) -lt 64 -a $((16#${colour:2:2})) -lt 64
}
check "Brimly's icon appears in the tray" eventually 10 icon_shown
sleep 0.5

# --- the card ------------------------------------------------------------------------------------
open_card
check "a click on the tray icon drops the card under it" card_shown
check "the card's top edge lies on the tray's bottom edge" test "$card_y" -ge $((tray_size - 2)) -a "$card_y" -le "$tray_size"
check "the card's window ends 6 points from the screen's right edge" test $((card_x + card_w)) = $((width - 6))
shot -crop "${card_w}x${card_h}+${card_x}+${card_y}" +repage "$work/control-card.png"
like_desktop() {  # the pixel at $1 $2 is the desktop's colour, give or take $3 in each channel
  local colour i
  colour=$(pixel "$1" "$2")
  for i in 0 2 4; do
    local a=$((16#${colour:i:2})) b=$((16#${desktop:i:2}))
    [ $((a > b ? a - b : b - a)) -le "$3" ] || return 1
  done
}
# Where the card's faint shadow may fall, a little darker than the desktop; never a black frame.
check "around the card the desktop shows, not a black frame" like_desktop $((card_x + 2)) $((card_y + 2)) 8
check "the card's rounded corner shows the desktop" like_desktop $((card_left + 1)) $((card_y + 18 + 1)) 40

if [ "${BRIMLY_E2E_COMPOSITOR:-}" != none ]; then
  # The compositing manager goes away while the card is open, and comes back: the transparent
  # corners must not be left as a black frame.
  not_black() { test "$(pixel "$1" "$2")" != 000000; }
  # Brimly hears of the change from the X server; on a loaded machine that may take a moment.
  kill "$compositor_pid"; wait "$compositor_pid" 2>/dev/null
  check "with the compositor gone the card's corner is not black" \
    eventually 5 not_black $((card_left + 1)) $((card_y + 18 + 1))
  check "… nor the margin around it" eventually 5 not_black $((card_x + 2)) $((card_y + 2))
  start_compositor
  check "with the compositor back the margin shows the desktop" \
    eventually 5 like_desktop $((card_x + 2)) $((card_y + 2)) 8
fi

xdotool key Escape
check "Escape closes the card" eventually 3 card_hidden

open_card
click_at 300 600
check "a click elsewhere closes the card" eventually 3 card_hidden

open_card
click_at $icon_x $icon_y
check "a click on the icon while the card is open closes it" eventually 3 card_hidden
sleep 0.6
check "… and it stays closed" card_hidden

move_to $icon_x $icon_y
sleep 0.1
xdotool click 3
check "a right click on the tray icon drops the card too" eventually 5 card_shown
xdotool key Escape
eventually 3 card_hidden

# --- "Show Panel" and "Launch at login" --------------------------------------------------------
# The open panel's black card covers the top centre of the screen; closed, nothing is drawn there.
panel_open() { test "$(pixel $((width / 2)) 70)" = 000000; }
panel_closed() { like_desktop $((width / 2)) 70 8; }
open_card
click_at $((card_left + 115)) $footer_y  # "Show Panel", beside "Settings"
check "\"Show Panel\" closes the card" eventually 3 card_hidden
check "… and opens the panel" eventually 2 panel_open
sleep 3
check "… which is still open 3 s later" panel_open
check "… and closes by itself about 5 s after it opened" eventually 5 panel_closed

autostart="$XDG_CONFIG_HOME/autostart/app.brimly.Brimly.desktop"
open_card
click_at $((card_left + 231)) $((card_y + 164))  # the second switch
check "\"Launch at login\" writes the autostart entry" eventually 3 test -f "$autostart"
check "… naming the running program" grep -q "^Exec=.*$(basename "$app")" "$autostart"
click_at $((card_left + 231)) $((card_y + 164))
check "… and switched off again removes it" eventually 3 test ! -e "$autostart"
xdotool key Escape
eventually 3 card_hidden

# --- pin the panel, so that its cells show ------------------------------------------------------
open_card
click_at $((card_left + 231)) $((card_y + 129))
check "\"Keep panel visible\" is stored" eventually 3 grep -q '^isPinned=true' "$conf"
check "… and the card stays open" card_shown
xdotool key Escape
eventually 3 card_hidden
sleep 1.5
temp_cell "$work/temp-celsius.png"
shot -crop 640x170+$((width / 2 - 320))+0 +repage "$work/panel-celsius.png"

# --- settings ------------------------------------------------------------------------------------
open_card
click_at $((card_left + 36)) $footer_y  # "Settings"
check "\"Settings\" opens the window \"Brimly Settings\"" eventually 5 test -n "$(window_named 'Brimly Settings')"
check "\"Settings\" leaves the card open" card_shown
read -r set_x set_y set_w set_h < <(window_geometry 'Brimly Settings')
check "the settings window is 360 x 468" test "${set_w}x${set_h}" = 360x468
# Dragged by its background (beside the title at the top), the window follows the pointer.
drag_by() {  # drag_by <x> <y> <dx> <dy>: a left-button drag from (x, y) by (dx, dy)
  move_to "$1" "$2"
  sleep 0.1
  xdotool mousedown 1
  for _ in 1 2 3 4; do xdotool mousemove_relative -- $(($3 / 4)) $(($4 / 4)); sleep 0.03; done
  xdotool mouseup 1
}
moved_to() {  # moved_to <window name> <x> <y>
  local x y w h
  read -r x y w h < <(window_geometry "$1")
  test "$x $y" = "$2 $3"
}
# The first click into the window closes the card, as a click outside any X11 pop-up does.
click_at $((set_x + 200)) $((set_y + 400))
check "a click into the settings window closes the card" eventually 3 card_hidden
click_at $((set_x + 325)) $((set_y + 232))  # "Show temperature in °F"
check "°F flipped in the settings window is stored" eventually 3 grep -q '^useFahrenheit=true' "$conf"
sleep 0.8
temp_cell "$work/temp-fahrenheit.png"
check "… and the panel's TEMP text changes" images_differ "$work/temp-celsius.png" "$work/temp-fahrenheit.png"
shot -crop "${set_w}x${set_h}+${set_x}+${set_y}" +repage "$work/settings-general.png"
shot -crop 640x170+$((width / 2 - 320))+0 +repage "$work/panel-fahrenheit.png"

click_at $((set_x + 180)) $((set_y + 79))  # the "Metrics" tab
move_to $((set_x + 200)) $((set_y + 455))  # out of the picture's way
sleep 0.5
shot -crop "${set_w}x${set_h}+${set_x}+${set_y}" +repage "$work/settings-metrics.png"
# Drag the third shown row (RAM) above the first (CPU).
move_to $((set_x + 50)) $((set_y + 258 + 60))
xdotool mousedown 1
for _ in 1 2 3 4 5 6 7 8; do xdotool mousemove_relative -- 0 -9; sleep 0.03; done
xdotool mouseup 1
check "dragging RAM above CPU stores the new order" eventually 3 grep -q '^metricOrder=ram, cpu, gpu, disk, temp, pwr' "$conf"
sleep 0.8
shot -crop 640x170+$((width / 2 - 320))+0 +repage "$work/panel-reordered.png"
check "… and the panel's grid follows" images_differ "$work/panel-fahrenheit.png" "$work/panel-reordered.png"
drag_by $((set_x + 340)) $((set_y + 12)) -80 40
check "dragged by its background, the settings window moves with the pointer" \
  eventually 3 moved_to 'Brimly Settings' $((set_x - 80)) $((set_y + 40))
xdotool key Escape
check "Escape hides the settings window" eventually 3 test -z "$(window_named 'Brimly Settings')"

open_card
xdotool key ctrl+comma
check "Ctrl+comma in the open card opens the settings window" \
  eventually 5 test -n "$(window_named 'Brimly Settings')"
check "… and leaves the card open, as \"Settings\" does" card_shown
xdotool key Escape
eventually 3 card_hidden
click_at $((set_x - 80 + 300)) $((set_y + 40 + 12))  # into the window, beside its title
xdotool key Escape
check "Escape hides it again" eventually 3 test -z "$(window_named 'Brimly Settings')"

# --- About ---------------------------------------------------------------------------------------
open_card
click_at $((card_left + 188)) $footer_y  # "About"
check "\"About\" opens the window \"About Brimly\"" eventually 5 test -n "$(window_named 'About Brimly')"
check "\"About\" closes the card" eventually 3 card_hidden
read -r about_x about_y about_w about_h < <(window_geometry 'About Brimly')
check "the About window is 300 wide and as tall as its content in Inter" \
  test "${about_w}x${about_h}" = 300x$about_height
shot -crop "${about_w}x${about_h}+${about_x}+${about_y}" +repage "$work/about.png"
drag_by $((about_x + 10)) $((about_y + 10)) 60 -20
check "dragged by its background, the About window moves with the pointer" \
  eventually 3 moved_to 'About Brimly' $((about_x + 60)) $((about_y - 20))
xdotool key Escape

if [ -n "$shots" ]; then
  mkdir -p "$shots"
  cp "$work"/control-card.png "$work"/settings-*.png "$work"/about.png "$work"/panel-*.png "$shots/"
fi

# --- quit ----------------------------------------------------------------------------------------
open_card
click_at $((card_left + 240)) $footer_y  # "Quit"
check "\"Quit\" ends Brimly" eventually 5 bash -c "! kill -0 $app_pid 2>/dev/null"
wait $app_pid
status=$?
check "Brimly exits with status 0" test "$status" = 0

finish
