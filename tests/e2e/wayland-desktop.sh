# Shared by the layer-shell end-to-end scripts (sourced, not run): a headless Wayland compositor
# that the test starts itself, in private namespaces and as an unprivileged user, a pointer the
# test moves, and the checks' bookkeeping.
#
# Source it first, with the script's own arguments. Run as root, it starts the script again in a
# private mount, network and process namespace: a /tmp of its own (for any X display the
# compositor starts), no network, and every process it leaves behind ended with it. There the
# compositor, Brimly and every tool run as nobody (uid 65534), with a runtime directory, settings
# and home of their own, so that nothing meets another display on the machine. Anyone else than
# root gets a skip (status 77), as does a machine that cannot make the namespaces (a container
# without the privilege).

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
  # shellcheck disable=SC2016  # expanded by the inner shell
  BRIMLY_E2E_IN_NAMESPACES=1 exec "${namespaces[@]}" sh -c \
    'mount -t tmpfs -o mode=1777 tmpfs /tmp && mkdir -m 1777 /tmp/.X11-unix && exec "$@"' \
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
now() { date +%s.%N; }
elapsed() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", b - a }'; }
eventually() {  # eventually <seconds> <command…>: the command succeeds within the time
  local deadline
  deadline=$(awk -v t="$1" -v n="$(now)" 'BEGIN { printf "%.3f", n + t }')
  shift
  until "$@"; do
    awk -v d="$deadline" -v n="$(now)" 'BEGIN { exit !(n > d) }' && return 1
    sleep 0.05
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

# start_pointer <driver> <width> <height>: the pointer, commanded through descriptor 3.
start_pointer() {
  mkfifo "$work/pointer"
  "${as_user[@]}" "$1" "$2" "$3" <"$work/pointer" >"$work/pointer.out" 2>&1 &
  pids+=($!)
  exec 3>"$work/pointer"
  eventually 10 grep -q ready "$work/pointer.out"
}
move() { echo "move $1 $2" >&3; }

# start_brimly <brimly> [env assignments…]: Brimly as the user, its output in $work/brimly.*.
start_brimly() {
  local app=$1
  shift
  "${as_user[@]}" env "$@" "$app" >"$work/brimly.out" 2>"$work/brimly.err" &
  brimly_pid=$!
  pids+=($brimly_pid)
}
says() { grep -qF "$1" "$work/brimly.err"; }

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

# finish: what Brimly wrote on stderr, the verdict, and the exit status.
finish() {
  echo "      brimly wrote on stderr:"
  sed 's/^/      | /' "$work/brimly.err"
  [ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
  exit $((failures > 0))
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
stays() {  # stays <seconds> <command…>: the command holds at every look for that long
  local until
  until=$(awk -v t="$1" -v n="$(now)" 'BEGIN { printf "%.3f", n + t }')
  shift
  while awk -v u="$until" -v n="$(now)" 'BEGIN { exit !(n < u) }'; do "$@" || return 1; done
}
picture() {  # picture <name>: the top of the screen, for people to look at, when asked for
  [ -n "${shots:-}" ] || return 0
  mkdir -p "$shots"
  shoot "$work/picture.ppm" &&
    convert "$work/picture.ppm" -crop "${width}x$(px 220)+0+0" +repage "$shots/$label-$1.png"
}
