#!/usr/bin/env bash
# Brimly through a real accessibility client: on a virtual X11 desktop with a system tray, on a
# private D-Bus session bus with its own AT-SPI bus, Brimly runs with Qt's accessibility always on
# and accessibility-client.py (pyatspi) reads and drives it as a screen reader does: the control
# card, the open panel, each tab of the settings window, and About (see that script for the
# checks). Brimly reads a recorded laptop (a fixture tree) so that every reading has a value.
#
# usage: accessibility-e2e.sh <brimly executable> <fixture root> <version> [folder for the trees]
# Exit status 77 (a skip for CTest) only when Xvfb itself is not installed.
set -uo pipefail

app=$1
fixture=$(cd "$2" && pwd)
version=$3
trees=${4:-}
here=$(cd "$(dirname "$0")" && pwd)

# Everything runs on a session bus of its own, which ends with the test.
if [ -z "${BRIMLY_E2E_PRIVATE_BUS:-}" ]; then
  command -v dbus-run-session >/dev/null 2>&1 ||
    { echo "FAIL: dbus-run-session is missing (scripts/install-deps installs it)"; exit 1; }
  exec env BRIMLY_E2E_PRIVATE_BUS=1 dbus-run-session -- "$0" "$@"
fi

width=1512
height=982
tray_size=32
# shellcheck source=virtual-desktop.sh
source "$here/virtual-desktop.sh"
require_tools xdotool trayer
bus_launcher=/usr/libexec/at-spi-bus-launcher
[ -x "$bus_launcher" ] || { echo "FAIL: $bus_launcher is missing (at-spi2-core; scripts/install-deps installs it)"; exit 1; }
# pyatspi belongs to the system's Python, whatever other python3 comes first on the PATH.
python=/usr/bin/python3
"$python" -c 'import pyatspi' 2>/dev/null ||
  { echo "FAIL: $python cannot import pyatspi (python3-pyatspi; scripts/install-deps installs it)"; exit 1; }

start_screen
trayer --edge top --align right --widthtype pixel --width $tray_size --heighttype pixel \
  --height $tray_size --SetDockType true --SetPartialStrut true --expand false \
  >"$work/trayer.log" 2>&1 &
pids+=($!)
# The accessibility bus of this session: clients and applications find it on the session bus
# (and on the X root window), and the registry starts with it.
"$bus_launcher" --launch-immediately >"$work/at-spi.log" 2>&1 &
pids+=($!)

export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime"
export BRIMLY_SYSTEM_ROOT="$fixture" QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
mkdir -p "$XDG_CONFIG_HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"
xdotool mousemove $((width / 2)) 500

"$app" >"$work/brimly.out" 2>"$work/brimly.err" &
app_pid=$!
pids+=("$app_pid")
# The icon is a dark tile: a dark pixel in the tray once Brimly's icon is in it.
icon_x=$((width - tray_size / 2))
icon_y=$((tray_size / 2))
icon_shown() {
  local colour
  colour=$("$here/framebuffer.py" pixel "$fb" $((icon_x - 6)) $((icon_y + 6)))
  test $((16#${colour:0:2})) -lt 64 -a $((16#${colour:2:2})) -lt 64
}
for _ in $(seq 200); do icon_shown && break; sleep 0.05; done
check "Brimly's icon appears in the tray" icon_shown
sleep 0.5

[ -n "$trees" ] && mkdir -p "$trees"
BRIMLY_E2E_VERSION=$version "$python" "$here/accessibility-client.py" $icon_x $icon_y "$trees"
client_failures=$?
failures=$((failures + client_failures))

for _ in $(seq 100); do kill -0 $app_pid 2>/dev/null || break; sleep 0.05; done
if kill -0 $app_pid 2>/dev/null; then
  check "\"Quit\", pressed through the client, ends Brimly" false
else
  wait $app_pid
  status=$?
  check "\"Quit\", pressed through the client, ends Brimly with status 0" test "$status" = 0
fi

finish
