#!/usr/bin/env bash
# Brimly's tray item in waybar's tray on headless sway (wlroots, here without XWayland, so that
# Brimly runs on Qt's Wayland platform), over a maximized window that reports its clicks. Waybar
# is a StatusNotifierItem host on the session bus: the item shows in the bar, and a left click on
# it opens the control card. A Wayland program cannot place its own window: sway floats the card
# where it likes (in the middle), and the checks ask only that it is whole on screen. A click into
# the window beneath (which takes the keyboard) closes the card, and the item opens and closes it.
# The screen is read with grim.
#
# usage: sway-tray-e2e.sh <brimly> <pointer driver> <click logger> [screenshot folder]
# Exit status 77 (a skip for CTest) where sway, grim, waybar or dbus-daemon is not installed, or
# the namespaces cannot be made.
set -uo pipefail

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=wayland-desktop.sh
source "$here/wayland-desktop.sh"
app=$1
driver=$2
logger=$3
shots=${4:-}
need sway swaymsg grim waybar dbus-daemon convert

width=1280
height=720
scale=1
desktop=336699
label=sway-tray
bar=30  # waybar's height, which sway keeps out of the usable area
item_from=$((width / 2))
item_button=

# --- the desktop ---------------------------------------------------------------------------------
start_bus bus DBUS_SESSION_BUS_ADDRESS || { echo "FAIL: no session bus"; exit 1; }
start_sway || { echo "FAIL: sway did not start"; tail -n 20 "$work/sway.log"; exit 1; }
start_pointer "$driver" $width $height || { echo "FAIL: no pointer"; exit 1; }
shoot() { "${as_user[@]}" grim -o HEADLESS-1 -t ppm - >"$1"; }
# shellcheck source=tray-checks.sh
source "$here/tray-checks.sh"
cat >"$work/waybar.json" <<CONFIG
{"layer": "top", "position": "top", "height": $bar, "modules-right": ["tray"],
 "tray": {"icon-size": 20, "spacing": 4}}
CONFIG
printf '* { font-family: sans-serif; min-height: 0; }\nwindow#waybar { background: #202020; }\n' \
  >"$work/waybar.css"
"${as_user[@]}" waybar -c "$work/waybar.json" -s "$work/waybar.css" >"$work/waybar.log" 2>&1 &
pids+=($!)
at 300 400
start_window_beneath "$logger" maximized || { echo "FAIL: no window beneath"; cat "$work/logger.err"; exit 1; }
bar_and_window_show() {  # away from the pointer, which sway draws into its screenshots
  look && test "$(pixel 600 400)" = "$desktop" && test "$(pixel 300 $((bar / 2)))" = 202020
}
eventually 20 bar_and_window_show || { echo "FAIL: waybar or the window did not come up"; cat "$work/waybar.log"; exit 1; }
shoot "$work/bare.ppm"

# --- the item and the card -----------------------------------------------------------------------
start_brimly "$app"
check "Brimly's item shows in waybar's tray" eventually 20 item_shows
stop_if_failed
echo "      | the item is at $item_x, $((bar / 2))"
keep item
click_item
check "a click on the item opens the card" eventually 5 card_open
stop_if_failed
keep card
surface=$(card_surface)
echo "      | the card's surface: $surface"
whole_on_screen() {
  local size=${surface%%+*} left top
  left=$(echo "$surface" | cut -d+ -f2)
  top=${surface##*+}
  test "${size%x*}" -ge 200 && test "$left" -gt 0 && test "$top" -gt "$bar" &&
    test $((left + ${size%x*})) -lt "$width" && test $((top + ${size#*x})) -lt "$height"
}
check "the card shows whole, below the bar" whole_on_screen

# --- closing -------------------------------------------------------------------------------------
click_elsewhere_closes_the_card
# Waybar 0.9.17 tells every click on an item after the first twice (Activate, twice at once):
# Brimly takes the two for one click.
item_clicks_toggle_the_card
stop_brimly
finish
