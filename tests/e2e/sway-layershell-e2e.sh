#!/usr/bin/env bash
# Brimly on headless sway (wlroots), which offers the layer shell and here no XWayland, over a
# full-screen window that reports its clicks: Brimly runs on Qt's Wayland platform, says that it
# hovers through the layer shell, draws nothing while closed, opens into the 600 x 148 card at the
# top centre, above the full-screen window, when the pointer reaches the closed outline there,
# stays open over the card and closes once the pointer leaves. The hot zone takes the clicks in it;
# a click beside it, or on the pinned card, reaches the window. The panel follows its output to
# another scale, stays open when pinned, and ends with one line when the compositor goes away.
# The screen is read with grim.
#
# usage: sway-layershell-e2e.sh <brimly> <pointer driver> <click logger> [screenshot folder]
# BRIMLY_E2E_SCALE=2 runs the output at scale 2. Exit status 77 (a skip for CTest) where sway or
# grim is not installed, or the namespaces cannot be made.
set -uo pipefail

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=wayland-desktop.sh
source "$here/wayland-desktop.sh"
app=$1
driver=$2
logger=$3
shots=${4:-}
need sway swaymsg grim

scale=${BRIMLY_E2E_SCALE:-1}
width=1280
height=720
points=$((width / scale))  # the output's width in points
desktop=336699
label=sway-scale$scale

# --- the compositor ------------------------------------------------------------------------------
start_sway || { echo "FAIL: sway did not start"; tail -n 20 "$work/sway.log"; exit 1; }
# The pointer goes to a fraction of the layout: given in the output's pixels, at any scale.
start_pointer "$driver" $width $height || { echo "FAIL: no pointer"; exit 1; }
at() {  # at <x> <y>: a point of the output
  pointer_at="$1 $2"
  move $(($1 * scale)) $(($2 * scale))
}
at $((points / 2)) 300
start_window_beneath "$logger" || { echo "FAIL: no window beneath"; exit 1; }

# --- reading the screen --------------------------------------------------------------------------
output=HEADLESS-1
shoot() { "${as_user[@]}" grim -o "$output" -t ppm - >"$1"; }

# --- start ---------------------------------------------------------------------------------------
start_brimly "$app"
check "Brimly says it hovers through the layer shell" \
  eventually 10 says "Brimly: hover through a layer-shell hot zone"
check "… and runs without XWayland (on Qt's Wayland platform)" kill -0 "$brimly_pid"
sleep 0.5  # the surface's first frame
check "closed, it draws nothing at the top of the screen, for a second" stays 1 is_closed
picture closed

# --- open ----------------------------------------------------------------------------------------
entered=$(now)
at $((points / 2)) 10
check "the pointer on the closed outline opens the 600 x 148 card at the top centre, above the full-screen window" \
  eventually 5 is_open
echo "      open $(elapsed "$entered" "$(now)") s after the pointer entered; black box $(look; box)"
sleep 0.5  # the grid's fade-in
check "the card's bottom corners are transparent" corners_clear
check "while its figures change for two seconds the card stays whole" stays 2 is_whole
picture open
at $((points / 2 + 250)) 120
check "over the card it stays open" stays 1 is_open
check "a click on the open card does not reach the window beneath" click_reaches no

# --- close ---------------------------------------------------------------------------------------
left=$(now)
at $((points / 2)) 300
check "leaving closes it" eventually 5 is_closed
echo "      gone $(elapsed "$left" "$(now)") s after the pointer left (0.4 s grace, then the spring)"
at $((points / 2 - 120)) 10
check "the pointer beside the closed outline opens nothing" stays 1 is_clear
check "a click there reaches the window beneath" click_reaches yes

# --- the output's scale changes ------------------------------------------------------------------
# (sway 1.7's headless outputs cannot be disabled, so an output going away is not tried here.)
rescale() {  # rescale <scale>: the output's, and the one the checks expect
  scale=$1
  points=$((width / scale))
  swaymsg "output $output scale $scale" >/dev/null
}
first_scale=$scale
rescale $((3 - scale))  # 1 becomes 2, 2 becomes 1
at $((points / 2)) 10
check "at scale $scale the card opens at the new size" eventually 5 is_open
picture open-rescaled
at $((points / 2)) 300
check "… and closes" eventually 5 is_closed
rescale "$first_scale"

# --- pinned --------------------------------------------------------------------------------------
stop_brimly
pin
start_brimly "$app"
check "pinned, it is open from the start" eventually 10 is_open
at $((points / 2)) 10
check "… and a click on it reaches the window beneath" click_reaches yes
at $((points / 2)) 300
check "… and stays open when the pointer comes and goes" stays 1.5 is_open
picture pinned

# --- the compositor goes away --------------------------------------------------------------------
end_compositor "$sway_pid"
wait "$brimly_pid"
check "… with status 1" test $? = 1
finish
