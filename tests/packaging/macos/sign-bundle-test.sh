#!/bin/sh
# packaging/macos/sign-bundle on the deployed Brimly.app of the fixture (see check-bundle-test.sh),
# with a codesign that records its calls: every library, plug-in and framework is signed on its
# own before what holds it, the application last, never with --deep, and the signature is then
# verified strictly; a refused signature stops it.
#
# usage: sign-bundle-test.sh <sign-bundle> <fixture folder>
set -eu

signer=$1
fixture=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cp -R "$fixture/Brimly.app" "$work/"
app="$work/Brimly.app"
find "$app" -name '*.otool' -print | while IFS= read -r recorded; do
  { printf '\317\372\355\376'; cat "$recorded"; } >"${recorded%.otool}"
  rm "$recorded"
done

# Records each call, the bundle's folder left out; refuses to sign whatever $REFUSE names.
cat >"$work/codesign" <<EOF
#!/bin/sh
printf '%s\n' "\$*" | sed "s|$work/||g" >>"$work/calls"
case "\$*" in *"\${REFUSE:-none}") exit 1 ;; esac
EOF
chmod +x "$work/codesign"

failures=0
check() {  # check <description> <command…>
  description=$1
  shift
  if "$@"; then echo "ok    $description"; else echo "FAIL  $description"; failures=$((failures + 1)); fi
}
line() { grep -n -x -F -- "$1" "$work/calls" | cut -d: -f1; }
before() { [ -n "$(line "$1")" ] && [ -n "$(line "$2")" ] && [ "$(line "$1")" -lt "$(line "$2")" ]; }

CODESIGN="$work/codesign" "$signer" "$app" >"$work/out"
sign="--force --sign -"
check "the Cocoa plug-in is signed on its own" \
  test -n "$(line "$sign Brimly.app/Contents/PlugIns/platforms/libqcocoa.dylib")"
check "… and so is a library beside the frameworks" \
  test -n "$(line "$sign Brimly.app/Contents/Frameworks/libicuuc.78.dylib")"
check "each framework is signed as a framework" \
  test -n "$(line "$sign Brimly.app/Contents/Frameworks/QtGui.framework")"
check "… not its library on its own" \
  test -z "$(line "$sign Brimly.app/Contents/Frameworks/QtGui.framework/Versions/A/QtGui")"
check "the program is signed with the application, not on its own" \
  test -z "$(line "$sign Brimly.app/Contents/MacOS/Brimly")"
check "nothing is signed twice" test -z "$(sort "$work/calls" | uniq -d)"
check "the 12 libraries, plug-ins and frameworks, and the application, are each signed once" \
  test "$(grep -c -e "^$sign " "$work/calls")" -eq 13
check "the plug-ins, deeper, come before the frameworks" \
  before "$sign Brimly.app/Contents/PlugIns/iconengines/libqsvgicon.dylib" \
  "$sign Brimly.app/Contents/Frameworks/QtCore.framework"
check "the application is signed after everything in it" \
  test "$(grep -e "^$sign " "$work/calls" | tail -n1)" = "$sign Brimly.app"
check "no call uses --deep to sign" test -z "$(grep -e '--force.*--deep\|--deep.*--sign' "$work/calls")"
check "the signature is verified last, strictly" \
  test "$(tail -n1 "$work/calls")" = "--verify --deep --strict --verbose=2 Brimly.app"

rm "$work/calls"
set +e
REFUSE=QtSvg.framework CODESIGN="$work/codesign" "$signer" "$app" >"$work/out" 2>&1
status=$?
set -e
check "a framework codesign refuses stops the signing" test "$status" -ne 0
check "… before the application is signed" test -z "$(line "$sign Brimly.app")"

[ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
exit $((failures > 0))
