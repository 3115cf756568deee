#!/usr/bin/env bash
# The whole application on a virtual X11 desktop with a compositing manager: it starts with an
# empty settings store, shows the closed outline at the top centre, opens into the black card when
# the pointer reaches the notch, closes again when the pointer leaves, and a second copy started
# meanwhile leaves at once with status 0.
#
# usage: panel-e2e.sh <brimly executable> [screenshot folder]
# Exit status 77 (a skip for CTest) only when Xvfb itself is not installed.
set -uo pipefail

app=$1
shots=${2:-}
width=1512
height=982
skip=77

if ! command -v Xvfb >/dev/null 2>&1; then
  echo "SKIPPED: Xvfb is not installed (scripts/install-deps installs it)"
  exit $skip
fi
for tool in xdotool import convert xsetroot xev; do
  command -v $tool >/dev/null 2>&1 || { echo "FAIL: $tool is missing (scripts/install-deps installs it)"; exit 1; }
done
compositor=()
if command -v picom >/dev/null 2>&1; then
  compositor=(picom --backend xrender --no-fading-openclose --shadow-radius 0 --no-dock-shadow)
elif command -v xcompmgr >/dev/null 2>&1; then
  compositor=(xcompmgr)
else
  echo "FAIL: no compositing manager (picom or xcompmgr) is installed"
  exit 1
fi

work=$(mktemp -d)
pids=()
cleanup() {
  for ((i = ${#pids[@]} - 1; i >= 0; i--)); do kill "${pids[i]}" 2>/dev/null; wait "${pids[i]}" 2>/dev/null; done
  rm -rf "$work"
}
trap cleanup EXIT

failures=0
check() {  # check <description> <command…>
  local description=$1
  shift
  if "$@"; then echo "ok    $description"; else echo "FAIL  $description"; failures=$((failures + 1)); fi
}

now() { date +%s.%N; }
elapsed() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", b - a }'; }

# --- the desktop ---------------------------------------------------------------------------------
Xvfb -displayfd 3 -nolisten tcp -noreset -screen 0 ${width}x${height}x24 3>"$work/display" 2>"$work/xvfb.log" &
pids+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
[ -s "$work/display" ] || { echo "FAIL: Xvfb did not start"; cat "$work/xvfb.log"; exit 1; }
export DISPLAY=":$(head -n1 "$work/display")"
unset WAYLAND_DISPLAY XDG_SESSION_TYPE QT_QPA_PLATFORM
background='#3a6ea5'
xsetroot -solid "$background"
"${compositor[@]}" >"$work/compositor.log" 2>&1 &
pids+=($!)
sleep 0.5

# An empty settings store and a private runtime directory for the single-instance lock.
export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime"
mkdir -p "$XDG_CONFIG_HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"

# The pointer starts well below the notch. A warp makes no raw motion event; every later move is
# a relative one through XTEST, which does, as a real mouse would.
xdotool mousemove $((width / 2)) 500

# --- helpers reading the screen ------------------------------------------------------------------
shot() { import -window root "$1" 2>/dev/null; }
# The bounding box of the pure-black pixels as WxH+X+Y.
black_box() {
  convert "$1" -fuzz 3% -fill white +opaque black -format '%@' info: 2>/dev/null
}
pixel() { convert "$1" -format "%[hex:p{$2,$3}]" info: 2>/dev/null | cut -c1-6; }
bg_hex=$(echo "${background#\#}" | tr a-f A-F)

wait_for_box() {  # wait_for_box <expected WxH+X+Y> <seconds> <shot file>
  local deadline
  deadline=$(awk -v t="$(now)" -v s="$2" 'BEGIN { printf "%.3f", t + s }')
  while awk -v t="$(now)" -v d="$deadline" 'BEGIN { exit !(t < d) }'; do
    shot "$3"
    [ "$(black_box "$3")" = "$1" ] && return 0
    sleep 0.05
  done
  return 1
}

closed_box="200x32+656+0"
open_box="600x148+456+0"

# A window that reports its clicks, lying under where the closed outline will cover it: clicks on
# the panel must reach it.
xev -geometry 100x20+706+4 -event button >"$work/xev.log" 2>&1 &
pids+=($!)
for _ in $(seq 100); do xdotool search --name '^Event Tester$' >/dev/null 2>&1 && break; sleep 0.05; done

# --- start ---------------------------------------------------------------------------------------
started=$(now)
"$app" >"$work/brimly.out" 2>"$work/brimly.err" &
app_pid=$!
pids+=($app_pid)

check "the closed outline (200 x 32) appears at the top centre" wait_for_box "$closed_box" 10 "$work/closed.png"
echo "      panel on screen $(elapsed "$started" "$(now)") s after start; black box $(black_box "$work/closed.png")"
check "below the closed outline the desktop shows through" test "$(pixel "$work/closed.png" 756 60)" = "$bg_hex"

# --- open ----------------------------------------------------------------------------------------
xdotool mousemove_relative -- 0 -490
check "the pointer is in the notch zone" test "$(xdotool getmouselocation | sed 's/.*y:\([0-9]*\).*/\1/')" = 10
check "the card opens to 600 x 148 at the top centre" wait_for_box "$open_box" 3 "$work/open.png"
echo "      black box $(black_box "$work/open.png")"
# Corners outside the rounded card show the desktop (transparent window), not black.
check "bottom-left corner of the card is transparent" test "$(pixel "$work/open.png" 456 147)" = "$bg_hex"
check "bottom-right corner of the card is transparent" test "$(pixel "$work/open.png" 1055 147)" = "$bg_hex"
check "window edge beside the card is transparent" test "$(pixel "$work/open.png" 450 20)" = "$bg_hex"

xdotool click 1
sleep 0.3
check "a click on the open card reaches the window beneath it" grep -q ButtonPress "$work/xev.log"
check "the card stays open after the click" test "$(black_box "$(shot "$work/clicked.png"; echo "$work/clicked.png")")" = "$open_box"

# --- close ---------------------------------------------------------------------------------------
left=$(now)
xdotool mousemove_relative -- 0 500
check "the card shrinks back to the closed outline once the pointer leaves" wait_for_box "$closed_box" 3 "$work/closed-again.png"
close_time=$(elapsed "$left" "$(now)")
echo "      closed ${close_time} s after the pointer left (0.4 s grace, then the spring)"
check "closing took at most 1.5 s" awk -v t="$close_time" 'BEGIN { exit !(t <= 1.5) }'

# --- a second instance ---------------------------------------------------------------------------
second_started=$(now)
timeout 10 "$app" >"$work/second.out" 2>"$work/second.err"
second_status=$?
check "a second instance exits with status 0" test "$second_status" = 0
echo "      second instance gone after $(elapsed "$second_started" "$(now)") s"
check "a second instance prints nothing" test ! -s "$work/second.out" -a ! -s "$work/second.err"
check "the first instance still runs" kill -0 "$app_pid"
shot "$work/after-second.png"
check "the panel is still on screen" test "$(black_box "$work/after-second.png")" = "$closed_box"

if [ -n "$shots" ]; then
  mkdir -p "$shots"
  cp "$work/closed.png" "$shots/panel-closed.png"
  cp "$work/open.png" "$shots/panel-open.png"
fi

if [ -s "$work/brimly.err" ]; then
  echo "      brimly wrote on stderr:"
  sed 's/^/      | /' "$work/brimly.err"
fi
[ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
exit $((failures > 0))
