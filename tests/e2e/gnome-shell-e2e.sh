#!/usr/bin/env bash
# Brimly under a headless GNOME Shell 43 (the XWayland hot zone; see gnome/hover-on-gnome.py for
# the checks), started by this script in private mount, network and PID namespaces and run as an
# unprivileged user: the shell's XWayland always takes the displays :0 and :1, which are then the
# namespaces' own, and the namespaces' first process takes everything inside with it when it ends.
# Needs root (to make the namespaces); skipped where GNOME Shell is not installed
# (`scripts/install-deps --test` installs it).
#
# usage: gnome-shell-e2e.sh <brimly executable> [folder for the screenshots]
set -uo pipefail

app=$1
shots=${2:-}
here=$(cd "$(dirname "$0")" && pwd)
user=65534  # nobody: the shell shows a banner at the top centre to root

skip() { echo "SKIPPED: $1"; exit 77; }
command -v gnome-shell >/dev/null 2>&1 || skip "GNOME Shell is not installed (scripts/install-deps --test installs it)"
[ "$(id -u)" -eq 0 ] || skip "making private namespaces and dropping to an unprivileged user needs root"
unshare --mount --pid --fork true 2>/dev/null || skip "this machine lets no process make private namespaces"
for tool in Xwayland dbus-daemon gsettings setpriv; do
  command -v $tool >/dev/null 2>&1 || { echo "FAIL: $tool is missing (scripts/install-deps --test installs it)"; exit 1; }
done
/usr/bin/python3 -c 'import gi; gi.require_version("Gtk", "4.0"); from gi.repository import Gtk' 2>/dev/null ||
  { echo "FAIL: GTK 4 for Python is missing (scripts/install-deps --test installs it)"; exit 1; }

# Everything the user needs, in a folder of its own: the program, the checks, room to write. Not
# under /tmp, which the namespace replaces.
work=$(mktemp -d -p /var/tmp brimly-gnome.XXXXXX)
trap 'rm -rf "$work"' EXIT
cp "$app" "$work/brimly"
cp -r "$here/gnome" "$work/checks"
mkdir "$work/run"
chown -R $user:$user "$work/run"
chmod 755 "$work"

# A private /tmp for XWayland's sockets and lock files, and no /run/systemd: without a running
# systemd a stale one there makes the shell look for logind on a system bus that is not there.
timeout 120 unshare --mount --net --pid --fork --kill-child --mount-proc --propagation private \
  sh -c '
    mount -t tmpfs -o mode=1777 tmpfs /tmp && mkdir -m 1777 /tmp/.X11-unix || exit 1
    if [ -d /run/systemd ]; then mount -t tmpfs tmpfs /run/systemd; fi
    exec setpriv --reuid="$1" --regid="$1" --clear-groups env -u DISPLAY -u WAYLAND_DISPLAY \
      -u XDG_SESSION_TYPE -u QT_QPA_PLATFORM HOME="$2/run/home" \
      /usr/bin/python3 "$2/checks/hover-on-gnome.py" "$2/brimly" "$2/run"' sh $user "$work"
status=$?
[ $status -eq 124 ] && echo "FAIL: the run took longer than two minutes"

if [ -n "$shots" ] && [ -d "$work/run/shots" ]; then
  mkdir -p "$shots" && cp "$work/run/shots/"*.png "$shots/" 2>/dev/null
fi
exit $((status != 0))
