"""GNOME Shell, headless, for the end-to-end runs: started with a session bus and a stand-in
system bus of its own, driven through its D-Bus interfaces. Meant to run inside private mount,
network and PID namespaces (see gnome-shell-e2e.sh), as an unprivileged user: the X displays that
the shell's XWayland takes (:0 and :1, it cannot be told otherwise) are then the namespace's own.

  HeadlessShell   starts the buses and the shell, and stops them
  RemotePointer   moves the pointer, presses buttons and keys (org.gnome.Mutter.RemoteDesktop)
  screenshot()    the whole screen as a PNG (org.gnome.Shell.Screenshot)
  Picture         pixels of such a PNG
"""
import glob
import os
import subprocess
import time

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf, Gio, GLib  # noqa: E402

WIDTH, HEIGHT = 1280, 720
BUTTON_LEFT = 272  # evdev's BTN_LEFT
KEY_ESCAPE = 0xFF1B


def wait_until(condition, seconds, step=0.05):
    """Polls `condition` until it is true or `seconds` have passed; returns its last value."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value or time.monotonic() > deadline:
            return value
        time.sleep(step)


class HeadlessShell:
    def __init__(self, runtime, home, logs, wayland_name="brimly-gnome"):
        self.runtime, self.home, self.logs = runtime, home, logs
        self.wayland_name = wayland_name
        self.processes = []

    def bus_address(self, name="bus"):
        return f"unix:path={self.runtime}/{name}"

    def start(self):
        """Buses first (the shell insists on a system bus, if only for proxies with no owner),
        then the shell; returns once it says it has started."""
        env = dict(os.environ, XDG_RUNTIME_DIR=self.runtime, HOME=self.home)
        for name in ("system-bus", "bus"):
            self.spawn(["dbus-daemon", "--session", "--nofork", "--nopidfile",
                        f"--address={self.bus_address(name)}"], env, f"{name}.log")
        if not wait_until(lambda: all(os.path.exists(f"{self.runtime}/{n}")
                                      for n in ("system-bus", "bus")), 10):
            raise RuntimeError("the D-Bus daemons did not start")
        env.update(DBUS_SESSION_BUS_ADDRESS=self.bus_address(),
                   DBUS_SYSTEM_BUS_ADDRESS=self.bus_address("system-bus"),
                   XDG_SESSION_TYPE="wayland", XDG_CURRENT_DESKTOP="GNOME")
        for variable in ("DISPLAY", "WAYLAND_DISPLAY"):
            env.pop(variable, None)
        # A fresh home would get the one-time notices of a first login right at the top centre.
        os.makedirs(f"{self.home}/.local/share/gnome-shell", exist_ok=True)
        open(f"{self.home}/.local/share/gnome-shell/lock-warning-shown", "w").close()
        subprocess.run(["gsettings", "set", "org.gnome.shell",
                        "welcome-dialog-last-shown-version", "999"], env=env, check=False,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.spawn(["gnome-shell", "--headless", "--wayland", "--virtual-monitor",
                    f"{WIDTH}x{HEIGHT}", "--wayland-display", self.wayland_name], env, "shell.log")
        started = wait_until(lambda: "GNOME Shell started" in self.log("shell.log")
                             and self.xauthority(), 60)
        if not started:
            raise RuntimeError("GNOME Shell did not start:\n" + self.log("shell.log")[-3000:])
        self.env = env

    def spawn(self, command, env, log):
        output = open(f"{self.logs}/{log}", "w")
        self.processes.append(subprocess.Popen(command, env=env, stdout=output,
                                               stderr=subprocess.STDOUT))

    def log(self, name):
        try:
            with open(f"{self.logs}/{name}", errors="replace") as file:
                return file.read()
        except OSError:
            return ""

    def xauthority(self):
        files = glob.glob(f"{self.runtime}/.mutter-Xwaylandauth.*")
        return files[0] if files else None

    def client_environment(self, x11=True):
        """What a client of this desktop sees: its Wayland socket, XWayland's display, the buses."""
        env = dict(self.env, WAYLAND_DISPLAY=self.wayland_name)
        if x11:
            env.update(DISPLAY=":0", XAUTHORITY=self.xauthority())
        return env

    def stop(self):
        # The shell first: it ends its XWayland; then the buses.
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()


class SessionBus:
    def __init__(self, address):
        self.connection = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)

    def call(self, name, path, interface, method, arguments=None, reply=None):
        result = self.connection.call_sync(name, path, interface, method, arguments,
                                           GLib.VariantType(reply) if reply else None,
                                           Gio.DBusCallFlags.NONE, 10000, None)
        return result.unpack() if result is not None else None


class RemotePointer:
    """A remote-desktop session of mutter's: it lasts as long as this object's connection."""

    SERVICE, PATH = "org.gnome.Mutter.RemoteDesktop", "/org/gnome/Mutter/RemoteDesktop"

    def __init__(self, bus):
        self.bus = bus
        (self.session,) = bus.call(self.SERVICE, self.PATH, self.SERVICE, "CreateSession",
                                   reply="(o)")
        self.notify("Start")
        self.position = None  # unknown until the first move

    def notify(self, method, signature=None, *arguments):
        self.bus.call(self.SERVICE, self.session, self.SERVICE + ".Session", method,
                      GLib.Variant(signature, arguments) if signature else None)

    def move_to(self, x, y):
        """Straight from where the pointer is, as a hand moves it. Relative motion needs no
        screen-cast stream; the first move finds the pointer in the bottom-right corner, where it
        stops (not in the top-left one: the Activities hot corner is there)."""
        if self.position is None:
            self.notify("NotifyPointerMotionRelative", "(dd)", 4.0 * WIDTH, 4.0 * HEIGHT)
            self.position = (WIDTH - 1, HEIGHT - 1)
        self.notify("NotifyPointerMotionRelative", "(dd)", float(x - self.position[0]),
                    float(y - self.position[1]))
        self.position = (x, y)

    def click(self, button=BUTTON_LEFT):
        self.notify("NotifyPointerButton", "(ib)", button, True)
        self.notify("NotifyPointerButton", "(ib)", button, False)

    def key(self, keysym):
        self.notify("NotifyKeyboardKeysym", "(ub)", keysym, True)
        self.notify("NotifyKeyboardKeysym", "(ub)", keysym, False)


def screenshot(bus, path):
    """The screen without the pointer. The shell takes screenshots only for a few known bus names;
    this connection takes one of them first."""
    bus.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
             "RequestName", GLib.Variant("(su)", ("org.gnome.Screenshot", 4)), "(u)")
    taken, _ = bus.call("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot",
                        "org.gnome.Shell.Screenshot", "Screenshot",
                        GLib.Variant("(bbs)", (False, False, path)), "(bs)")
    if not taken:
        raise RuntimeError("the shell took no screenshot")
    return Picture(path)


class Picture:
    def __init__(self, path):
        self.path = path
        image = GdkPixbuf.Pixbuf.new_from_file(path)
        self.data, self.channels = image.get_pixels(), image.get_n_channels()
        self.stride = image.get_rowstride()

    def pixel(self, x, y):
        at = y * self.stride + x * self.channels
        return "%02x%02x%02x" % tuple(self.data[at:at + 3])
