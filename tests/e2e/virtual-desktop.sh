# Shared by the X11 end-to-end scripts (sourced, not run): a virtual X11 screen whose framebuffer
# the checks read directly, and the bookkeeping of checks.sh.
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

# shellcheck source=checks.sh
source "$(dirname "${BASH_SOURCE[0]}")/checks.sh"

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
