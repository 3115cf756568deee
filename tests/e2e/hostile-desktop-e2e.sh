#!/usr/bin/env bash
# Brimly on a virtual X11 desktop that does what an unlucky or hostile session does to it, while
# it runs:
#
# - with a tray: a click on the icon at once after Escape closed the card opens it again (Qt
#   reports such a click as a double click); a link planted at the autostart entry's path is
#   neither written through nor shown as on; a FIFO put at the settings path while Brimly runs
#   leaves it answering and says the setting was not saved; a screen that shrinks under the open
#   card closes it, and the next click on the icon works;
# - without a tray: a burst of connections that uses up every descriptor the process may have
#   leaves the request channel working, so that a later launch still opens the card;
# - as root only (another user is needed, nobody): with XDG_RUNTIME_DIR unset, a folder, lock and
#   socket that another user planted in the shared temporary folder make Brimly run without the
#   guard, saying so, and receive nothing; and with XDG_RUNTIME_DIR naming another user's folder
#   (as sudo leaves it) Brimly keeps its lock in a folder of its own.
#
# usage: hostile-desktop-e2e.sh <brimly executable>
# Exit status 77 (a skip for CTest) only when Xvfb itself is not installed.
set -uo pipefail

app=$1
here=$(cd "$(dirname "$0")" && pwd)
fbtool="$here/framebuffer.py"
width=1512
height=982
tray_size=32
# shellcheck source=virtual-desktop.sh
source "$here/virtual-desktop.sh"
require_tools xdotool xrandr xsetroot trayer python3 prlimit setpriv

# Brimly is ended with SIGKILL: one that hangs (the fault some checks look for) ignores SIGTERM.
brimlies=()
end_brimlies() {
  local pid
  for pid in "${brimlies[@]}"; do kill -KILL "$pid" 2>/dev/null; wait "$pid" 2>/dev/null; done
  brimlies=()
}
trap 'end_brimlies; cleanup' EXIT

eventually() {  # eventually <seconds> <command…>: polls every 50 ms
  local tries=$(($1 * 20))
  shift
  for _ in $(seq "$tries"); do "$@" && return 0; sleep 0.05; done
  return 1
}
card_shown() { xdotool search --onlyvisible --name '^Brimly controls$' >/dev/null 2>&1; }
card_hidden() { ! card_shown; }
panel_shown() { xdotool search --onlyvisible --pid "$1" --name '^Brimly$' >/dev/null 2>&1; }
# The place a switch's knob takes when on, from the card window's left edge, and the column
# through the middle of the switches' tracks.
knob_on_x=256
switch_x=249
card_geometry() {  # sets card_x card_y, and the switches' rows from the card window's top
  local id
  id=$(xdotool search --onlyvisible --name '^Brimly controls$' | head -n1)
  read -r card_x card_y < <(xdotool getwindowgeometry "$id" | tr -c '0-9\n' ' ' | awk 'NR==2 { print $1, $2 }')
  # The rows lie where the faces installed lay them out: found as the three switches that cross
  # the card's surface in their column (its one-point dividers are too thin to count).
  local rows
  read -r -a rows < <("$fbtool" marks "$fb" $((card_x + switch_x)) $((card_y + 40)) 240 6)
  row_login=$((${rows[1]:-0} - card_y))
  row_fahrenheit=$((${rows[2]:-0} - card_y))
}
switch_on() { # switch_on <row>: the knob is at the right (white)
  local colour
  colour=$("$fbtool" pixel "$fb" $((card_x + knob_on_x)) $((card_y + $1)))
  test $((16#${colour:0:2})) -ge 200
}
switch_off() { ! switch_on "$1"; }
open_card() {  # opens the card unless it is open, and finds it
  if ! card_shown; then
    sleep 0.6  # past the double-click time of any click before
    xdotool mousemove $icon_x $icon_y click 1
    eventually 5 card_shown
  fi
  card_geometry
}
click_switch() { xdotool mousemove $((card_x + switch_x)) $((card_y + $1)) click 1; }
start_brimly() {  # start_brimly <stderr file> [env arguments…]: started_pid is the new process
  env "${@:2}" "$app" >/dev/null 2>"$1" &
  started_pid=$!
  brimlies+=("$started_pid")
}

# --- with a tray ---------------------------------------------------------------------------------
start_screen
xsetroot -solid '#3a6ea5'
trayer --edge top --align right --widthtype pixel --width $tray_size --heighttype pixel \
  --height $tray_size --SetDockType true --SetPartialStrut true --expand false \
  >"$work/trayer.log" 2>&1 &
trayer_pid=$!
pids+=($trayer_pid)
sleep 1

export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime" TMPDIR="$work/tmp"
mkdir -p "$XDG_CONFIG_HOME/brimly" "$XDG_CONFIG_HOME/autostart" "$TMPDIR"
mkdir -m 700 "$XDG_RUNTIME_DIR"
conf="$XDG_CONFIG_HOME/brimly/Brimly.conf"
entry="$XDG_CONFIG_HOME/autostart/app.brimly.Brimly.desktop"
err="$work/tray.err"

start_brimly "$err"
icon_x=$((width - tray_size / 2))
icon_y=$((tray_size / 2))
check "Brimly's panel comes up" eventually 20 panel_shown "$started_pid"
sleep 1
xdotool mousemove $icon_x $icon_y click 1
check "a click on the tray icon opens the card" eventually 5 card_shown
xdotool key Escape click 1
check "a click on the icon at once after Escape opens it again" eventually 3 card_shown

# Launch at login with a link planted at the entry's path.
open_card
echo 'export PATH=/usr/bin' >"$work/bashrc"
ln -s "$work/bashrc" "$entry"
click_switch $row_login
check "\"Launch at login\" says the entry is a link" \
  eventually 3 grep -q "login item toggle failed — $entry is a symbolic link" "$err"
check "… writes nothing through it" test "$(cat "$work/bashrc")" = 'export PATH=/usr/bin'
check "… and the switch stays off" switch_off $row_login
rm "$entry"

# A FIFO at the settings path while Brimly runs.
open_card
click_switch $row_fahrenheit
check "\"Show in Fahrenheit\" is stored" eventually 3 grep -q '^useFahrenheit=true' "$conf"
check "… and its switch shows it" eventually 3 switch_on $row_fahrenheit
rm "$conf" && mkfifo "$conf"
click_switch $row_fahrenheit
xdotool key Escape
check "with a FIFO at the settings path Brimly still answers (Escape closes the card)" \
  eventually 5 card_hidden
check "… says the setting was not saved" \
  grep -q "saving the settings failed — $conf is not a regular file" "$err"
check "… and leaves the FIFO as it is" test -p "$conf"
# Should Brimly wait on the FIFO all the same, a writer that comes and goes lets it go on.
timeout 1 sh -c 'exec 9>"$1"' sh "$conf" 2>/dev/null
rm "$conf"

# The screen shrinks under the open card.
xdotool key Escape
eventually 3 card_hidden
open_card
small_width=1024
xrandr --newmode brimly-small 60 $small_width 1025 1026 1027 768 769 770 771 >/dev/null 2>&1
xrandr --addmode screen brimly-small && xrandr --output screen --mode brimly-small --fb ${small_width}x768
check "the card closes when the screen shrinks under it" eventually 5 card_hidden
tray_moved() { xdotool search --class trayer getwindowgeometry %@ 2>/dev/null | grep -q "Position: $((small_width - tray_size)),0"; }
eventually 5 tray_moved
xdotool mousemove $((small_width - tray_size / 2)) $icon_y click 1
check "… and the next click on the icon opens it again" eventually 5 card_shown
xdotool key Escape
eventually 3 card_hidden
echo "      brimly wrote on stderr:"
sed 's/^/      | /' "$err"
end_brimlies
kill "$trayer_pid" 2>/dev/null

# --- without a tray: a flood of connections ------------------------------------------------------
err="$work/flood.err"
start_brimly "$err"
first=$started_pid
check "without a tray Brimly comes up and says so" \
  eventually 20 grep -q 'shows no system tray' "$err"
eventually 20 panel_shown "$first"
descriptors=$(ls /proc/"$first"/fd | wc -l)
prlimit --pid "$first" --nofile=$((descriptors + 4)):$((descriptors + 4))
flood() {  # connects 500 times without a word, holds them all for a while, then lets go
  python3 - "$XDG_RUNTIME_DIR/app.brimly.Brimly.controls" <<'EOF'
import socket, sys, time
held = []
for _ in range(500):
    s = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
    s.setblocking(False)
    try:
        s.connect(sys.argv[1])
        held.append(s)
    except OSError:
        s.close()
time.sleep(1)
print(len(held))
EOF
}
rss_before=$(awk '/VmRSS/ { print $2 }' /proc/"$first"/status)
held=$(flood)
rss_after=$(awk '/VmRSS/ { print $2 }' /proc/"$first"/status)
echo "      $held connections held against a limit of $((descriptors + 4)) descriptors;" \
  "resident memory $rss_before KiB before, $rss_after KiB after"
check "the channel's socket is still there" test -S "$XDG_RUNTIME_DIR/app.brimly.Brimly.controls"
xdotool mousemove 700 400
"$app" >/dev/null 2>"$work/second.err"
status=$?
check "a later launch leaves with status 0 (status $status)" test "$status" = 0
check "… and the running Brimly opens its card" eventually 5 card_shown
end_brimlies

# --- another user's folder, lock and socket (root only) ------------------------------------------
if [ "$(id -u)" != 0 ]; then
  echo "skip  squatted runtime folders: acting as another user takes the superuser"
else
  chmod 711 "$work"
  shared="$work/shared-tmp"
  mkdir -m 1777 "$shared"
  squat="$shared/brimly-$(id -u)"
  # The other user holds a lock and listens where Brimly's own folder would be, and writes down
  # every connection it gets.
  # The system's own Python: one installed for root alone is out of that user's reach.
  python=$(command -v /usr/bin/python3 python3 | head -n1)
  setpriv --reuid=65534 --regid=65534 --clear-groups "$python" - "$squat" <<'EOF' &
import fcntl, os, select, socket, sys
folder = sys.argv[1]
shared = os.path.dirname(folder)
os.mkdir(folder, 0o755)
# Also where a Brimly that falls back to the shared folder itself would look, with Qt's own
# runtime folder for root taken as well.
os.mkdir(os.path.join(shared, "runtime-root"), 0o700)
locks, servers = [], []
for place in (folder, shared):
    lock = open(os.path.join(place, "app.brimly.Brimly.lock"), "w")
    os.chmod(lock.name, 0o666)
    fcntl.flock(lock, fcntl.LOCK_EX)
    locks.append(lock)
    server = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
    server.bind(os.path.join(place, "app.brimly.Brimly.controls"))
    os.chmod(os.path.join(place, "app.brimly.Brimly.controls"), 0o777)
    server.listen(8)
    servers.append(server)
open(os.path.join(folder, "ready"), "w").close()
while True:
    for server in select.select(servers, [], [])[0]:
        connection, _ = server.accept()
        with open(os.path.join(folder, "heard"), "a") as heard:
            heard.write(repr(connection.recv(64)) + "\n")
        connection.close()
EOF
  pids+=($!)
  check "another user plants a folder, a held lock and a socket" eventually 10 test -e "$squat/ready"
  err="$work/squat.err"
  start_brimly "$err" -u XDG_RUNTIME_DIR TMPDIR="$shared"
  check "with another user's folder in the way Brimly still comes up" \
    eventually 20 panel_shown "$started_pid"
  check "… saying so in one line" grep -qx "Brimly: no single-instance lock ($squat belongs to another user); running without the single-instance guard" "$err"
  start_brimly "$work/squat-second.err" -u XDG_RUNTIME_DIR TMPDIR="$shared"
  eventually 20 panel_shown "$started_pid"
  check "… and the other user hears nothing, not even from a later launch" test ! -e "$squat/heard"
  end_brimlies

  # As sudo leaves it: XDG_RUNTIME_DIR names the folder of the user who called it.
  theirs="$work/their-runtime"
  own="$work/own-tmp"
  mkdir -m 700 "$theirs" "$own" && chown 65534:65534 "$theirs"
  start_brimly "$work/sudo.err" XDG_RUNTIME_DIR="$theirs" TMPDIR="$own"
  check "with XDG_RUNTIME_DIR naming another user's folder Brimly comes up" \
    eventually 20 panel_shown "$started_pid"
  check "… keeps its lock in a folder of its own" \
    test -f "$own/brimly-$(id -u)/app.brimly.Brimly.lock"
  check "… and leaves the other user's folder alone" test -z "$(ls -A "$theirs")"
  env XDG_RUNTIME_DIR="$theirs" TMPDIR="$own" timeout 10 "$app" >/dev/null 2>&1
  status=$?
  check "… so that a later launch leaves with status 0 (status $status)" test "$status" = 0
  end_brimlies
fi

[ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
exit $((failures > 0))
