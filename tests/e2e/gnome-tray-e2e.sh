#!/usr/bin/env bash
# Brimly's tray item on a headless GNOME Shell 43 with the AppIndicator extension as Ubuntu ships
# it, a StatusNotifierItem host on the shell's session bus, over a maximized Wayland window that
# reports its clicks. The item shows in the top bar; a middle click on it (a left one opens the
# item's menu, which is empty) passes the click's place to Brimly, which opens the control card
# right under the item and fully on screen. Escape, a click into the window beneath (which takes
# the keyboard) and a second click on the item close the card. The pointer is a remote-desktop
# session of mutter's; the screen is read through the shell's screenshot service.
#
# usage: gnome-tray-e2e.sh <brimly> <click logger> [screenshot folder]
# Exit status 77 (a skip for CTest) where GNOME Shell, the extension, XWayland, dbus-daemon or
# python3-dbus is missing, or the namespaces cannot be made.
set -uo pipefail

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=wayland-desktop.sh
source "$here/wayland-desktop.sh"
app=$1
logger=$2
shots=${3:-}
need gnome-shell Xwayland dbus-daemon gsettings python3 python3-dbus convert
extension=ubuntu-appindicators@ubuntu.com
if [ ! -d "/usr/share/gnome-shell/extensions/$extension" ]; then
  echo "SKIPPED: the AppIndicator extension is not installed (scripts/install-deps --test installs it)"
  exit $skip
fi

width=1280
height=720
scale=1
desktop=3465a4
label=gnome-tray
bar=32       # GNOME's top bar at scale 1, which it keeps out of the usable area
item_from=800  # the clock in the middle moves on; the system menu at the far right stays put
item_button=middle
shadow=18  # the transparent margin around the card that holds its shadow, in the card's window
margin=6   # the card's window keeps this far inside the screen's usable area

start_gnome_shell "$extension"
shoot() { gnome_screen "$1"; }
# shellcheck source=tray-checks.sh
source "$here/tray-checks.sh"
at 300 400
start_window_beneath "$logger" maximized || { echo "FAIL: no window beneath"; cat "$work/logger.err"; exit 1; }
window_shows() { look && test "$(pixel 300 400)" = "$desktop"; }
eventually 20 window_shows || { echo "FAIL: the maximized window did not come up"; exit 1; }
shoot "$work/bare.ppm"

# --- the item ------------------------------------------------------------------------------------
start_brimly "$app" DISPLAY=:0 XAUTHORITY="$(xauthority)"
check "Brimly's item shows in the top bar" eventually 20 item_shows
stop_if_failed
echo "      | the item is at $item_x, $((bar / 2))"
keep item

# --- the card under it ---------------------------------------------------------------------------
click_item
check "a middle click on the item opens the card" eventually 5 card_open
stop_if_failed
keep card-under-item
# The card's window, from where its surface is painted: left, top, right, bottom.
surface=$(card_surface)
check "the card is under the item" test "$surface" != none
stop_if_failed
size=${surface%%+*}
left=$(($(echo "$surface" | cut -d+ -f2) - shadow))
top=$((${surface##*+} - shadow))
right=$((left + shadow + ${size%x*} - 1 + shadow))
bottom=$((top + shadow + ${size#*x} - 1 + shadow))
echo "      | the card's window spans x $left…$right, y $top…$bottom"
check "the card hangs from the top bar, right under the item" test $((top - bar)) -ge -1 -a $((top - bar)) -le 1
check "the card is fully on screen, its window 6 points inside the right edge" \
  test $left -ge $margin -a $right -le $((width - margin)) -a $bottom -lt $height
centred_or_at_edge() {
  local off_centre=$(((left + right) / 2 - item_x))
  test ${off_centre#-} -le 2 || test $right -ge $((width - margin - 2))
}
check "the card is centred under the item, or as near as the screen's edge lets it" centred_or_at_edge

# --- closing -------------------------------------------------------------------------------------
echo escape >&3
check "Escape closes the card" eventually 5 card_closed
click_item
check "a click on the item opens it after Escape" eventually 5 card_open
click_elsewhere_closes_the_card
item_clicks_toggle_the_card
stop_brimly
finish
