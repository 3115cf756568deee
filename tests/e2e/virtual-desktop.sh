# Shared by the end-to-end scripts (sourced, not run): the checks' bookkeeping, the processes to
# end on exit, and a virtual X11 screen whose framebuffer the checks read directly.
#
# Before sourcing, set `width` and `height` (the screen's size in pixels).

skip=77
# require_tools <tool…>: a skip (status 77, for CTest) when Xvfb itself is missing; a failure when
# any other tool is.
require_tools() {
  if ! command -v Xvfb >/dev/null 2>&1; then
    echo "SKIPPED: Xvfb is not installed (scripts/install-deps installs it)"
    exit $skip
  fi
  local tool
  for tool in "$@"; do
    command -v "$tool" >/dev/null 2>&1 || { echo "FAIL: $tool is missing (scripts/install-deps installs it)"; exit 1; }
  done
}

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

# finish: what Brimly wrote on stderr ("$work/brimly.err"), if anything, then PASSED or the number
# of failed checks; exits with status 1 when a check failed.
finish() {
  if [ -s "$work/brimly.err" ]; then
    echo "      brimly wrote on stderr:"
    sed 's/^/      | /' "$work/brimly.err"
  fi
  [ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
  exit $((failures > 0))
}

# start_screen: an Xvfb of width × height that keeps its framebuffer in "$fb"; DISPLAY names it.
start_screen() {
  mkdir "$work/fb"
  Xvfb -displayfd 3 -nolisten tcp -noreset -fbdir "$work/fb" -screen 0 ${width}x${height}x24 \
    3>"$work/display" 2>"$work/xvfb.log" &
  pids+=($!)
  for _ in $(seq 200); do [ -s "$work/display" ] && break; sleep 0.05; done
  [ -s "$work/display" ] || { echo "FAIL: Xvfb did not start"; cat "$work/xvfb.log"; exit 1; }
  export DISPLAY=":$(head -n1 "$work/display")"
  unset WAYLAND_DISPLAY XDG_SESSION_TYPE QT_QPA_PLATFORM
  fb="$work/fb/Xvfb_screen0"
}
