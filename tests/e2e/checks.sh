# Shared by every end-to-end script (sourced, not run; virtual-desktop.sh and wayland-desktop.sh
# source it for theirs): a work folder, the processes to end when the script does (the last
# started first), the checks' bookkeeping, waiting on time, and private D-Bus buses.

work=$(mktemp -d)
pids=()
cleanup() {
  # Whatever has ended already: scripts run with errexit must not fail here.
  for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
    kill "${pids[i]}" 2>/dev/null || true
    wait "${pids[i]}" 2>/dev/null || true
  done
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

now() { date +%s.%N; }  # seconds since the epoch, for elapsed
elapsed() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", b - a }'; }
# The moment <seconds> (a fraction allowed) from now, in microseconds since the epoch; read without
# starting a process, so that polling costs nothing but the command polled.
micros_from_now() { awk -v t="$1" -v n="${EPOCHREALTIME//[!0-9]/}" 'BEGIN { printf "%.0f", n + t * 1e6 }'; }
eventually() {  # eventually <seconds> <command…>: the command succeeds within that time (every 50 ms)
  local deadline
  deadline=$(micros_from_now "$1")
  shift
  until "$@"; do
    ((${EPOCHREALTIME//[!0-9]/} > deadline)) && return 1
    sleep 0.05
  done
}
stays() {  # stays <seconds> <command…>: the command holds every time it is tried for that long
  local deadline
  deadline=$(micros_from_now "$1")
  shift
  while ((${EPOCHREALTIME//[!0-9]/} < deadline)); do "$@" || return 1; done
}

# start_bus <name> <variable>: a D-Bus daemon of the test's own on $XDG_RUNTIME_DIR/<name> — a
# session bus, or a stand-in for the system bus — its address exported in <variable>. It runs as
# the programs of the test do (the command prefix `as_user`, where the script has one), and ends
# with the script; what it and the services it starts say goes to $work/<name>.log.
start_bus() {
  local socket=$XDG_RUNTIME_DIR/$1
  ${as_user[@]+"${as_user[@]}"} dbus-daemon --session --address="unix:path=$socket" --nofork \
    --nopidfile >"$work/$1.log" 2>&1 &
  pids+=($!)
  export "$2=unix:path=$socket"
  eventually 10 test -S "$socket"
}
