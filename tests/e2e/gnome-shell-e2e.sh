#!/usr/bin/env bash
# Brimly on a headless GNOME Shell 43, whose compositor offers no layer shell, over a full-screen
# Wayland window that reports its clicks. Without XWayland Brimly refuses to start, in one line.
# With it, Brimly says that it hovers through the XWayland hot zone, draws nothing while closed,
# opens into the 600 x 148 card at the top centre, above the full-screen window, when the pointer
# reaches the top centre, and closes once the pointer leaves. The hot zone takes the clicks that
# land in it; a click beside the card, or where the closed card was, reaches the window, and a
# pinned card takes none. The pointer is a remote-desktop session of mutter's; the screen is read
# through the shell's screenshot service.
#
# usage: gnome-shell-e2e.sh <brimly> <click logger> [screenshot folder]
# Exit status 77 (a skip for CTest) where GNOME Shell, XWayland, dbus-daemon or python3-dbus is
# missing, or the namespaces cannot be made.
set -uo pipefail

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=wayland-desktop.sh
source "$here/wayland-desktop.sh"
app=$1
logger=$2
shots=${3:-}
need gnome-shell Xwayland dbus-daemon gsettings python3 python3-dbus convert

width=1280
height=720
scale=1
desktop=3465a4
label=gnome

# --- the desktop ---------------------------------------------------------------------------------
start_gnome_shell
at() {  # at <x> <y>: a point of the screen
  pointer_at="$1 $2"
  move "$1" "$2"
}
at 640 400

shoot() { gnome_screen "$1"; }
start_window_beneath "$logger" || { echo "FAIL: no window beneath"; cat "$work/logger.err"; exit 1; }
eventually 20 is_clear || { echo "FAIL: the full-screen window did not cover the screen"; exit 1; }

# --- without XWayland ----------------------------------------------------------------------------
"${as_user[@]}" "$app" >"$work/alone.out" 2>"$work/alone.err"
status=$?
refused_in_one_line() {
  test $status = 3 && test "$(wc -l <"$work/alone.err")" = 1 &&
    grep -q "no X11 display in this Wayland session" "$work/alone.err"
}
check "without XWayland Brimly leaves with status 3 and one line" refused_in_one_line
echo "      | $(head -n1 "$work/alone.err")"

# --- start ---------------------------------------------------------------------------------------
start_brimly "$app" DISPLAY=:0 XAUTHORITY="$(xauthority)"
check "Brimly says it hovers through the XWayland hot zone" \
  eventually 20 says "Brimly: hover through an XWayland hot zone"
said_once_why() { test "$(grep -c hover "$work/brimly.err")" = 1 && says "offers no layer shell"; }
check "… in one line, because the compositor offers no layer shell" said_once_why
check "closed, nothing is drawn over the full-screen window" eventually 5 is_closed
picture closed

# --- open, clicks, close -------------------------------------------------------------------------
at 640 3
check "the pointer at the top centre opens the 600 x 148 card over the full-screen window" \
  eventually 5 is_open
picture open
check "a click in the hot zone does not reach the window beneath" click_reaches no
at 640 100
check "… nor one on the open card" click_reaches no
at 200 60
check "a click beside the open card reaches the window beneath" click_reaches yes
check "leaving closes the card" eventually 5 is_closed
# The shrunk zone reaches the compositor with the frames after the last one of the closing card,
# 100 and 150 ms later; the last frame may just have been drawn.
sleep 0.3
at 360 60
check "closed, a click where the card was reaches the window beneath" click_reaches yes
stop_brimly

# --- pinned --------------------------------------------------------------------------------------
pin
start_brimly "$app" DISPLAY=:0 XAUTHORITY="$(xauthority)"
check "pinned, the card is open without the pointer near" eventually 20 is_open
picture pinned
at 640 100
check "… it takes no click: the window beneath gets it" click_reaches yes
at 640 400
check "… and stays open when the pointer leaves" stays 1.5 is_open
stop_brimly
finish
