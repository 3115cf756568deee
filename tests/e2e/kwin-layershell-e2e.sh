#!/usr/bin/env bash
# Brimly on headless KWin (KDE Plasma's compositor), which offers the layer shell, with XWayland:
# Brimly runs on Qt's X11 platform through XWayland beside its own layer surface, says that it
# hovers through the layer shell, draws nothing while closed, opens into the 600 x 148 card at the
# top centre when the pointer reaches the closed outline there and closes once it leaves, and ends
# with one line when KWin goes away. KWin starts Brimly itself, as a session does; the pointer is
# KWin's fake input and the screen is read through KWin's screenshot service.
#
# usage: kwin-layershell-e2e.sh <brimly> <pointer driver> [screenshot folder]
# BRIMLY_E2E_SCALE=1.5 runs the output at that scale. Exit status 77 (a skip for CTest) where KWin,
# swaybg, dbus-daemon or python3-dbus is missing, or the namespaces cannot be made.
set -uo pipefail

here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=wayland-desktop.sh
source "$here/wayland-desktop.sh"
app=$1
driver=$2
shots=${3:-}
need kwin_wayland swaybg dbus-daemon python3 python3-dbus

scale=${BRIMLY_E2E_SCALE:-1}
width=1280   # pixels
height=720
points=$(awk -v w=$width -v s="$scale" 'BEGIN { printf "%d", w / s }')
desktop=336699
label=kwin-scale$scale

# --- the compositor ------------------------------------------------------------------------------
# A session bus of the user's own, for KWin's services.
start_bus bus DBUS_SESSION_BUS_ADDRESS || { echo "FAIL: no session bus"; exit 1; }
# kwin_wayland carries a file capability that an unprivileged exec may not take: a copy has none,
# and keeps its name, which KWin's platform code looks for.
mkdir "$work/bin" && cp "$(command -v kwin_wayland)" "$work/bin/kwin_wayland"
# KWin starts Brimly once XWayland runs, with DISPLAY set, as a Plasma session starts programs.
cat >"$work/bin/start-brimly" <<SCRIPT
#!/bin/sh
echo \$\$ >"$work/brimly.pid"
exec "$app" >"$work/brimly.out" 2>"$work/brimly.err"
SCRIPT
chmod 755 "$work/bin/start-brimly"
touch "$work/brimly.pid" "$work/brimly.out" "$work/brimly.err"
chown $user:$user "$work/brimly.pid" "$work/brimly.out" "$work/brimly.err"
# Fake input and screenshots for any client: no Plasma session grants them here.
"${as_user[@]}" env KWIN_WAYLAND_NO_PERMISSION_CHECKS=1 KWIN_SCREENSHOT_NO_PERMISSION_CHECKS=1 \
  KWIN_COMPOSE=O2ES "$work/bin/kwin_wayland" --virtual --width $points \
  --height "$(awk -v h=$height -v s="$scale" 'BEGIN { printf "%d", h / s }')" --scale "$scale" \
  --socket wayland-brimly --xwayland "$work/bin/start-brimly" >"$work/kwin.log" 2>&1 &
kwin_pid=$!
pids+=($kwin_pid)
wait_for_socket || { echo "FAIL: KWin did not start"; tail -n 20 "$work/kwin.log"; exit 1; }
# KWin's empty desktop is black, like the card: a background of another colour, in the layer
# shell's background layer.
"${as_user[@]}" swaybg -c "#$desktop" >"$work/swaybg.log" 2>&1 &
pids+=($!)
start_pointer "$driver" $points $height || { echo "FAIL: no pointer"; cat "$work/pointer.out"; exit 1; }
at() { move "$1" "$2"; }  # KWin's fake input takes points
at $((points / 2)) 300

shoot() { "${as_user[@]}" "$here/wayland/kwin-screenshot.py" >"$1"; }

# --- start ---------------------------------------------------------------------------------------
check "Brimly says it hovers through the layer shell" \
  eventually 20 says "Brimly: hover through a layer-shell hot zone"
brimly_pid=$(cat "$work/brimly.pid")
check "… and runs on Qt's X11 platform through XWayland" grep -q libqxcb "/proc/$brimly_pid/maps"
check "closed, it draws nothing at the top of the screen, for a second" eventually 10 stays 1 is_closed
picture closed

# --- open and close ------------------------------------------------------------------------------
entered=$(now)
at $((points / 2)) 10
check "the pointer on the closed outline opens the 600 x 148 card at the top centre" eventually 5 is_open
echo "      open $(elapsed "$entered" "$(now)") s after the pointer entered; black box $(look; box)"
check "the card's bottom corners are transparent" corners_clear
check "while its figures change for two seconds the card stays whole" stays 2 is_whole
picture open
left=$(now)
at $((points / 2)) 300
check "leaving closes it" eventually 5 is_closed
echo "      gone $(elapsed "$left" "$(now)") s after the pointer left (0.4 s grace, then the spring)"

# --- KWin goes away ------------------------------------------------------------------------------
end_compositor "$kwin_pid"
finish
