# Shared by the end-to-end scripts (sourced, not run): a work folder, the processes to end when
# the script does (the last started first), and the checks' bookkeeping.

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
