#!/bin/sh
# packaging/macos/check-bundle on a deployed Brimly.app rebuilt from recorded load commands: the
# bundle as macdeployqt leaves it passes, and each way a copy can fail to be self-contained is
# caught and named.
#
# The fixture (deployed-bundle/) holds the bundle's folders, links and plain files; each of its
# Mach-O files is kept as the `otool -l` output recorded from it (<file>.otool, made with LLVM's
# otool from stand-ins linked with the same load commands). The test turns each into a file that
# starts with the Mach-O magic number and carries that output after it, and gives check-bundle an
# otool that prints it back.
#
# usage: check-bundle-test.sh <check-bundle> <fixture folder>
set -eu

checker=$1
fixture=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cat >"$work/otool" <<'EOF'
#!/bin/sh
[ "$1" = -l ] || { echo "fake otool: only -l" >&2; exit 2; }
tail -c +5 "$2"
EOF
chmod +x "$work/otool"

bundle() {  # a fresh copy of the deployed bundle at $work/<name>/Brimly.app
  rm -rf "${work:?}/$1"
  mkdir "$work/$1"
  cp -R "$fixture/Brimly.app" "$work/$1/"
  find "$work/$1" -name '*.otool' -print | while IFS= read -r recorded; do
    { printf '\317\372\355\376'; cat "$recorded"; } >"${recorded%.otool}"
    rm "$recorded"
  done
  app="$work/$1/Brimly.app"
}

failures=0
output=
check() {  # check <description> <expected status> <bundle>
  set +e
  output=$(OTOOL="$work/otool" "$checker" "$3" 2>&1)
  status=$?
  set -e
  if [ "$status" -eq "$2" ]; then
    echo "ok    $1"
  else
    echo "FAIL  $1 (status $status, expected $2)"
    printf '%s\n' "$output" | sed 's/^/      | /'
    failures=$((failures + 1))
  fi
}
says() {  # says <description> <text>: the last check's output holds the text
  if printf '%s\n' "$output" | grep -qF -- "$2"; then
    echo "ok    $1"
  else
    echo "FAIL  $1: no \"$2\" in"
    printf '%s\n' "$output" | sed 's/^/      | /'
    failures=$((failures + 1))
  fi
}
doesNotSay() {
  if printf '%s\n' "$output" | grep -qF -- "$2"; then
    echo "FAIL  $1: \"$2\" in"
    printf '%s\n' "$output" | sed 's/^/      | /'
    failures=$((failures + 1))
  else
    echo "ok    $1"
  fi
}
rewrite() {  # rewrite <Mach-O file in $app> <from> <to>: changes one recorded reference
  sed "s|$2|$3|" "$app/$1" >"$work/rewritten" && mv "$work/rewritten" "$app/$1"
}

bundle intact
check "the bundle as deployed is self-contained" 0 "$app"
says "… and check-bundle says so" "every library of $app is in the bundle or the system"

bundle without-dbus
rm -r "$app/Contents/Frameworks/QtDBus.framework"
check "a framework macdeployqt did not copy fails the check" 1 "$app"
says "… naming the library that loads it" \
  "Contents/Frameworks/QtGui.framework/Versions/A/QtGui: @rpath/QtDBus.framework/Versions/A/QtDBus is neither in the bundle nor in the system"
says "… and every other" \
  "Contents/PlugIns/platforms/libqcocoa.dylib: @rpath/QtDBus.framework/Versions/A/QtDBus"

bundle loader-path-outside
rewrite Contents/Frameworks/libicuuc.78.dylib '@loader_path/libicudata.78.dylib' \
  '@loader_path/../../../opt/icu4c/lib/libicudata.78.dylib'
mkdir -p "$work/loader-path-outside/opt/icu4c/lib"
cp "$app/Contents/Frameworks/libicudata.78.dylib" "$work/loader-path-outside/opt/icu4c/lib/"
check "an @loader_path reference that leads out of the bundle fails, even to a real file" 1 "$app"
says "… and is named" \
  "Contents/Frameworks/libicuuc.78.dylib: @loader_path/../../../opt/icu4c/lib/libicudata.78.dylib is neither"

bundle homebrew-path
rewrite Contents/Frameworks/libicui18n.78.dylib '@loader_path/libicuuc.78.dylib' \
  '/opt/homebrew/opt/icu4c/lib/libicuuc.78.dylib'
check "an absolute path outside the system fails" 1 "$app"
says "… and is named" "libicui18n.78.dylib: /opt/homebrew/opt/icu4c/lib/libicuuc.78.dylib"

bundle without-cocoa
rm "$app/Contents/PlugIns/platforms/libqcocoa.dylib"
check "a bundle without the Cocoa platform plug-in fails" 1 "$app"
says "… naming it" "Contents/PlugIns/platforms/libqcocoa.dylib: missing"

bundle without-svg
rm -r "$app/Contents/PlugIns/imageformats" "$app/Contents/PlugIns/iconengines/libqsvgicon.dylib"
check "a bundle without the SVG plug-ins fails" 1 "$app"
says "… naming the image plug-in" "Contents/PlugIns/imageformats/libqsvg.dylib: missing"
says "… and the icon engine" "Contents/PlugIns/iconengines/libqsvgicon.dylib: missing"

bundle without-program-path
rewrite Contents/MacOS/Brimly '@executable_path/../Frameworks (offset' '@executable_path/../Libraries (offset'
check "without the program's search path its @rpath references fail" 1 "$app"
says "… the program's own" "Contents/MacOS/Brimly: @rpath/QtWidgets.framework/Versions/A/QtWidgets"
says "… and the plug-ins', whose own search paths lead nowhere" \
  "Contents/PlugIns/imageformats/libqsvg.dylib: @rpath/QtSvg.framework/Versions/A/QtSvg"
doesNotSay "a framework's own search path, from its own folder, still finds its neighbours" \
  "QtDBus.framework/Versions/A/QtDBus: @rpath/QtCore"

bundle linked-outside
mv "$app/Contents/Frameworks/libdbus-1.3.dylib" "$work/linked-outside/libdbus-1.3.dylib"
ln -s "$work/linked-outside/libdbus-1.3.dylib" "$app/Contents/Frameworks/libdbus-1.3.dylib"
check "a library inside that is a link to one outside fails" 1 "$app"
says "… and is named" \
  "Contents/Frameworks/QtDBus.framework/Versions/A/QtDBus: @executable_path/../Frameworks/libdbus-1.3.dylib"

[ $failures -eq 0 ] && echo "PASSED" || echo "FAILED: $failures check(s)"
exit $((failures > 0))
