#!/usr/bin/env bash
# What Brimly prints when asked from a terminal, with no display at all: `--help` the usage and
# `--version` the version, each with status 0, without starting the panel (which would need a
# display and leave with status 3) or taking the single-instance lock; and when its text cannot be
# written — standard output a full disk or closed — `--help`, `--version` and `--audit` leave with
# status 1 and one line on stderr instead of 0 in silence.
#
# usage: command-line-e2e.sh <brimly executable> <project version>
set -uo pipefail

app=$1
version=$2
# The checks' bookkeeping and a private folder; no screen is started.
# shellcheck source=virtual-desktop.sh
source "$(dirname "$0")/virtual-desktop.sh"
export XDG_RUNTIME_DIR="$work/runtime" XDG_CONFIG_HOME="$work/config" TMPDIR="$work/tmp"
mkdir -m 700 "$XDG_RUNTIME_DIR" "$TMPDIR"
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM XDG_SESSION_TYPE
# run <stdout redirection> <arguments…>: status in $status, stderr in $work/err, stdout in $work/out
run() {
  local redirect=$1
  shift
  case "$redirect" in
    file) timeout 60 "$app" "$@" >"$work/out" 2>"$work/err" ;;
    full) timeout 60 "$app" "$@" >/dev/full 2>"$work/err" ;;
    closed) timeout 60 "$app" "$@" >&- 2>"$work/err" ;;
  esac
  status=$?
}
one_line() { test "$(wc -l <"$work/err")" = 1; }

run file --help
check "--help leaves with status 0 (status $status)" test "$status" = 0
check "… prints the usage" grep -q '^Usage: brimly \[--audit | --help | --version\]' "$work/out"
check "… with the exit statuses" grep -q '^  3  there is no display' "$work/out"
check "… and nothing on stderr" test ! -s "$work/err"
check "… without taking the lock" test -z "$(ls -A "$XDG_RUNTIME_DIR")"
sed 's/^/      | /' "$work/out" | head -n 3

run file -platform xcb --version
check "--version leaves with status 0 (status $status)" test "$status" = 0
check "… prints \"Brimly $version\"" test "$(cat "$work/out")" = "Brimly $version"
check "… and nothing on stderr" test ! -s "$work/err"

for arguments in --help --version --audit; do
  run full "$arguments"
  check "$arguments to a full disk leaves with status 1 (status $status)" test "$status" = 1
  check "… saying so in one line" one_line
  sed 's/^/      | /' "$work/err"
  run closed "$arguments"
  check "$arguments with stdout closed leaves with status 1 (status $status)" test "$status" = 1
  check "… saying so in one line" one_line
  sed 's/^/      | /' "$work/err"
done

[ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
exit $((failures > 0))
