# Shared by the Wayland end-to-end scripts (sway, KWin, GNOME Shell) and scripts/footprint-sway
# (sourced, not run): a headless Wayland desktop that the script starts itself, in private
# namespaces and as an unprivileged user, with the buses, pointer and window beneath that it needs,
# Brimly on it, and the screen read back.
#
# Source it first, with the script's own arguments. Run as root, it starts the script again in a
# private mount, network and process namespace: a /tmp of its own (for the X displays a
# compositor's XWayland takes), no network, no systemd (a stale /run/systemd would send GNOME Shell
# looking for logind), and every process it leaves behind ended with it. There the compositor,
# Brimly and every tool run as nobody (uid 65534), with a runtime directory, settings and home of
# their own, so that nothing meets another display on the machine. Anyone else than root gets a
# skip (status 77), as does a machine that cannot make the namespaces (a container without the
# privilege).

skip=77
e2e=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)  # this folder, whoever sources it
if [ -z "${BRIMLY_E2E_IN_NAMESPACES:-}" ]; then
  if [ "$(id -u)" != 0 ]; then
    echo "SKIPPED: the compositor is started in private namespaces as nobody, which takes root (CI runs it so)"
    exit $skip
  fi
  namespaces=(unshare --mount --net --pid --fork --kill-child --mount-proc --propagation private)
  if ! refusal=$("${namespaces[@]}" true 2>&1); then
    echo "SKIPPED: private namespaces cannot be made here ($refusal)"
    exit $skip
  fi
  # What the run needs may itself lie in /tmp (a checkout, a build): the folders of the shared
  # /tmp, reached through a descriptor opened before it is covered (mount must not resolve that
  # path by its name, which would now lead into the new /tmp), are bound back into the private
  # one; its X11 sockets and lock files (dot files, plain files) stay out.
  # shellcheck disable=SC2016  # expanded by the inner shell
  BRIMLY_E2E_IN_NAMESPACES=1 exec "${namespaces[@]}" sh -c \
    'exec 9</tmp || exit 1
     mount -t tmpfs -o mode=1777 tmpfs /tmp && mkdir -m 1777 /tmp/.X11-unix || exit 1
     for shared in /proc/self/fd/9/*; do
       if [ -d "$shared" ] && [ ! -L "$shared" ]; then
         mkdir "/tmp/${shared##*/}" && mount --no-canonicalize --bind "$shared" "/tmp/${shared##*/}" || true
       fi
     done
     exec 9<&-
     if [ -d /run/systemd ]; then mount -t tmpfs tmpfs /run/systemd; fi
     exec "$@"' \
    sh "$0" "$@"
fi

user=65534
# A command prefix, not a function: started in the background it is the process itself, so that
# $! is the command's own process.
as_user=(setpriv --reuid=$user --regid=$user --clear-groups)
# Only the folders of PATH that the user may search: a program found in one it may not (root's own
# tools) would be refused instead of looked for further on.
searchable=
IFS=: read -ra folders <<<"$PATH"
for folder in "${folders[@]}"; do
  "${as_user[@]}" test -x "$folder" 2>/dev/null && searchable=${searchable:+$searchable:}$folder
done
export PATH=$searchable

# shellcheck source=checks.sh
source "$e2e/checks.sh"
chmod 755 "$work"
export XDG_RUNTIME_DIR="$work/runtime" XDG_CONFIG_HOME="$work/config" HOME="$work/home"
mkdir -m 700 "$XDG_RUNTIME_DIR" && mkdir "$XDG_CONFIG_HOME" "$HOME"
chown $user:$user "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME" "$HOME"
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM XDG_SESSION_TYPE XDG_CURRENT_DESKTOP XAUTHORITY

# A script that writes to a process gone away (the pointer driver) must not die of it.
trap '' PIPE

# need <tool…>: a skip where any of them is not installed; "python3-dbus" is Python's D-Bus module.
need() {
  local tool
  for tool in "$@"; do
    if [ "$tool" = python3-dbus ]; then
      "${as_user[@]}" python3 -c 'import dbus' 2>/dev/null && continue
    else
      command -v "$tool" >/dev/null 2>&1 && continue
    fi
    echo "SKIPPED: $tool is not installed (scripts/install-deps --test installs it)"
    exit $skip
  done
}

# wait_for_socket: the compositor's Wayland socket, named in WAYLAND_DISPLAY (at most 20 s).
wait_for_socket() {
  local socket
  for _ in $(seq 400); do
    socket=$(find "$XDG_RUNTIME_DIR" -maxdepth 1 -type s -name 'wayland-*' | head -n1)
    [ -n "$socket" ] && { export WAYLAND_DISPLAY=${socket##*/}; return 0; }
    sleep 0.05
  done
  return 1
}

# start_sway: headless sway (software rendering, no input devices, no XWayland), one output of
# width x height pixels at scale, in the desktop's colour; $sway_pid, WAYLAND_DISPLAY and SWAYSOCK
# name it.
start_sway() {
  cat >"$work/sway.conf" <<CONFIG
output HEADLESS-1 resolution ${width}x${height} position 0 0 scale $scale bg #$desktop solid_color
default_border none
xwayland disable
CONFIG
  "${as_user[@]}" env WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman \
    sway -c "$work/sway.conf" >"$work/sway.log" 2>&1 &
  sway_pid=$!
  pids+=($sway_pid)
  wait_for_socket || return 1
  ipc_socket() { find "$XDG_RUNTIME_DIR" -maxdepth 1 -name 'sway-ipc.*.sock' | head -n1; }
  eventually 10 test -n "$(ipc_socket)" || return 1
  SWAYSOCK=$(ipc_socket)
  export SWAYSOCK
}

# start_gnome_shell [extension UUID…]: headless GNOME Shell 43 (which offers no layer shell), one
# virtual monitor of width x height, with the system-wide extensions named enabled, on buses of its
# own, and its remote-desktop pointer; WAYLAND_DISPLAY names it, xauthority its XWayland's cookie
# file, and gnome_screen <file> reads its screen. Ends the script with a failure where it does not
# come up.
start_gnome_shell() {
  local enabled=
  for uuid in "$@"; do enabled="${enabled:+$enabled, }'$uuid'"; done
  # The shell insists on a system bus, if only for proxies that nobody owns: a stand-in will do.
  start_bus system-bus DBUS_SYSTEM_BUS_ADDRESS || { echo "FAIL: no system bus"; exit 1; }
  start_bus bus DBUS_SESSION_BUS_ADDRESS || { echo "FAIL: no session bus"; exit 1; }
  export XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=GNOME
  # A fresh home would get the one-time notices of a first login right at the top centre.
  "${as_user[@]}" mkdir -p "$HOME/.local/share/gnome-shell"
  "${as_user[@]}" touch "$HOME/.local/share/gnome-shell/lock-warning-shown"
  "${as_user[@]}" gsettings set org.gnome.shell welcome-dialog-last-shown-version 999 2>/dev/null
  "${as_user[@]}" gsettings set org.gnome.shell enabled-extensions "[$enabled]" 2>/dev/null
  # Its XWayland takes the displays :0 and :1 (it cannot be told otherwise): the namespace's own.
  "${as_user[@]}" gnome-shell --headless --wayland --virtual-monitor ${width}x$height \
    --wayland-display wayland-gnome >"$work/shell.log" 2>&1 &
  pids+=($!)
  if ! eventually 60 gnome_shell_started || ! wait_for_socket; then
    echo "FAIL: GNOME Shell did not start"
    tail -n 30 "$work/shell.log"
    exit 1
  fi
  start_pointer "$e2e/wayland/gnome-pointer.py" $width $height ||
    { echo "FAIL: no pointer"; cat "$work/pointer.out"; exit 1; }
}
xauthority() { find "$XDG_RUNTIME_DIR" -maxdepth 1 -name '.mutter-Xwaylandauth.*' | head -n1; }
gnome_shell_started() { grep -q "GNOME Shell started" "$work/shell.log" && test -n "$(xauthority)"; }
gnome_screen() {  # the shell writes the picture as the user, into the user's own folder
  "${as_user[@]}" "$e2e/wayland/gnome-screenshot.py" "$XDG_RUNTIME_DIR/shot.png" &&
    convert "$XDG_RUNTIME_DIR/shot.png" "ppm:$1"
}

# start_pointer <driver> <width> <height>: the pointer, commanded through descriptor 3.
start_pointer() {
  mkfifo "$work/pointer"
  "${as_user[@]}" "$1" "$2" "$3" <"$work/pointer" >"$work/pointer.out" 2>&1 &
  pids+=($!)
  exec 3>"$work/pointer"
  eventually 10 grep -q ready "$work/pointer.out"
}
move() { echo "move $1 $2" >&3; }

# start_window_beneath <click logger> [maximized]: a full-screen (or maximized) window in the
# desktop's colour that writes each click it gets, in its points, to $work/clicks; on Qt's Wayland
# platform.
start_window_beneath() {
  local logger=$1
  shift
  "${as_user[@]}" env QT_QPA_PLATFORM=wayland "$logger" "$desktop" "$@" >"$work/clicks" \
    2>"$work/logger.err" &
  pids+=($!)
  eventually 10 grep -q shown "$work/clicks"
}
# click_reaches <yes|no>: a click where the pointer is, and whether the window beneath got it
# there. The test's own `at` keeps where it put the pointer, in points, in $pointer_at.
click_reaches() {
  echo click >&3
  if [ "$1" = yes ]; then
    eventually 3 grep -qx "click $pointer_at" "$work/clicks"
  else
    ! eventually 1.5 grep -qx "click $pointer_at" "$work/clicks"
  fi
}

# start_brimly <brimly> [env assignments…]: Brimly as the user, its output in $work/brimly.*.
start_brimly() {
  local app=$1
  shift
  "${as_user[@]}" env "$@" "$app" >"$work/brimly.out" 2>"$work/brimly.err" &
  brimly_pid=$!
  pids+=($brimly_pid)
}
says() { grep -qF "$1" "$work/brimly.err"; }
# stop_brimly: SIGTERM must end Brimly with status 0.
stop_brimly() {
  kill -TERM "$brimly_pid"
  wait "$brimly_pid"
  check "SIGTERM ends it with status 0" test $? = 0
}
# pin: the settings pin the panel open, for the next Brimly started.
pin() {
  mkdir -p "$XDG_CONFIG_HOME/brimly"
  printf '[General]\nisPinned=true\n' >"$XDG_CONFIG_HOME/brimly/Brimly.conf"
  chown -R $user:$user "$XDG_CONFIG_HOME/brimly"
}

# end_compositor <pid>: the compositor ends; Brimly ($brimly_pid) must end with it, after exactly
# one line on stderr.
end_compositor() {
  local lines_before
  lines_before=$(wc -l <"$work/brimly.err")
  kill -TERM "$1"
  wait "$1" 2>/dev/null
  check "without its compositor Brimly ends" eventually 5 bash -c "! kill -0 $brimly_pid 2>/dev/null"
  check "… after exactly one line" test $(($(wc -l <"$work/brimly.err") - lines_before)) = 1
  echo "      | $(tail -n1 "$work/brimly.err")"
}

# --- reading the screen ----------------------------------------------------------------------------
# Each test defines shoot <file>, a PPM of the output the panel is on, and sets width (its pixels),
# scale (pixels a point: 1, 1.5, 2…), desktop (the colour where nothing covers it, rrggbb) and
# label (what its pictures are called). The card is 600 x 148 points at the top centre.
screen="$work/screen.ppm"
px() { awk -v v="$1" -v s="$scale" 'BEGIN { printf "%d", v * s + 0.5 }'; }  # points to pixels
look() { shoot "$screen"; }
# On the last look: the black box in the strip where the card grows (a little wider than the card,
# so that a cursor beside it is not taken for it), and a pixel's colour.
box() {
  "$e2e/framebuffer.py" box "$screen" $(((width - $(px 640)) / 2)) 0 "$(px 640)" "$(px 200)"
}
pixel() { "$e2e/framebuffer.py" pixel "$screen" "$@" | tr 'A-F' 'a-f'; }  # pixel <x> <y>…
# The open card: 600 x 148 points at the top centre. At a fractional scale the compositor puts the
# surface on a whole pixel either side of the exact middle.
is_open_box() {
  local size=${1%%+*} x
  x=$(echo "$1" | cut -d+ -f2)
  test "$size" = "$(px 600)x$(px 148)" && test "${1##*+}" = 0 &&
    test $((x - (width - $(px 600)) / 2)) -ge -1 && test $((x - (width - $(px 600)) / 2)) -le 1
}
# The desktop shows where the card lies when open, away from where the pointer is put (a fading
# card is no longer black, but not yet gone).
desktop_shows() {
  local x y middle=$((width / 2)) points=()
  for x in 0 100 290; do
    for y in 5 60 140; do points+=($((middle + $(px $x))) "$(px $y)"); done
  done
  ! pixel "${points[@]}" | grep -qv "^$desktop\$"
}
is_open() { look && is_open_box "$(box)"; }
# The open card shows no hole: nothing of the desktop inside it, a little in from its rounded edge.
is_whole() {
  look && test "$("$e2e/framebuffer.py" count "$screen" $(((width - $(px 580)) / 2)) 0 \
    "$(px 580)" "$(px 135)" "$desktop")" = 0
}
is_closed() { look && test "$(box)" = none && desktop_shows; }
is_clear() { look && desktop_shows; }  # with the cursor near the card's place
corners_clear() {
  look && test "$(pixel $(((width - $(px 600)) / 2)) $(($(px 148) - 1)))" = "$desktop" &&
    test "$(pixel $(((width + $(px 600)) / 2 - 1)) $(($(px 148) - 1)))" = "$desktop"
}
picture() {  # picture <name>: the top of the screen, for people to look at, when asked for
  [ -n "${shots:-}" ] || return 0
  mkdir -p "$shots"
  shoot "$work/picture.ppm" &&
    convert "$work/picture.ppm" -crop "${width}x$(px 220)+0+0" +repage "$shots/$label-$1.png"
}
