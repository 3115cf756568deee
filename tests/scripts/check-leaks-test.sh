#!/bin/sh
# scripts/check-leaks on reports laid out as `leaks --atExit` writes them (report version 4.0, with
# MallocStackLogging's allocation stacks) and on GoogleTest's JSON results: only a leak allocated
# through Brimly's code, a failed test, or a report that cannot say whose its leaks are fails.
#
# usage: check-leaks-test.sh <check-leaks> <fixture folder>
set -eu

checker=$1
fixtures=$2
failures=0
check() {  # check <description> <expected status> <expected text> <report> <results>
  set +e
  output=$("$checker" "$fixtures/$4" "$fixtures/$5" 2>&1)
  status=$?
  set -e
  if [ "$status" -eq "$2" ] && printf '%s\n' "$output" | grep -qF -- "$3"; then
    echo "ok    $1"
  else
    echo "FAIL  $1 (status $status, expected $2 and \"$3\")"
    printf '%s\n' "$output" | sed 's/^/      | /'
    failures=$((failures + 1))
  fi
}

check "no leaks passes" 0 "1 tests passed; 0 leaks" none.txt passed.json
check "leaks in the system's frameworks alone pass, counted" 0 \
  "2 leaks, of whose allocation stacks 0 pass through Brimly's code and 2 lie in the system's alone" \
  system-only.txt passed.json
check "a leak allocated through Brimly's code fails" 1 \
  "1 pass through Brimly's code and 2 lie in the system's alone" with-brimly-leak.txt passed.json
check "… and its stack is shown" 1 "brimly::MetricSampler::sample() + 520" \
  with-brimly-leak.txt passed.json
check "leaks without allocation stacks fail: whose they are is unknown" 1 \
  "2 leaks but no allocation stacks" no-stacks.txt passed.json
check "a failed test fails, leaks or not" 1 "the tests failed or none ran (tests: 1, failures: 1)" \
  none.txt failed.json
check "missing results fail: the program did not finish" 1 "no test results" none.txt missing.json
check "something other than a leaks report fails" 1 "is not a leaks report" passed.json passed.json

[ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
exit $((failures > 0))
