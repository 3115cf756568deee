# Shared by the bundle scripts beside it (sourced, not run): which files are Mach-O, and what their
# load commands say. OTOOL names the otool to ask (default: otool, from Apple's command-line
# tools); the tests give one that prints recorded output.

otool=${OTOOL:-otool}

isMachO() {  # by the first four bytes: 64- and 32-bit Mach-O of either byte order, or universal
  case "$(od -An -tx1 -N4 "$1" 2>/dev/null | tr -d ' \n')" in
    cffaedfe | cefaedfe | feedfacf | feedface | cafebabe | bebafeca) return 0 ;;
  esac
  return 1
}

machOFiles() {  # machOFiles <folder>: every Mach-O file below it, one a line
  find "$1" -type f -print | sort | while IFS= read -r file; do
    if isMachO "$file"; then printf '%s\n' "$file"; fi
  done
}

# Prints "rpath <path>" and "load <library>" for each LC_RPATH and each library a Mach-O file
# loads (its own install name, LC_ID_DYLIB, is not one). Paths may hold spaces.
loadCommands() {
  "$otool" -l "$1" | awk '
    $1 == "cmd" { command = $2; next }
    $1 == "path" && command == "LC_RPATH" { kind = "rpath" }
    $1 == "name" && command ~ /^LC_(LOAD|LOAD_WEAK|REEXPORT|LAZY_LOAD|LOAD_UPWARD)_DYLIB$/ { kind = "load" }
    kind != "" {
      line = $0
      sub(/^[ \t]*(path|name) /, "", line)
      sub(/ \(offset [0-9]+\)$/, "", line)
      print kind, line
      kind = ""
    }'
}
